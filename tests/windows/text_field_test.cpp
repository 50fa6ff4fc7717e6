#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>

#include "core/text.h"
#include "qt/appearance.h"
#include "qt/multi_line_view.h"
#include "qt/qt_text.h"
#include "windows/windows_bench.h"

namespace vorelio::tests {
namespace {

class FieldForm : public TestForm {
 public:
  using TestForm::TestForm;
  TextField Champ{*this, "Champ"};
  TextField Autre{*this, "Autre", "59"};
  Button Bouton{*this, "Bouton", "Bouton"};
};

struct FieldBench : ControlBench<FieldForm> {
  FieldBench() {
    Add(new QPushButton, "Bouton");
    Bind();
    field->setFocus();
  }

  QLineEdit* field = Add(new QLineEdit, "Champ");
  QLineEdit* other = Add(new QLineEdit, "Autre");
};

class PageForm : public TestForm {
 public:
  using TestForm::TestForm;
  TextField Page{*this, "Page", "une\r\ndeux", true};
};

struct PageBench : ControlBench<PageForm> {
  PageBench() {
    Bind();
    page->setFocus();
  }

  QPlainTextEdit* page = Add(new QPlainTextEdit, "Page");
  TextField& field = form().Page;
};

using TextFieldTest = On<FieldBench>;
using PageTest = On<PageBench>;

TEST_F(TextFieldTest, NoKeyIsLostAtFullSpeed) {
  std::string seen;
  form().Champ.KeyPress = [&](int& key) { seen += static_cast<char>(key); };
  const QString typed = QStringLiteral("the quick brown fox 0123456789 /?!").repeated(20);
  QTest::keyClicks(field, typed);
  EXPECT_EQ(seen, FromQt(typed));
  EXPECT_EQ(field->text(), typed);
  EXPECT_EQ(form().Champ.Text(), FromQt(typed));
}

TEST_F(TextFieldTest, EnterPressesTheButtonThatTheDesignNames) {
  int clicks = 0;
  form().Bouton.Click = [&] { ++clicks; };
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(clicks, 0);
  field->setProperty("entree", QStringLiteral("Bouton"));
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(clicks, 1);
}

TEST_F(TextFieldTest, AccentsComeByKeyAndByInputMethod) {
  QTest::sendKeyEvent(QTest::Click, field, Qt::Key_Eacute, QStringLiteral("é"), {});
  QInputMethodEvent commit;
  // A dead key's letter in two parts.
  commit.setCommitString(QStringLiteral("e\u0302œ€"));
  QApplication::sendEvent(field, &commit);
  EXPECT_EQ(field->text(), QStringLiteral("éêœ€"));
  EXPECT_EQ(form().Champ.Text(), "éêœ€"_t);
  EXPECT_TRUE(gate.notices.isEmpty());
}

TEST_F(TextFieldTest, ACharacterOutsideTheSetIsRefusedWithANotice) {
  QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QStringLiteral("я"), {});
  EXPECT_TRUE(field->text().isEmpty());
  EXPECT_EQ(gate.notices, QStringList{QStringLiteral("Ce caractère ne peut pas être noté dans le journal : я")});
}

TEST_F(TextFieldTest, ShortcutsTypeNothing) {
  int keys = 0;
  form().Champ.KeyPress = [&](int&) { ++keys; };
  QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(field, Qt::Key_B, Qt::AltModifier);
  QTest::keyClick(field, Qt::Key_Left);
  QTest::keyClick(field, Qt::Key_Backspace);
  EXPECT_EQ(keys, 0);
  // AltGr, as some keyboards send it.
  QKeyEvent at(QEvent::KeyPress, Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, QStringLiteral("@"));
  QApplication::sendEvent(field, &at);
  EXPECT_EQ(form().Champ.Text(), "@");
}

TEST_F(TextFieldTest, Pastes) {
  const std::tuple<QString, QString, int> cases[] = {{QStringLiteral("jn33bb"), QStringLiteral("jn33bb"), 0},
                                                     {QStringLiteral("a\r\nb\nc"), QStringLiteral("a b c"), 0},
                                                     // Decomposed.
                                                     {QStringLiteral("Ele\u0300ne"), QStringLiteral("Elène"), 0},
                                                     {QStringLiteral("abc Москва"), QString(), 1}};
  for (const auto& [pasted, text, notices] : cases) {
    FieldBench bench;
    int keys = 0;
    bench.form().Champ.KeyPress = [&](int&) { ++keys; };
    QApplication::clipboard()->setText(pasted);
    QTest::keyClick(bench.field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(bench.field->text(), text);
    EXPECT_EQ(bench.form().Champ.Text(), FromQt(text));
    EXPECT_EQ(bench.gate.notices.size(), notices);
    EXPECT_EQ(keys, 0);
  }
}

TEST_F(TextFieldTest, AForeignPasteLeavesTextAndCaret) {
  form().Champ.SetText("METZ");
  form().Champ.SetCaret(2);
  QApplication::clipboard()->setText(QStringLiteral("Łódź"));
  QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(field->text(), QStringLiteral("METZ"));
  EXPECT_EQ(field->cursorPosition(), 2);
}

TEST_F(TextFieldTest, DeletionsAndUndoAreTold) {
  QTest::keyClicks(field, QStringLiteral("F6ABC"));
  QTest::keyClick(field, Qt::Key_Backspace);
  EXPECT_EQ(form().Champ.Text(), "F6AB");
  QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(form().Champ.Text(), "F6ABC");
  EXPECT_EQ(field->text(), QStringLiteral("F6ABC"));
}

TEST_F(TextFieldTest, TheCaretStandsWhereTheLogicPutsIt) {
  TextField& model = form().Champ;
  model.SetText("DFCF ");
  model.SetCaret(5);
  EXPECT_EQ(field->cursorPosition(), 5);
  EXPECT_FALSE(field->hasSelectedText());
  model.SetCaret(1, 3);
  EXPECT_EQ(field->selectionStart(), 1);
  EXPECT_EQ(field->selectedText(), QStringLiteral("FCF"));
  QTest::keyClicks(field, QStringLiteral("x"));
  EXPECT_EQ(model.Text(), "Dx ");
}

TEST_F(TextFieldTest, TheUsersCaretIsTold) {
  form().Champ.SetText("12345");
  form().Champ.SetCaret(5);
  QTest::keyClick(field, Qt::Key_Home);
  QTest::keyClicks(field, QStringLiteral("0"));
  EXPECT_EQ(form().Champ.Text(), "012345");
  QTest::keyClick(field, Qt::Key_End, Qt::ShiftModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return form().Champ.SelectionLength() == 5; }));
}

