#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>

#include "core/text.h"
#include "platform/qt/appearance.h"
#include "platform/qt/multi_line_view.h"
#include "platform/qt/qt_text.h"
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
    field = Add(new QLineEdit, "Champ");
    other = Add(new QLineEdit, "Autre");
    Add(new QPushButton, "Bouton");
    Bind();
    field->setFocus();
  }

  QLineEdit* field;
  QLineEdit* other;
};

class PageForm : public TestForm {
 public:
  using TestForm::TestForm;
  TextField Page{*this, "Page", "une\r\ndeux", true};
};

}  // namespace

class TextFieldTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void NoKeyIsLostAtFullSpeed() {
    FieldBench bench;
    std::string seen;
    bench.form().Champ.KeyPress = [&](int& key) { seen += static_cast<char>(key); };
    const QString typed = QStringLiteral("the quick brown fox 0123456789 /?!").repeated(20);
    QTest::keyClicks(bench.field, typed);
    QCOMPARE(seen, FromQt(typed));
    QCOMPARE(bench.field->text(), typed);
    QCOMPARE(bench.form().Champ.Text(), FromQt(typed));
  }

  void EnterPressesTheButtonThatTheDesignNames() {
    FieldBench bench;
    int clicks = 0;
    bench.form().Bouton.Click = [&] { ++clicks; };
    QTest::keyClick(bench.field, Qt::Key_Return);
    QCOMPARE(clicks, 0);
    bench.field->setProperty("entree", QStringLiteral("Bouton"));
    QTest::keyClick(bench.field, Qt::Key_Return);
    QCOMPARE(clicks, 1);
  }

  void AccentsComeByKeyAndByInputMethod() {
    FieldBench bench;
    QTest::sendKeyEvent(QTest::Click, bench.field, Qt::Key_Eacute, QStringLiteral("é"), {});
    QInputMethodEvent commit;
    // A dead key's letter in two parts.
    commit.setCommitString(QStringLiteral("e\u0302œ€"));
    QApplication::sendEvent(bench.field, &commit);
    QCOMPARE(bench.field->text(), QStringLiteral("éêœ€"));
    QCOMPARE(bench.form().Champ.Text(), "éêœ€"_t);
    QVERIFY(bench.gate.notices.isEmpty());
  }

  void ACharacterOutsideTheSetIsRefusedWithANotice() {
    FieldBench bench;
    QTest::sendKeyEvent(QTest::Click, bench.field, Qt::Key_unknown, QStringLiteral("я"), {});
    QVERIFY(bench.field->text().isEmpty());
    QCOMPARE(bench.gate.notices, QStringList{QStringLiteral("Ce caractère ne peut pas être noté dans le journal : я")});
  }

  void ShortcutsTypeNothing() {
    FieldBench bench;
    int keys = 0;
    bench.form().Champ.KeyPress = [&](int&) { ++keys; };
    QTest::keyClick(bench.field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(bench.field, Qt::Key_B, Qt::AltModifier);
    QTest::keyClick(bench.field, Qt::Key_Left);
    QTest::keyClick(bench.field, Qt::Key_Backspace);
    QCOMPARE(keys, 0);
    // AltGr, as some keyboards send it.
    QKeyEvent at(QEvent::KeyPress, Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, QStringLiteral("@"));
    QApplication::sendEvent(bench.field, &at);
    QCOMPARE(bench.form().Champ.Text(), "@");
  }

  void Pastes_data() {
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("notices");
    QTest::newRow("plain") << QStringLiteral("jn33bb") << QStringLiteral("jn33bb") << 0;
    QTest::newRow("line ends") << QStringLiteral("a\r\nb\nc") << QStringLiteral("a b c") << 0;
    QTest::newRow("decomposed") << QStringLiteral("Ele\u0300ne") << QStringLiteral("Elène") << 0;
    QTest::newRow("foreign") << QStringLiteral("abc Москва") << QString() << 1;
  }
  void Pastes() {
    QFETCH(QString, pasted);
    QFETCH(QString, text);
    QFETCH(int, notices);
    FieldBench bench;
    int keys = 0;
    bench.form().Champ.KeyPress = [&](int&) { ++keys; };
    QApplication::clipboard()->setText(pasted);
    QTest::keyClick(bench.field, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(bench.field->text(), text);
    QCOMPARE(bench.form().Champ.Text(), FromQt(text));
    QCOMPARE(bench.gate.notices.size(), notices);
    QCOMPARE(keys, 0);
  }

  void AForeignPasteLeavesTextAndCaret() {
    FieldBench bench;
    bench.form().Champ.SetText("METZ");
    bench.form().Champ.SetCaret(2);
    QApplication::clipboard()->setText(QStringLiteral("Łódź"));
    QTest::keyClick(bench.field, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(bench.field->text(), QStringLiteral("METZ"));
    QCOMPARE(bench.field->cursorPosition(), 2);
  }

  void DeletionsAndUndoAreTold() {
    FieldBench bench;
    QTest::keyClicks(bench.field, QStringLiteral("F6ABC"));
    QTest::keyClick(bench.field, Qt::Key_Backspace);
    QCOMPARE(bench.form().Champ.Text(), "F6AB");
    QTest::keyClick(bench.field, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(bench.form().Champ.Text(), "F6ABC");
    QCOMPARE(bench.field->text(), QStringLiteral("F6ABC"));
  }

  void TheCaretStandsWhereTheLogicPutsIt() {
    FieldBench bench;
    TextField& field = bench.form().Champ;
    field.SetText("DFCF ");
    field.SetCaret(5);
    QCOMPARE(bench.field->cursorPosition(), 5);
    QVERIFY(!bench.field->hasSelectedText());
    field.SetCaret(1, 3);
    QCOMPARE(bench.field->selectionStart(), 1);
    QCOMPARE(bench.field->selectedText(), QStringLiteral("FCF"));
    QTest::keyClicks(bench.field, QStringLiteral("x"));
    QCOMPARE(field.Text(), "Dx ");
  }

  void TheUsersCaretIsTold() {
    FieldBench bench;
    bench.form().Champ.SetText("12345");
    bench.form().Champ.SetCaret(5);
    QTest::keyClick(bench.field, Qt::Key_Home);
    QTest::keyClicks(bench.field, QStringLiteral("0"));
    QCOMPARE(bench.form().Champ.Text(), "012345");
    QTest::keyClick(bench.field, Qt::Key_End, Qt::ShiftModifier);
    QTRY_COMPARE(bench.form().Champ.SelectionLength(), 5);
  }

  // A field whose text was set stands selected: the first character takes its place. Without the focus it shows none.
  void ASetTextGivesWayToTheFirstCharacter() {
    FieldBench bench;
    QVERIFY(!bench.other->hasSelectedText());
    bench.form().Autre.SetFocus();
    bench.other->setFocus(Qt::OtherFocusReason);
    bench.binding->Of(bench.form().Autre)->Focused();
    QCOMPARE(bench.other->selectedText(), QStringLiteral("59"));
    QTest::keyClicks(bench.other, QStringLiteral("5"));
    QCOMPARE(bench.form().Autre.Text(), "5");
  }

  void ADoubleClickIsTheLogics() {
    FieldBench bench;
    bench.form().Champ.SetText("F6ABC");
    bench.form().Champ.DblClick = [&] { bench.form().Champ.Clear(); };
    QTest::mouseDClick(bench.field, Qt::LeftButton);
    QVERIFY(bench.field->text().isEmpty());
    bench.form().Champ.SetText("F6ABC");
    QTest::keyClick(bench.field, Qt::Key_F2);
    QVERIFY(bench.field->text().isEmpty());
  }

  void ColouredFieldsKeepBlackText_data() {
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
  }
  void ColouredFieldsKeepBlackText() {
    QFETCH(bool, dark);
    const QPalette before = QApplication::palette();
    QApplication::setPalette(ThemePalette(dark));
    FieldBench bench;
    TextField& field = bench.form().Champ;
    field.SetColour(kSaisie);
    QCOMPARE(bench.field->palette().color(QPalette::Base), QColor(0xC0, 0xFF, 0xC0));
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
      QCOMPARE(bench.field->palette().color(group, QPalette::Text), QColor(Qt::black));
    field.SetColour(kFait);
    QCOMPARE(bench.field->palette().color(QPalette::Base), QColor(0xFF, 0xFF, 0xC0));
    field.SetColour(kFond_Fenetre);
    QCOMPARE(bench.field->palette().color(QPalette::Base), ThemePalette(dark).color(QPalette::Base));
    QCOMPARE(bench.field->palette().color(QPalette::Text), ThemePalette(dark).color(QPalette::Text));
    QApplication::setPalette(before);
  }

  void ADisabledFieldTakesNothingAndTellsNoFocus() {
    FieldBench bench;
    bench.form().Champ.SetFocus();
    bench.form().Champ.SetEnabled(false);
    QVERIFY(!bench.field->isEnabled());
    QCOMPARE(bench.gate.lost, 1);
    // Qt has moved the focus on; the logic's word stands.
    QCOMPARE(bench.programme.Focus(), &bench.form().Champ);
    QTest::keyClick(bench.other, Qt::Key_Tab);
    QCOMPARE(bench.programme.Focus(), &bench.form().Bouton);
  }

  void AnUnboundWidgetIsSilent() {
    FieldBench bench;
    bench.binding.reset();
    QTest::keyClicks(bench.field, QStringLiteral("x"));
    QVERIFY(bench.form().Champ.Text().empty());
    bench.form().Champ.SetText("y");
  }

  void PagesKeepTheirLineEnds() {
    ControlBench<PageForm> bench;
    auto* page = bench.Add(new QPlainTextEdit, "Page");
    bench.Bind();
    page->setFocus();
    TextField& field = bench.form().Page;
    QCOMPARE(page->toPlainText(), QStringLiteral("une\ndeux"));
    field.SetCaret(5);
    QCOMPARE(page->textCursor().position(), 4);
    QTest::keyClicks(page, QStringLiteral("x"));
    QTest::keyClick(page, Qt::Key_Return);
    QCOMPARE(field.Text(), "une\r\nx\r\ndeux");
    QTest::keyClick(page, Qt::Key_Backspace);
    QTest::keyClick(page, Qt::Key_Backspace);
    QCOMPARE(field.Text(), "une\r\ndeux");
    QCOMPARE(field.Caret(), 5);
    QApplication::clipboard()->setText(QStringLiteral("ф"));
    QTest::keyClick(page, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(page->toPlainText(), QStringLiteral("une\ndeux"));
    QCOMPARE(bench.gate.notices.size(), 1);
  }

  void PagesTakeBackWhatWasTyped() {
    ControlBench<PageForm> bench;
    auto* page = bench.Add(new QPlainTextEdit, "Page");
    bench.Bind();
    page->setFocus();
    TextField& field = bench.form().Page;
    // The fixed blank of a French text isn't an ordinary one.
    field.SetText("une\r\nvoici\xA0: deux");
    field.SetCaret(3);
    QTest::keyClicks(page, QStringLiteral("xy"));
    QCOMPARE(field.Text(), "unexy\r\nvoici\xA0: deux");
    QTest::keyClick(page, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(field.Text(), "une\r\nvoici\xA0: deux");
    // Selected from a menu, with no key and no click on the text.
    page->selectAll();
    QTRY_COMPARE(field.SelectionLength(), static_cast<int>(field.Text().size()));
  }
};

const InSuite<TextFieldTest> kTextFieldTest;

}  // namespace vorelio::tests

#include "text_field_test.moc"
