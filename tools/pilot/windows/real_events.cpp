// Clicks go through the window system: what stands before a widget, or locks its window, keeps them off it.
#define QTEST_QPA_MOUSE_HANDLING

#include "pilot/windows/real_events.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QMainWindow>
#include <QMenu>

#include <QMenuBar>
#include <QRadioButton>
#include <QTest>
#include <algorithm>

namespace vorelio::pilot {

namespace {

/// Timers that fire again and again must not keep the pilot busy for ever.
constexpr int kTurns = 200;
constexpr int kPatience_ms = 2000;

/// The menus to open on the way from the menu bar to an entry, the outermost first; empty if none leads there.
QList<QMenu*> MenusTo(const QList<QAction*>& entries, const QAction& wanted) {
  for (const QAction* entry : entries) {
    QMenu* menu = entry->menu();
    if (!menu) continue;
    if (menu->actions().contains(&wanted)) return {menu};
    const QList<QMenu*> inner = MenusTo(menu->actions(), wanted);
    if (!inner.isEmpty()) return QList<QMenu*>{menu} + inner;
  }
  return {};
}

}  // namespace

void UntilIdle() {
  auto* dispatcher = QAbstractEventDispatcher::instance();
  for (int turn = 0; turn < kTurns && dispatcher->processEvents(QEventLoop::AllEvents); ++turn) {
  }
}

void Type(QWidget& widget, QChar character) {
  if (character == u'\r') return QTest::sendKeyEvent(QTest::Click, &widget, Qt::Key_Return, QStringLiteral("\r"), {});
  const char ascii = character.toLatin1();
  const Qt::Key code = character.unicode() < 0x80 ? QTest::asciiToKey(ascii) : Qt::Key_unknown;
  QTest::sendKeyEvent(QTest::Click, &widget, code, QString(character), {});
}

void Strike(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::sendKeyEvent(QTest::Click, &widget, key, QString(), modifiers);
}

namespace {

struct NamedKey {
  const char* name;
  Qt::Key key;
  const char* text;
};

constexpr NamedKey kNamedKeys[] = {{"Return", Qt::Key_Return, "\r"},
                                   {"Escape", Qt::Key_Escape, "\x1B"},
                                   {"Tab", Qt::Key_Tab, "\t"},
                                   {"Backspace", Qt::Key_Backspace, "\b"},
                                   {"Delete", Qt::Key_Delete, "\x7F"},
                                   {"Space", Qt::Key_Space, " "},
                                   {"Home", Qt::Key_Home, ""},
                                   {"End", Qt::Key_End, ""},
                                   {"Left", Qt::Key_Left, ""},
                                   {"Right", Qt::Key_Right, ""},
                                   {"Up", Qt::Key_Up, ""},
                                   {"Down", Qt::Key_Down, ""},
                                   {"PageUp", Qt::Key_PageUp, ""},
                                   {"PageDown", Qt::Key_PageDown, ""}};

struct Stroke {
  Qt::Key key = Qt::Key_unknown;
  QString text;
  Qt::KeyboardModifiers modifiers;
};

/// What the key is to Qt; `Key_unknown` for one that no keyboard has.
Stroke Resolve(const KeyStroke& stroke) {
  Stroke resolved;
  resolved.modifiers.setFlag(Qt::ShiftModifier, stroke.shift);
  resolved.modifiers.setFlag(Qt::ControlModifier, stroke.ctrl);
  resolved.modifiers.setFlag(Qt::AltModifier, stroke.alt);
  const QString key = QString::fromStdString(stroke.key);
  for (const NamedKey& named : kNamedKeys)
    if (key == QLatin1String(named.name)) resolved.key = named.key, resolved.text = QString::fromLatin1(named.text);
  if (resolved.key == Qt::Key_Tab && stroke.shift) resolved.key = Qt::Key_Backtab;
  const int number = key.startsWith(u'F') ? key.mid(1).toInt() : 0;
  if (number >= 1 && number <= 12) resolved.key = static_cast<Qt::Key>(Qt::Key_F1 + number - 1);
  if (resolved.key == Qt::Key_unknown && key.size() == 1) {
    resolved.text = key;
    resolved.key = key[0].unicode() < 0x80 ? QTest::asciiToKey(key[0].toLatin1()) : Qt::Key(key[0].toUpper().unicode());
  }
  if (stroke.ctrl) resolved.text.clear();
  return resolved;
}

/// The offscreen platform leaves no window in front when the one in front goes; a desktop brings the main one there.
void BringWindowToFront() {
  if (QApplication::activeWindow() || QApplication::activeModalWidget()) return;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (qobject_cast<QMainWindow*>(window) && window->isVisible()) window->activateWindow();
  UntilIdle();
}

/// What the next key goes to.
QWidget* KeyTarget() {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup->focusWidget() ? popup->focusWidget() : popup;
  QWidget* window =
      QApplication::activeModalWidget() ? QApplication::activeModalWidget() : QApplication::activeWindow();
  if (!window) return nullptr;
  return window->focusWidget() ? window->focusWidget() : window;
}

bool SomeButtonDown() {
  const QWidgetList widgets = QApplication::allWidgets();
  return std::any_of(widgets.begin(), widgets.end(), [](const QWidget* widget) {
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    return button && button->isVisible() && button->isDown();
  });
}

void Send(const Stroke& stroke, bool down, bool repeat) {
  if (QWidget* target = KeyTarget())
    QTest::simulateEvent(target, down, stroke.key, stroke.modifiers, stroke.text, repeat);
}

}  // namespace

bool HoldKey(const KeyStroke& wanted, int repeats) {
  const Stroke stroke = Resolve(wanted);
  if (stroke.key == Qt::Key_unknown) return false;
  BringWindowToFront();
  // What the first press opens gets the others, as it does from a keyboard: they wait in the queue of events.
  const auto later = [](auto action) { QMetaObject::invokeMethod(qApp, action, Qt::QueuedConnection); };
  for (int i = 0; i < repeats; ++i) {
    later([stroke] {
      Send(stroke, false, true);
      Send(stroke, true, true);
    });
  }
  later([stroke] { Send(stroke, false, false); });
  Send(stroke, true, false);
  UntilIdle();
  // A button that a shortcut presses stays down for a moment.
  return QTest::qWaitFor([] { return !SomeButtonDown(); }, kPatience_ms);
}

void Press(QWidget& widget, QPoint place) { QTest::mouseClick(&widget, Qt::LeftButton, {}, place); }

void Press(QWidget& widget) {
  // A tick is clicked on, or its words: the widget can be wider than both.
  const bool tick = qobject_cast<QCheckBox*>(&widget) || qobject_cast<QRadioButton*>(&widget);
  Press(widget, tick ? QPoint(8, widget.height() / 2) : widget.rect().center());
}

void DoublePress(QWidget& widget, QPoint place) { QTest::mouseDClick(&widget, Qt::LeftButton, {}, place); }

void GoTo(QWidget& widget) {
  if (!widget.isActiveWindow()) {
    widget.activateWindow();
    UntilIdle();
  }
  if (widget.window()->focusWidget() != &widget) widget.setFocus(Qt::TabFocusReason);
}

void PickRow(QComboBox& combo, int row) {
  GoTo(combo);
  // By the key: a list that the mouse has opened lets a moment pass before it takes a click.
  Strike(combo, Qt::Key_F4);
  QAbstractItemView* view = combo.view();
  if (!QTest::qWaitFor([&] { return view->isVisible(); }, kPatience_ms)) return;
  const QModelIndex index = combo.model()->index(row, combo.modelColumn(), combo.rootModelIndex());
  view->scrollTo(index);
  // A row can be wider than what is seen of it.
  const QPoint place = (view->visualRect(index) & view->viewport()->rect()).center();
  QTest::mouseMove(view->viewport(), place);
  Press(*view->viewport(), place);
  UntilIdle();
}

bool PickEntry(QWidget& window, QAction& entry) {
  const auto* main = qobject_cast<QMainWindow*>(&window);
  QMenuBar* bar = main ? main->menuBar() : window.findChild<QMenuBar*>();
  if (!bar) return false;
  const QList<QMenu*> menus = MenusTo(bar->actions(), entry);
  if (menus.isEmpty()) return false;
  GoTo(*bar);
  Press(*bar, bar->actionGeometry(menus.front()->menuAction()).center());
  for (qsizetype i = 0; i < menus.size(); ++i) {
    QMenu* menu = menus[i];
    if (!QTest::qWaitFor([menu] { return menu->isVisible(); }, kPatience_ms)) return false;
    QAction* next = i + 1 < menus.size() ? menus[i + 1]->menuAction() : &entry;
    const QRect place = menu->actionGeometry(next);
    if (!place.isValid()) return false;
    Press(*menu, place.center());
  }
  return true;
}

}  // namespace vorelio::pilot