// A field whose text was set stands selected: the first character takes its place. Without the focus it shows none.
TEST_F(TextFieldTest, ASetTextGivesWayToTheFirstCharacter) {
  EXPECT_FALSE(other->hasSelectedText());
  form().Autre.SetFocus();
  other->setFocus(Qt::OtherFocusReason);
  binding->Of(form().Autre)->Focused();
  EXPECT_EQ(other->selectedText(), QStringLiteral("59"));
  QTest::keyClicks(other, QStringLiteral("5"));
  EXPECT_EQ(form().Autre.Text(), "5");
}

TEST_F(TextFieldTest, ADoubleClickIsTheLogics) {
  form().Champ.SetText("F6ABC");
  form().Champ.DblClick = [&] { form().Champ.Clear(); };
  QTest::mouseDClick(field, Qt::LeftButton);
  EXPECT_TRUE(field->text().isEmpty());
  // A key that says nothing about it empties no field; a cell it opens.
  form().Champ.SetText("F6ABC");
  QTest::keyClick(field, Qt::Key_F2);
  EXPECT_EQ(field->text(), QStringLiteral("F6ABC"));
  form().Champ.SetReadOnly(true);
  QTest::keyClick(field, Qt::Key_F2);
  EXPECT_TRUE(field->text().isEmpty());
}

