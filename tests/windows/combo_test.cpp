#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QWheelEvent>

#include "core/text.h"
#include "qt/appearance.h"
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
  ComboBench() { Bind(); }

  void Pick(QComboBox* combo, int row) { Q_EMIT combo->activated(row); }

  QComboBox* open = Add(new QComboBox, "Libre");
  QComboBox* choice = Add(new QComboBox, "Choix");
};

using ComboTest = On<ComboBench>;

TEST_F(ComboTest, ATextWithoutARowIsShown) {
  EXPECT_EQ(open->currentText(), QStringLiteral("144 MHz"));
  EXPECT_EQ(choice->currentIndex(), -1);
  EXPECT_EQ(choice->placeholderText(), QStringLiteral("JN"));
  EXPECT_EQ(choice->count(), 3);
}

TEST_F(ComboTest, TheSameRowAgainIsAClick) {
  for (int i = 0; i < 3; ++i) Pick(choice, 1);
  EXPECT_EQ(form().clicks, (std::vector<int>{1, 1, 1}));
  gate.Refresh();
  EXPECT_EQ(choice->currentText(), QStringLiteral("144 Mhz"));
}

TEST_F(ComboTest, ArrowKeysAreClicks) {
  open->setFocus();
  QTest::keyClick(open, Qt::Key_Down);
  QTest::keyClick(open, Qt::Key_Down);
  QTest::keyClick(open, Qt::Key_Up);
  EXPECT_EQ(form().clicks, (std::vector<int>{0, 1, 0}));
  EXPECT_EQ(open->currentText(), QStringLiteral("50 Mhz"));
  EXPECT_TRUE(form().keys.empty());
}

TEST_F(ComboTest, TheWheelLeavesItAlone) {
  choice->setFocus();
  QWheelEvent turn(QPointF(5, 5), choice->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
  QApplication::sendEvent(choice, &turn);
  EXPECT_TRUE(form().clicks.empty());
  EXPECT_FALSE(turn.isAccepted());
}

TEST_F(ComboTest, TypingReplacesAChosenTextAndJoinsATypedOne) {
  form().Libre.SetListIndex(0);
  gate.Refresh();
  open->setFocus();
  QTest::keyClicks(open, QStringLiteral("FT8"));
  EXPECT_EQ(form().Libre.Text(), "FT8");
  EXPECT_EQ(open->currentText(), QStringLiteral("FT8"));
  EXPECT_EQ(form().keys, (std::vector<int>{'F', 'T', '8'}));
  EXPECT_EQ(form().Libre.ListIndex(), -1);
}

TEST_F(ComboTest, ACharacterGoesToTheCaret) {
  open->setFocus();
  QTest::keyClicks(open, QStringLiteral("PK31"));
  QTest::keyClick(open, Qt::Key_Home);
  QTest::keyClick(open, Qt::Key_Right);
  QTest::keyClicks(open, QStringLiteral("S"));
  EXPECT_EQ(form().Libre.Text(), "PSK31");
  QTest::keyClick(open, Qt::Key_Delete);
  EXPECT_EQ(form().Libre.Text(), "PS31");
  EXPECT_EQ(open->currentText(), QStringLiteral("PS31"));
}

TEST_F(ComboTest, EnterIsAKeyAndOpensNothing) {
  for (QComboBox* combo : {open, choice}) {
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Return);
    EXPECT_FALSE(combo->view()->isVisible());
  }
  EXPECT_EQ(form().keys, (std::vector<int>{13, 13}));
  EXPECT_EQ(open->count(), 3);
}

TEST_F(ComboTest, LettersFindARowOfAChoice) {
  choice->setFocus();
  QTest::keyClicks(choice, QStringLiteral("43"));
  EXPECT_EQ(form().Choix.ListIndex(), 2);
  EXPECT_EQ(form().clicks, (std::vector<int>{2, 2}));
}

TEST_F(ComboTest, AForeignCharacterIsRefused) {
  open->setFocus();
  QTest::sendKeyEvent(QTest::Click, open, Qt::Key_unknown, QStringLiteral("ж"), {});
  EXPECT_EQ(open->currentText(), QStringLiteral("144 MHz"));
  EXPECT_EQ(gate.notices.size(), 1);
}

TEST_F(ComboTest, ColouredBoxesKeepBlackText) {
  const QPalette before = QApplication::palette();
  QApplication::setPalette(ThemePalette(true));
  form().Libre.SetColour(kFait);
  const QPalette palette = open->lineEdit()->palette();
  EXPECT_EQ(open->palette().color(QPalette::Base), QColor(0xFF, 0xFF, 0xC0));
  EXPECT_EQ(palette.color(QPalette::Text), QColor(Qt::black));
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace vorelio::tests
