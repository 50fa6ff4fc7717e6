#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QRadioButton>

#include "core/text.h"
#include "qt/caption_views.h"
#include "windows/windows_bench.h"

namespace vorelio::tests {
namespace {

class CaptionForm : public TestForm {
 public:
  explicit CaptionForm(Programme& programme) : TestForm(programme) {
    Un.Click = [this] { clicks += "1"; };
    Deux.Click = [this] { clicks += "2"; };
    Bouton.Click = [this] { clicks += "B"; };
    Coche.Click = [this] { clicks += "C"; };
  }

  Button Bouton{*this, "Bouton", "QSO Suivant"};
  OptionButton Un{*this, "Un", "Dpt", "groupe", true};
  OptionButton Deux{*this, "Deux", "Carré locator"_t, "groupe"};
  CheckBox Coche{*this, "Coche", "QSL envoyée"_t};
  Label Legende{*this, "Legende", "    Dpt Contacté"_t};
  Frame Cadre{*this, "Cadre", " 12 Départements sur 144 Mhz"_t};
  std::string clicks;
};

struct CaptionBench : ControlBench<CaptionForm> {
  CaptionBench() {
    Add(new QRadioButton, "Un");
    legend->setProperty("rogne", true);
    Bind();
  }

  QPushButton* button = Add(new QPushButton(QStringLiteral("QSO Sui&vant")), "Bouton");
  QRadioButton* two = Add(new QRadioButton, "Deux");
  QCheckBox* tick = Add(new QCheckBox, "Coche");
  CaptionLabel* legend = Add(new CaptionLabel, "Legende");
  QGroupBox* frame = Add(new QGroupBox, "Cadre");
};

class MenuForm : public TestForm {
 public:
  using TestForm::TestForm;
  MenuItem Oui{*this, "Oui", "Oui", true};
  MenuItem Non{*this, "Non", "Non & jamais"};
  MenuItem Seule{*this, "Seule", "Seule"};
};

using CaptionTest = On<CaptionBench>;
using MenuTest = On<ControlBench<MenuForm>>;

TEST_F(CaptionTest, MnemonicsSurvive) {
  EXPECT_EQ(button->text(), QStringLiteral("QSO Sui&vant"));
  form().Bouton.SetCaption("Valider & fin");
  EXPECT_EQ(button->text(), QStringLiteral("Valider && fin"));
  form().Bouton.SetCaption("QSO Suivant");
  EXPECT_EQ(button->text(), QStringLiteral("QSO Sui&vant"));
}

TEST_F(CaptionTest, CaptionsComeFromTheModel) {
  EXPECT_EQ(two->text(), QStringLiteral("Carré locator"));
  EXPECT_EQ(frame->title(), QStringLiteral("12 Départements sur 144 Mhz"));
  EXPECT_EQ(legend->text(), QStringLiteral("Dpt Contacté"));
  legend->setProperty("rogne", false);
  form().Legende.SetCaption("  <b>QSL</b>");
  EXPECT_EQ(legend->text(), QStringLiteral("  <b>QSL</b>"));
  EXPECT_EQ(legend->textFormat(), Qt::PlainText);
  form().Legende.SetColour(0x00FFFF);
  EXPECT_EQ(legend->palette().color(QPalette::Window), QColor(Qt::yellow));
  EXPECT_EQ(legend->palette().color(QPalette::WindowText), QColor(Qt::black));
}

TEST_F(CaptionTest, ARefusedClickLeavesTheTickAsItWas) {
  form().Hide();
  tick->click();
  EXPECT_FALSE(tick->isChecked());
  form().Show();
  tick->click();
  EXPECT_TRUE(tick->isChecked() && form().Coche.Checked());
  EXPECT_EQ(form().clicks, "C");
}

TEST_F(CaptionTest, EnterPressesAButton) {
  button->setFocus();
  QTest::keyClick(button, Qt::Key_Return);
  QTest::keyClick(button, Qt::Key_Space);
  EXPECT_EQ(form().clicks, "BB");
}

TEST_F(MenuTest, AMenuOfHiddenEntriesIsHidden) {
  auto* main = new QMainWindow(&window);
  QMenu* menu = main->menuBar()->addMenu(QStringLiteral("Options"));
  QMenu* inner = menu->addMenu(QStringLiteral("Date"));
  const auto add = [main](QMenu* to, const char* name, const char* words) {
    auto* action = new QAction(QString::fromLatin1(words), main);
    action->setObjectName(QString::fromLatin1(name));
    to->addAction(action);
    return action;
  };
  QAction* yes = add(inner, "Oui", "&Oui");
  QAction* no = add(inner, "Non", "&Non");
  QAction* lone = add(menu, "Seule", "&Seule");
  binding = std::make_unique<Binding>(form(), *main, gate);
  EXPECT_TRUE(yes->isChecked() && !no->isChecked());
  EXPECT_EQ(yes->text(), QStringLiteral("&Oui"));
  EXPECT_EQ(no->text(), QStringLiteral("Non && jamais"));
  form().Oui.SetVisible(false);
  EXPECT_TRUE(inner->menuAction()->isVisible());
  form().Non.SetVisible(false);
  EXPECT_TRUE(!inner->menuAction()->isVisible() && menu->menuAction()->isVisible());
  form().Seule.SetVisible(false);
  EXPECT_FALSE(menu->menuAction()->isVisible());
  form().Non.SetVisible(true);
  EXPECT_TRUE(inner->menuAction()->isVisible() && menu->menuAction()->isVisible());
  // Qt ticks an entry by itself; the model hasn't.
  yes->trigger();
  EXPECT_TRUE(yes->isChecked());
  EXPECT_FALSE(lone->isVisible());
}

}  // namespace
}  // namespace vorelio::tests