TEST_F(TextFieldTest, ColouredFieldsKeepBlackText) {
  const QPalette before = QApplication::palette();
  for (const bool dark : {false, true}) {
    QApplication::setPalette(ThemePalette(dark));
    FieldBench bench;
    const auto seen = [&](QPalette::ColorRole role, QPalette::ColorGroup group = QPalette::Active) {
      return bench.field->palette().color(group, role);
    };
    TextField& coloured = bench.form().Champ;
    coloured.SetColour(kSaisie);
    EXPECT_EQ(seen(QPalette::Base), QColor(0xC0, 0xFF, 0xC0));
    for (const auto group : {QPalette::Active, QPalette::Inactive})
      EXPECT_EQ(seen(QPalette::Text, group), QColor(Qt::black));
    // Locked, it looks like any other locked field.
    for (const auto role : {QPalette::Text, QPalette::Base})
      EXPECT_EQ(seen(role, QPalette::Disabled), ThemePalette(dark).color(QPalette::Disabled, role));
    coloured.SetColour(kFait);
    EXPECT_EQ(seen(QPalette::Base), QColor(0xFF, 0xFF, 0xC0));
    coloured.SetColour(kFond_Fenetre);
    EXPECT_EQ(seen(QPalette::Base), ThemePalette(dark).color(QPalette::Base));
    EXPECT_EQ(seen(QPalette::Text), ThemePalette(dark).color(QPalette::Text));
  }
  QApplication::setPalette(before);
}

TEST_F(TextFieldTest, ADisabledFieldTakesNothingAndTellsNoFocus) {
  form().Champ.SetFocus();
  form().Champ.SetEnabled(false);
  EXPECT_FALSE(field->isEnabled());
  EXPECT_EQ(gate.lost, 1);
  // Qt has moved the focus on; the logic's word stands.
  EXPECT_EQ(programme.Focus(), &form().Champ);
  QTest::keyClick(other, Qt::Key_Tab);
  EXPECT_EQ(programme.Focus(), &form().Bouton);
}

TEST_F(TextFieldTest, AnUnboundWidgetIsSilent) {
  binding.reset();
  QTest::keyClicks(field, QStringLiteral("x"));
  EXPECT_TRUE(form().Champ.Text().empty());
  form().Champ.SetText("y");
}

TEST_F(PageTest, PagesKeepTheirLineEnds) {
  EXPECT_EQ(page->toPlainText(), QStringLiteral("une\ndeux"));
  field.SetCaret(5);
  EXPECT_EQ(page->textCursor().position(), 4);
  QTest::keyClicks(page, QStringLiteral("x"));
  QTest::keyClick(page, Qt::Key_Return);
  EXPECT_EQ(field.Text(), "une\r\nx\r\ndeux");
  QTest::keyClick(page, Qt::Key_Backspace);
  QTest::keyClick(page, Qt::Key_Backspace);
  EXPECT_EQ(field.Text(), "une\r\ndeux");
  EXPECT_EQ(field.Caret(), 5);
  QApplication::clipboard()->setText(QStringLiteral("ф"));
  QTest::keyClick(page, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(page->toPlainText(), QStringLiteral("une\ndeux"));
  EXPECT_EQ(gate.notices.size(), 1);
}

TEST_F(PageTest, PagesTakeBackWhatWasTyped) {
  // The fixed blank of a French text isn't an ordinary one.
  field.SetText("une\r\nvoici\xA0: deux");
  field.SetCaret(3);
  QTest::keyClicks(page, QStringLiteral("xy"));
  EXPECT_EQ(field.Text(), "unexy\r\nvoici\xA0: deux");
  QTest::keyClick(page, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(field.Text(), "une\r\nvoici\xA0: deux");
  // Selected from a menu, with no key and no click on the text.
  page->selectAll();
  EXPECT_TRUE(QTest::qWaitFor([&] { return field.SelectionLength() == static_cast<int>(field.Text().size()); }));
}

}  // namespace
}  // namespace vorelio::tests
