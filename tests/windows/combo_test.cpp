#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QWheelEvent>

#include "core/text.h"
#include "platform/qt/appearance.h"
#include "windows/windows_bench.h"

namespace vorelio::tests {

namespace {

class ComboForm : public TestForm {
 public:
  explicit ComboForm(Programme& programme) : TestForm(programme) {
    for (const char* band : {"50 Mhz", "144 Mhz", "432 Mhz"}) {
      Libre.AddItem(band);
      Choix.AddItem(band);
    }
    Libre.Click = [this] { clicks.push_back(Libre.ListIndex()); };
    Choix.Click = [this] { clicks.push_back(Choix.ListIndex()); };
    Libre.KeyPress = [this](int& key) { keys.push_back(key); };
    Choix.KeyPress = [this](int& key) { keys.push_back(key); };
  }

  ComboBox Libre{*this, "Libre", ComboBox::Kind::Editable, "144 MHz"};
  ComboBox Choix{*this, "Choix", ComboBox::Kind::Choice, "JN"};
  std::vector<int> clicks, keys;
};

struct ComboBench : ControlBench<ComboForm> {
  ComboBench() {
    open = Add(new QComboBox, "Libre");
    choice = Add(new QComboBox, "Choix");
    Bind();
  }

  void Pick(QComboBox* combo, int row) { Q_EMIT combo->activated(row); }

  QComboBox* open;
  QComboBox* choice;
};

}  // namespace

class ComboTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void ATextWithoutARowIsShown() {
    ComboBench bench;
    QCOMPARE(bench.open->currentText(), QStringLiteral("144 MHz"));
    QCOMPARE(bench.choice->currentIndex(), -1);
    QCOMPARE(bench.choice->placeholderText(), QStringLiteral("JN"));
    QCOMPARE(bench.choice->count(), 3);
  }

  void TheSameRowAgainIsAClick() {
    ComboBench bench;
    for (int i = 0; i < 3; ++i) bench.Pick(bench.choice, 1);
    QCOMPARE(bench.form().clicks, (std::vector<int>{1, 1, 1}));
    bench.gate.Refresh();
    QCOMPARE(bench.choice->currentText(), QStringLiteral("144 Mhz"));
  }

  void ArrowKeysAreClicks() {
    ComboBench bench;
    bench.open->setFocus();
    QTest::keyClick(bench.open, Qt::Key_Down);
    QTest::keyClick(bench.open, Qt::Key_Down);
    QTest::keyClick(bench.open, Qt::Key_Up);
    QCOMPARE(bench.form().clicks, (std::vector<int>{0, 1, 0}));
    QCOMPARE(bench.open->currentText(), QStringLiteral("50 Mhz"));
    QVERIFY(bench.form().keys.empty());
  }

  void TheWheelLeavesItAlone() {
    ComboBench bench;
    bench.choice->setFocus();
    QWheelEvent turn(QPointF(5, 5), bench.choice->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase,
                     false);
    QApplication::sendEvent(bench.choice, &turn);
    QVERIFY(bench.form().clicks.empty());
    QVERIFY(!turn.isAccepted());
  }

  void TypingReplacesAChosenTextAndJoinsATypedOne() {
    ComboBench bench;
    bench.form().Libre.SetListIndex(0);
    bench.gate.Refresh();
    bench.open->setFocus();
    QTest::keyClicks(bench.open, QStringLiteral("FT8"));
    QCOMPARE(bench.form().Libre.Text(), "FT8");
    QCOMPARE(bench.open->currentText(), QStringLiteral("FT8"));
    QCOMPARE(bench.form().keys, (std::vector<int>{'F', 'T', '8'}));
    QCOMPARE(bench.form().Libre.ListIndex(), -1);
  }

  void ACharacterGoesToTheCaret() {
    ComboBench bench;
    bench.open->setFocus();
    QTest::keyClicks(bench.open, QStringLiteral("PK31"));
    QTest::keyClick(bench.open, Qt::Key_Home);
    QTest::keyClick(bench.open, Qt::Key_Right);
    QTest::keyClicks(bench.open, QStringLiteral("S"));
    QCOMPARE(bench.form().Libre.Text(), "PSK31");
    QTest::keyClick(bench.open, Qt::Key_Delete);
    QCOMPARE(bench.form().Libre.Text(), "PS31");
    QCOMPARE(bench.open->currentText(), QStringLiteral("PS31"));
  }

  void EnterIsAKeyAndOpensNothing() {
    ComboBench bench;
    for (QComboBox* combo : {bench.open, bench.choice}) {
      combo->setFocus();
      QTest::keyClick(combo, Qt::Key_Return);
      QVERIFY(!combo->view()->isVisible());
    }
    QCOMPARE(bench.form().keys, (std::vector<int>{13, 13}));
    QCOMPARE(bench.open->count(), 3);
  }

  void LettersFindARowOfAChoice() {
    ComboBench bench;
    bench.choice->setFocus();
    QTest::keyClicks(bench.choice, QStringLiteral("43"));
    QCOMPARE(bench.form().Choix.ListIndex(), 2);
    QCOMPARE(bench.form().clicks, (std::vector<int>{2, 2}));
  }

  void AForeignCharacterIsRefused() {
    ComboBench bench;
    bench.open->setFocus();
    QTest::sendKeyEvent(QTest::Click, bench.open, Qt::Key_unknown, QStringLiteral("ж"), {});
    QCOMPARE(bench.open->currentText(), QStringLiteral("144 MHz"));
    QCOMPARE(bench.gate.notices.size(), 1);
  }

  void ColouredBoxesKeepBlackText() {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(ThemePalette(true));
    ComboBench bench;
    bench.form().Libre.SetColour(kFait);
    const QPalette palette = bench.open->lineEdit()->palette();
    QCOMPARE(bench.open->palette().color(QPalette::Base), QColor(0xFF, 0xFF, 0xC0));
    QCOMPARE(palette.color(QPalette::Text), QColor(Qt::black));
    QApplication::setPalette(before);
  }
};

const InSuite<ComboTest> kComboTest;

}  // namespace vorelio::tests

#include "combo_test.moc"
