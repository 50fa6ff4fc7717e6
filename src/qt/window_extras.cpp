#include "qt/window_extras.h"

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>

#include "qt/qt_text.h"
#include "qt/window_fit.h"

namespace vorelio {

namespace {

/// Keeps a window's place whenever it goes from the screen.
class PlaceKeeper : public QObject {
 public:
  PlaceKeeper(QWidget& window, QSettings& memory, const QString& key)
      : QObject(&window), window_(window), memory_(memory), key_(key) {
    window.installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == &window_ && event->type() == QEvent::Hide && !event->spontaneous())
      memory_.setValue(key_, window_.saveGeometry());
    return false;
  }

 private:
  QWidget& window_;
  QSettings& memory_;
  QString key_;
};

/// A key of its own leads to a field and presses a button. Their tip tells it.
void GiveKey(QWidget& widget, const QString& key) {
  auto* shortcut = new QShortcut(QKeySequence(key), widget.window());
  shortcut->setAutoRepeat(false);
  auto* button = qobject_cast<QPushButton*>(&widget);
  QObject::connect(shortcut, &QShortcut::activated, &widget, [&widget, button] {
    if (button)
      button->click();
    else
      widget.setFocus(Qt::ShortcutFocusReason);
  });
  const auto tell = [&key](QWidget& place, const QString& words) {
    place.setToolTip(QStringLiteral("%1 (%2)").arg(place.toolTip().isEmpty() ? words : place.toolTip(), key));
  };
  if (button) return tell(widget, WithoutMnemonic(button->text()));
  for (QLabel* title : widget.window()->findChildren<QLabel*>()) {
    if (title->buddy() != &widget) continue;
    tell(widget, title->text());
    tell(*title, title->text());
  }
}

void GiveKeys(QWidget& window) {
  for (QWidget* widget : window.findChildren<QWidget*>())
    if (const QString key = widget->property("touche").toString(); !key.isEmpty()) GiveKey(*widget, key);
}

}  // namespace

bool WindowExtras::Furnish(const Form& form, QWidget& window) {
  appearance_.Dress(window);
  GiveKeys(window);
  if (auto* main = qobject_cast<QMainWindow*>(&window); main && form.Main()) AddViewMenu(*main);
  return form.Main() && Restore(ToQt(form.Name()), window);
}

bool WindowExtras::Restore(const QString& name, QWidget& window) {
  const QString key = QStringLiteral("Fenetres/") + name;
  new PlaceKeeper(window, memory_, key);
  if (window.restoreGeometry(memory_.value(key).toByteArray())) return true;
  // At first, as large as the log likes it, and no larger than the screen.
  window.resize(RoomFor(window).boundedTo(QSize(1540, 860)));
  return false;
}

void WindowExtras::AddViewMenu(QMainWindow& window) {
  auto* menu = new QMenu(QStringLiteral("Afficha&ge"), &window);
  menu->setObjectName(QStringLiteral("titre_affichage"));
  const auto add = [&](QMenu& to, const QString& words, const QList<QKeySequence>& keys, auto action) {
    QAction* entry = to.addAction(words);
    entry->setShortcuts(keys);
    QObject::connect(entry, &QAction::triggered, &window, action);
    return entry;
  };
  Appearance& look = appearance_;
  add(*menu, QStringLiteral("&Agrandir le texte"),
      {QKeySequence(QStringLiteral("Ctrl++")), QKeySequence(QStringLiteral("Ctrl+="))},
      [&look] { look.SetZoom(look.Zoom() + Appearance::kStep); });
  add(*menu, QStringLiteral("&Réduire le texte"), {QKeySequence(QStringLiteral("Ctrl+-"))},
      [&look] { look.SetZoom(look.Zoom() - Appearance::kStep); });
  add(*menu, QStringLiteral("Taille &normale"), {QKeySequence(QStringLiteral("Ctrl+0"))},
      [&look] { look.SetZoom(100); });
  menu->addSeparator();

  auto* themes = menu->addMenu(QStringLiteral("&Thème"));
  auto* group = new QActionGroup(&window);
  const std::pair<QString, Appearance::Theme> choices[] = {{QStringLiteral("&Système"), Appearance::Theme::System},
                                                           {QStringLiteral("&Clair"), Appearance::Theme::Light},
                                                           {QStringLiteral("S&ombre"), Appearance::Theme::Dark}};
  for (const auto& choice : choices) {
    const Appearance::Theme theme = choice.second;
    QAction* entry = add(*themes, choice.first, {}, [&look, theme] { look.SetTheme(theme); });
    entry->setCheckable(true);
    entry->setChecked(look.CurrentTheme() == theme);
    group->addAction(entry);
  }
  menu->addSeparator();

  QAction* full = add(*menu, QStringLiteral("&Plein écran"), {QKeySequence(Qt::Key_F11)},
                      [&window] { window.setWindowState(window.windowState() ^ Qt::WindowFullScreen); });
  full->setObjectName(QStringLiteral("titre_plein_ecran"));

  menu->addSeparator();

  // The grid is no part of the tab chain, and the log comes last in it.
  const auto go_to = [&window](const char* name) {
    if (auto* widget = window.findChild<QWidget*>(QString::fromLatin1(name))) widget->setFocus(Qt::TabFocusReason);
  };
  add(*menu, QStringLiteral("Aller à la &grille"), {QKeySequence(QStringLiteral("Ctrl+G"))},
      [go_to] { go_to("Dpt(1)"); });
  add(*menu, QStringLiteral("Aller au &journal"), {QKeySequence(QStringLiteral("Ctrl+J"))},
      [go_to] { go_to("Liste_QSO"); });

  // Before the last menu, the help.
  const QList<QAction*> menus = window.menuBar()->actions();
  window.menuBar()->insertMenu(menus.isEmpty() ? nullptr : menus.constLast(), menu);
}

}  // namespace vorelio
