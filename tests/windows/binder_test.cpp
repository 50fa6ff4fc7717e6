#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "core/text.h"
#include "qt/qt_text.h"
#include "windows/every_form.h"

namespace vorelio::tests {
namespace {

class ArrayForm : public TestForm {
 public:
  using TestForm::TestForm;
  ControlArray<TextField> Dpt{*this, "Dpt", 0, 20};
  ControlArray<OptionButton> Option1{*this, "Option1", 0, 2, "option", "Option1"};
  TextField Date_A{*this, "Date_A"};
  Button Orphelin{*this, "Orphelin", "Orphelin"};
};

TEST(BinderTest, EveryWindowFitsItsForm) {
  for (const Maker make : kForms) {
    Bound bound(make);
    SCOPED_TRACE(bound.form->Name());
    QStringList problems;
    for (const std::string& problem : bound.bench.windows.Problems(*bound.form)) problems << ToQt(problem);
    EXPECT_TRUE(problems.isEmpty()) << qPrintable(problems.join(u'\n'));
  }
}

TEST(BinderTest, EveryUiFileHasItsForm) {
  UseResources();
  QStringList files = QDir(QStringLiteral(":/ui")).entryList(), forms;
  for (const Maker make : kForms) {
    const Bound bound(make);
    forms << ToQt(bound.form->Name()).toLower() + QStringLiteral(".ui");
  }
  files.sort();
  forms.sort();
  EXPECT_EQ(files, forms);
}

TEST(BinderTest, ArraysAreFilledIntoTheirHolders) {
  ControlBench<ArrayForm> bench;
  auto* holder = bench.Add(new QWidget, "Dpt");
  holder->setProperty("colonnes", 10);
  holder->setAccessibleName(QStringLiteral("Case"));
  bench.Add(new QRadioButton, "Option1_0");
  auto* second = bench.Add(new QRadioButton, "Option1(1)");
  bench.Add(new QLabel(QStringLiteral("&Date")), "titre_Date_A")->setBuddy(bench.Add(new QLineEdit, "Date_A"));
  bench.Add(new QComboBox, "Inconnu");
  bench.Add(new QLabel, "Label99");
  bench.Bind();
  auto& form = bench.form();
  EXPECT_EQ(bench.binding->WidgetOf(form.Option1(1)), second);
  EXPECT_EQ(bench.binding->WidgetOf(form.Date_A)->accessibleName(), QStringLiteral("Date"));
  auto* cell = bench.binding->WidgetOf(form.Dpt(13));
  EXPECT_EQ(cell->accessibleName(), QStringLiteral("Case 13"));
  // The third cell of the second row, next to it and above it.
  bench.programme.Recoit([&] { form.Dpt(12).SetText("12"); });
  cell->setFocus();
  QTest::keyClick(cell, Qt::Key_Left);
  EXPECT_EQ(bench.programme.Focus(), &form.Dpt(12));
  QTest::keyClick(bench.binding->WidgetOf(form.Dpt(12)), Qt::Key_Up);
  EXPECT_EQ(bench.programme.Focus(), &form.Dpt(2));
  EXPECT_EQ(bench.binding->Problems(),
            (std::vector<std::string>{"Orphelin: no widget", "Inconnu: no control behind this QComboBox",
                                      "Label99: no control behind this QLabel"}));
}

TEST(BinderTest, ATableNamesItsCellsByItsTitles) {
  Bound bound(Make<Statistiques>);
  auto& form = static_cast<Statistiques&>(*bound.form);
  auto* far = bound.bench.windows.WidgetOf(form.Text11(88));
  auto* near = qobject_cast<QLineEdit*>(bound.bench.windows.WidgetOf(form.Text11(13)));
  EXPECT_EQ(far->accessibleName(), QStringLiteral("50 MHz, Sup a 1000 Km"));
  EXPECT_EQ(near->accessibleName(), QStringLiteral("432 MHz, 100 a 200 Km"));
  EXPECT_TRUE(near->alignment().testFlag(Qt::AlignRight));
  // To the left of the first stand the titles.
  auto* first = bound.bench.windows.WidgetOf(form.Text11(78));
  bound.bench.programme.Recoit([&] { form.Text11(78).SetFocus(); });
  QTest::keyClick(first, Qt::Key_Left);
  EXPECT_EQ(bound.bench.programme.Focus(), &form.Text11(78));
}

TEST(BinderTest, AWidgetOfAnotherKindIsAProblem) {
  ControlBench<ArrayForm> bench;
  bench.Add(new QComboBox, "Date_A");
  bench.Bind();
  const auto& problems = bench.binding->Problems();
  EXPECT_TRUE(std::find(problems.begin(), problems.end(), "Date_A: the widget is a QComboBox") != problems.end());
}

}  // namespace
}  // namespace vorelio::tests
