// Clicks go through the window system: what stands before a widget, or locks its window, keeps them off it.
#define QTEST_QPA_MOUSE_HANDLING

#include "pilot/windows/real_events.h"

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

namespace vorelio::pilot {

namespace {

/// Timers that fire again and again must not keep the pilot busy for ever.
constexpr int kTurns = 200;
constexpr int kPatience_ms = 2000;

/// The menus to open on the way from the menu bar to an entry, the outermost first; empty if none leads there.
QList<QMenu*> Way(const QList<QAction*>& entries, const QAction& wanted) {
  for (const QAction* entry : entries) {
    QMenu* menu = entry->menu();
    if (!menu) continue;
    if (menu->actions().contains(&wanted)) return {menu};
    const QList<QMenu*> inner = Way(menu->actions(), wanted);
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
  const QList<QMenu*> menus = Way(bar->actions(), entry);
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
