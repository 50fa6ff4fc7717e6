#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QShortcut>
#include <algorithm>
#include <map>
#include <set>

#include "qt/qt_text.h"
#include "tallies/tally_file.h"
#include "windows/every_form.h"

namespace vorelio::tests {
namespace {

QString Mnemonic(const QString& text) {
  for (qsizetype i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != u'&') continue;
    if (text[i + 1] != u'&') return text.mid(i + 1, 1).toUpper();
    ++i;
  }
  return {};
}

/// What screen readers make a stop at.
bool Worked(const QAccessibleInterface& node) {
  using enum QAccessible::Role;
  const std::set<QAccessible::Role> worked = {PushButton, CheckBox, RadioButton, EditableText, ComboBox,
                                              List,       ListItem, MenuItem,    PageTab};
  // Words that can be selected are their own name.
  return node.role() != StaticText && (worked.count(node.role()) > 0 || node.state().focusable);
}

/// Notes what of a window a screen reader would have no words for.
void LookForNameless(QAccessibleInterface& node, QStringList& problems) {
  for (int i = 0; i < node.childCount(); ++i) {
    QAccessibleInterface* child = node.child(i);
    if (!child) continue;
    const QAccessible::Role role = child->role();
    const QString name = child->text(QAccessible::Name).trimmed();
    const QString id = child->object() ? child->object()->objectName() : QString();
    if (Worked(*child)) {
      if (name.isEmpty()) problems << id + QStringLiteral(": no name, role %1").arg(role);
      if (name.contains(u'&')) problems << id + QStringLiteral(": ") + name;
      if (role == QAccessible::NoRole || role == QAccessible::Client) problems << id + QStringLiteral(": no role");
    }
    // The list and the field of a combo box are spoken as the box.
    if (role != QAccessible::ComboBox) LookForNameless(*child, problems);
  }
}

/// Fields, lists, boxes and buttons, without the parts that they are made of.
QList<QWidget*> Inputs(const QWidget& window) {
  QList<QWidget*> inputs;
  for (auto* widget : window.findChildren<QWidget*>()) {
    const bool input = qobject_cast<QLineEdit*>(widget) || qobject_cast<QPlainTextEdit*>(widget) ||
                       qobject_cast<QComboBox*>(widget) || qobject_cast<QAbstractItemView*>(widget) ||
                       qobject_cast<QAbstractButton*>(widget);
    bool part = widget->objectName().startsWith(QLatin1String("qt_"));
    for (const QWidget* above = widget->parentWidget(); above; above = above->parentWidget())
      part = part || qobject_cast<const QComboBox*>(above) || qobject_cast<const QMenu*>(above);
    if (input && !part) inputs << widget;
  }
  return inputs;
}

bool ReadOnly(const QWidget& widget) {
  const auto* line = qobject_cast<const QLineEdit*>(&widget);
  return line && line->isReadOnly();
}

/// What throws work away is pressed by its own key or by the mouse, and never comes under an Enter by Tab alone.
bool ThrowsAway(const QWidget& widget) {
  return widget.objectName() == QLatin1String("Annuler") || widget.objectName() == QLatin1String("Effacer");
}

/// Of several options the chosen one is in the tab chain, and the arrow keys lead to the others.
bool BesideTheChosen(const QWidget& widget) {
  if (!qobject_cast<const QRadioButton*>(&widget)) return false;
  const auto options = widget.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
  return std::any_of(options.begin(), options.end(), [](const QRadioButton* option) {
    return option->isChecked() && option->focusPolicy() & Qt::TabFocus;
  });
}

/// Every window without a mouse, and without being seen.
using AccessTest = On<ProgramLook>;

TEST_F(AccessTest, EveryControlCanBeSpoken) {
  for (const Maker make : kForms) {
    Bound bound(make, Furnisher());
    SCOPED_TRACE(bound.form->Name());
    for (Control* control : bound.form->Controls())
      if (auto* list = dynamic_cast<ListBox*>(control)) list->AddItem("F6ABC");
    bound.bench.windows.ShowPending();
    QStringList problems;
    LookForNameless(*QAccessible::queryAccessibleInterface(&bound.Window()), problems);
    EXPECT_TRUE(problems.isEmpty()) << qPrintable(problems.join(u'\n'));
  }
}

TEST_F(AccessTest, ACellSpeaksItsColour) {
  Bound bound(Make<Carte>);
  auto& cell = static_cast<Carte&>(*bound.form).Dep(57);
  const auto heard = [&] {
    return QAccessible::queryAccessibleInterface(bound.bench.windows.WidgetOf(cell))->text(QAccessible::Description);
  };
  cell.SetColour(kDpt_QSL_Recue);
  EXPECT_EQ(heard(), QStringLiteral("QSL reçue"));
  cell.SetColour(kFond_Fenetre);
  EXPECT_EQ(heard(), QString());
}

TEST_F(AccessTest, MnemonicsDoNotClash) {
  for (const Maker make : kForms) {
    Bound bound(make, Furnisher());
    SCOPED_TRACE(bound.form->Name());
    std::map<QString, QString> taken;
    const auto take = [&](const QString& text) {
      const QString letter = Mnemonic(text);
      if (letter.isEmpty()) return;
      EXPECT_FALSE(taken.contains(letter)) << qPrintable(text + QStringLiteral(" / ") + taken[letter]);
      taken[letter] = text;
    };
    for (const auto* label : bound.Window().findChildren<QLabel*>())
      if (label->buddy()) take(label->text());
    for (const auto* button : bound.Window().findChildren<QAbstractButton*>()) take(button->text());
    if (const auto* main = qobject_cast<QMainWindow*>(&bound.Window()))
      for (const auto* entry : main->menuBar()->actions()) take(entry->text());
    // Nothing of a menu can be reached by a letter but by its own.
    for (const QMenu* menu : bound.Window().findChildren<QMenu*>()) {
      EXPECT_FALSE(Mnemonic(menu->title()).isEmpty()) << qPrintable(menu->title());
      std::set<QString> within;
      for (const QAction* entry : menu->actions())
        EXPECT_TRUE(entry->isSeparator() ||
                    (!Mnemonic(entry->text()).isEmpty() && within.insert(Mnemonic(entry->text())).second))
            << qPrintable(entry->text());
    }
  }
}

// What has no letter has a key, and says which.
TEST_F(AccessTest, EachStepOfAContactHasAKeyOfItsOwn) {
  Bound bound(Make<DDFM>, Furnisher());
  auto& main = static_cast<DDFM&>(*bound.form);
  std::map<QString, QString> taken;
  const auto take = [&](const QString& key, const QString& what) {
    EXPECT_TRUE(taken.emplace(key, what).second) << qPrintable(key + u' ' + what + u' ' + taken[key]);
  };
  for (const auto* entry : bound.Window().findChildren<QAction*>())
    for (const QKeySequence& key : entry->shortcuts()) take(key.toString(), entry->text());
  for (const auto* shortcut : bound.Window().findChildren<QShortcut*>()) take(shortcut->key().toString(), {});
  for (const Control* control :
       {static_cast<Control*>(&main.Activ_A), static_cast<Control*>(&main.Date_A), static_cast<Control*>(&main.Debut_A),
        static_cast<Control*>(&main.Fin_A), static_cast<Control*>(&main.RSTR_A), static_cast<Control*>(&main.Annuler),
        static_cast<Control*>(&main.Effacer), static_cast<Control*>(&main.Command1)}) {
    const QWidget* widget = bound.bench.windows.WidgetOf(*control);
    const QString key = widget->property("touche").toString();
    EXPECT_TRUE(taken.contains(key) && widget->toolTip().endsWith(QStringLiteral(" (%1)").arg(key)))
        << qPrintable(widget->objectName() + u' ' + widget->toolTip());
  }
}

/// Where Tab leads from the window's first stop, once round, with all that can be worked switched on.
QList<QWidget*> TabStops(QWidget& window) {
  QList<QWidget*> stops;
  for (QWidget* at = &window; at && !stops.contains(at); at = QApplication::focusWidget()) {
    if (at != &window) stops << at;
    QTest::keyClick(at, Qt::Key_Tab);
  }
  return stops;
}

QRect Place(const QWidget& widget) { return {widget.mapTo(widget.window(), QPoint()), widget.size()}; }

/// Above, or beside on the left.
bool Goes_Back(const QWidget& from, const QWidget& to) {
  const QRect here = Place(from), there = Place(to);
  return there.top() < here.bottom() && there.left() < here.right();
}

// From cell to cell lead the arrow keys, and a map comes where its row of choices ends.
bool IsCell(const QWidget* widget) { return widget->property("cellule").toBool(); }

TEST_F(AccessTest, TabReachesEverythingInReadingOrder) {
  for (const Maker make : kForms) {
    Bound bound(make, Furnisher());
    SCOPED_TRACE(bound.form->Name());
    for (Control* control : bound.form->Controls()) control->SetEnabled(true);
    QWidget& window = bound.Window();
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QCoreApplication::processEvents();

    const QList<QWidget*> stops = TabStops(window);
    QStringList back;
    for (qsizetype i = 0; i < stops.size(); ++i) {
      const QWidget *from = stops[i], *to = stops[(i + 1) % stops.size()];
      if (!IsCell(from) && !IsCell(to) && Goes_Back(*from, *to))
        back << from->objectName() + QStringLiteral(" to ") + to->objectName();
    }
    // Round the corner, from the last stop to the first, it does go back.
    EXPECT_LE(back.size(), 1) << qPrintable(back.join(u'\n'));
    std::map<const QWidget*, bool> boards;
    for (QWidget* widget : Inputs(window)) {
      if (!widget->isVisible() || (ReadOnly(*widget) && widget->focusPolicy() == Qt::NoFocus)) continue;
      const bool reached = stops.contains(widget);
      if (IsCell(widget))
        boards[widget->parentWidget()] |= reached;
      else
        EXPECT_TRUE(reached != (bound.form->Main() && ThrowsAway(*widget)) || ReadOnly(*widget) ||
                    BesideTheChosen(*widget))
            << qPrintable(widget->objectName());
    }
    for (const auto& [board, reached] : boards) {
      const bool by_shortcut = bound.form->Main() && board->objectName() == QLatin1String("Dpt");
      EXPECT_TRUE(reached != by_shortcut) << qPrintable(board->objectName());
    }
  }
}

}  // namespace
}  // namespace vorelio::tests
