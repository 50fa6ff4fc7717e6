#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QRadioButton>

#include "core/text.h"
#include "platform/qt/caption_views.h"
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
    button = Add(new QPushButton(QStringLiteral("QSO Sui&vant")), "Bouton");
    one = Add(new QRadioButton(QStringLiteral("Dpt")), "Un");
    two = Add(new QRadioButton, "Deux");
    tick = Add(new QCheckBox, "Coche");
    legend = Add(new CaptionLabel, "Legende");
    legend->setProperty("rogne", true);
    frame = Add(new QGroupBox, "Cadre");
    Bind();
  }

  QPushButton* button;
  QRadioButton *one, *two;
  QCheckBox* tick;
  CaptionLabel* legend;
  QGroupBox* frame;
};

class MenuForm : public TestForm {
 public:
  using TestForm::TestForm;
  MenuItem Oui{*this, "Oui", "Oui", true};
  MenuItem Non{*this, "Non", "Non & jamais"};
  MenuItem Seule{*this, "Seule", "Seule"};
};

}  // namespace

class CaptionTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void MnemonicsSurvive() {
    CaptionBench bench;
    QCOMPARE(bench.button->text(), QStringLiteral("QSO Sui&vant"));
    bench.form().Bouton.SetCaption("Valider & fin");
    QCOMPARE(bench.button->text(), QStringLiteral("Valider && fin"));
    bench.form().Bouton.SetCaption("QSO Suivant");
    QCOMPARE(bench.button->text(), QStringLiteral("QSO Sui&vant"));
  }

  void CaptionsComeFromTheModel() {
    CaptionBench bench;
    QCOMPARE(bench.two->text(), QStringLiteral("Carré locator"));
    QCOMPARE(bench.frame->title(), QStringLiteral("12 Départements sur 144 Mhz"));
    QCOMPARE(bench.legend->text(), QStringLiteral("Dpt Contacté"));
    bench.legend->setProperty("rogne", false);
    bench.form().Legende.SetCaption("  <b>QSL</b>");
    QCOMPARE(bench.legend->text(), QStringLiteral("  <b>QSL</b>"));
    QCOMPARE(bench.legend->textFormat(), Qt::PlainText);
    bench.form().Legende.SetColour(0x00FFFF);
    QCOMPARE(bench.legend->palette().color(QPalette::Window), QColor(Qt::yellow));
    QCOMPARE(bench.legend->palette().color(QPalette::WindowText), QColor(Qt::black));
  }

  void ARefusedClickLeavesTheTickAsItWas() {
    CaptionBench bench;
    bench.form().Hide();
    bench.tick->click();
    QVERIFY(!bench.tick->isChecked());
    bench.form().Show();
    bench.tick->click();
    QVERIFY(bench.tick->isChecked() && bench.form().Coche.Checked());
    QCOMPARE(bench.form().clicks, "C");
  }

  void EnterPressesAButton() {
    CaptionBench bench;
    bench.button->setFocus();
    QTest::keyClick(bench.button, Qt::Key_Return);
    QTest::keyClick(bench.button, Qt::Key_Space);
    QCOMPARE(bench.form().clicks, "BB");
  }

  void AMenuOfHiddenEntriesIsHidden() {
    ControlBench<MenuForm> bench;
    auto* main = new QMainWindow(&bench.window);
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
    bench.binding = std::make_unique<Binding>(bench.form(), *main, bench.gate);
    QVERIFY(yes->isChecked() && !no->isChecked());
    QCOMPARE(yes->text(), QStringLiteral("&Oui"));
    QCOMPARE(no->text(), QStringLiteral("Non && jamais"));
    bench.form().Oui.SetVisible(false);
    QVERIFY(inner->menuAction()->isVisible());
    bench.form().Non.SetVisible(false);
    QVERIFY(!inner->menuAction()->isVisible() && menu->menuAction()->isVisible());
    bench.form().Seule.SetVisible(false);
    QVERIFY(!menu->menuAction()->isVisible());
    bench.form().Non.SetVisible(true);
    QVERIFY(inner->menuAction()->isVisible() && menu->menuAction()->isVisible());
    // Qt ticks an entry by itself; the model hasn't.
    yes->trigger();
    QVERIFY(yes->isChecked());
    QVERIFY(!lone->isVisible());
  }
};

const InSuite<CaptionTest> kCaptionTest;

}  // namespace vorelio::tests

#include "caption_test.moc"
