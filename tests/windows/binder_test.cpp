#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <map>
#include <set>

#include "cluster/cluster_settings_windows.h"
#include "cluster/cluster_window.h"
#include "cluster/memory_window.h"
#include "core/error_window.h"
#include "core/loading_window.h"
#include "core/station_form.h"
#include "core/text.h"
#include "entry/ddfm.h"
#include "exchange/award_export_window.h"
#include "exchange/export_adif_window.h"
#include "maintenance/add_activity_window.h"
#include "maintenance/backup_settings_window.h"
#include "maintenance/notes_window.h"
#include "maintenance/restore_activities_window.h"
#include "platform/qt/qt_text.h"
#include "printing/labels_window.h"
#include "printing/print_activity_window.h"
#include "printing/print_log_window.h"
#include "printing/select_qso_window.h"
#include "qsl/multi_qsl_window.h"
#include "qsl/qsl_window.h"
#include "tallies/add_prefix_window.h"
#include "tallies/directory_window.h"
#include "tallies/prefix_statistics_window.h"
#include "tallies/progress_window.h"
#include "views/activation_statistics_window.h"
#include "views/activity_map.h"
#include "views/department_map.h"
#include "views/department_window.h"
#include "views/distance_statistics_window.h"
#include "views/locator_maps.h"
#include "views/qso_statistics_window.h"
#include "views/search_window.h"
#include "windows/windows_bench.h"

namespace vorelio::tests {

namespace {

using Maker = std::unique_ptr<Form> (*)(Programme&);

template <typename F>
std::unique_ptr<Form> Make(Programme& programme) {
  return std::make_unique<F>(programme);
}

/// Every window of the program. A new one that isn't added here fails the test on the .ui files.
constexpr Maker kForms[] = {Make<DDFM>,
                            Make<Chargement>,
                            Make<Station>,
                            Make<Gestion_Erreur>,
                            Make<Ajout_Prefixe>,
                            Make<Progression>,
                            Make<Statistique_Prefixe>,
                            Make<Statistique_QSO>,
                            Make<Statistiques>,
                            Make<Statistique_DFCF>,
                            Make<Recherche_Indicatif>,
                            Make<Print_Log>,
                            Make<Print_Activite>,
                            Make<Affiche_Dpt>,
                            Make<Fichier_Nomenclature>,
                            Make<Ajout_Activite>,
                            Make<Delta_QSO>,
                            Make<Exporter_QSO>,
                            Make<Export_Adif>,
                            Make<Restoration_Activite>,
                            Make<QSL>,
                            Make<Multi_QSL>,
                            Make<Select_QSO>,
                            Make<Etiquettes>,
                            Make<Notes>,
                            Make<Cluster>,
                            Make<Memoire_CL>,
                            Make<Adresse_Cluster>,
                            Make<Ports_Serie>,
                            Make<Carte>,
                            Make<Carte_Acti>,
                            Make<Select_Locator>,
                            Make<Carte_IM>,
                            Make<Carte_IN>,
                            Make<Carte_IO>,
                            Make<Carte_JM>,
                            Make<Carte_JN>,
                            Make<Carte_JO>,
                            Make<Carte_KM>,
                            Make<Carte_KN>,
                            Make<Carte_KO>};

/// A form with its window, without its being loaded.
struct Bound {
  explicit Bound(Maker make) : form(make(bench.programme)) { bench.windows.Created(*form); }
  ~Bound() { bench.windows.Destroyed(*form); }

  QWidget& Window() { return *bench.windows.WindowOf(*form); }

  WindowsBench bench;
  std::unique_ptr<Form> form;
};

QString Mnemonic(const QString& text) {
  for (qsizetype i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != u'&') continue;
    if (text[i + 1] != u'&') return text.mid(i + 1, 1).toUpper();
    ++i;
  }
  return {};
}

class ArrayForm : public TestForm {
 public:
  using TestForm::TestForm;
  ControlArray<TextField> Dpt{*this, "Dpt", 0, 20};
  ControlArray<OptionButton> Option1{*this, "Option1", 0, 2, "option", "Option1"};
  TextField Date_A{*this, "Date_A"};
  Button Orphelin{*this, "Orphelin", "Orphelin"};
};

}  // namespace

class BinderTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void EveryWindowFitsItsForm_data() { Forms(); }
  void EveryWindowFitsItsForm() {
    QFETCH(int, number);
    Bound bound(kForms[number]);
    QStringList problems;
    for (const std::string& problem : bound.bench.windows.Problems(*bound.form)) problems << ToQt(problem);
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
  }

  void EveryUiFileHasItsForm() {
    UseResources();
    QStringList files = QDir(QStringLiteral(":/ui")).entryList(), forms;
    for (const Maker make : kForms) {
      const Bound bound(make);
      forms << ToQt(bound.form->Name()).toLower() + QStringLiteral(".ui");
    }
    files.sort();
    forms.sort();
    QCOMPARE(files, forms);
  }

  void EveryControlCanBeSpoken_data() { Forms(); }
  void EveryControlCanBeSpoken() {
    QFETCH(int, number);
    Bound bound(kForms[number]);
    for (const Control* control : bound.form->Controls()) {
      const QWidget* widget = bound.bench.windows.WidgetOf(*control);
      if (!widget || widget->inherits("QLabel")) continue;
      QVERIFY2(!widget->accessibleName().isEmpty(), control->Name().c_str());
      QVERIFY2(!widget->accessibleName().contains(u'&'), control->Name().c_str());
      // A control's bare name is no name for a person.
      const bool captioned = dynamic_cast<const Captioned*>(control);
      if (!captioned && control->Name().find('_') != std::string::npos)
        QVERIFY2(widget->accessibleName() != ToQt(control->Name()).replace(u'_', u' '), control->Name().c_str());
    }
  }

  void MnemonicsDoNotClash_data() { Forms(); }
  void MnemonicsDoNotClash() {
    QFETCH(int, number);
    Bound bound(kForms[number]);
    std::map<QString, QString> taken;
    const auto take = [&](const QString& text) {
      const QString letter = Mnemonic(text);
      if (letter.isEmpty()) return;
      QVERIFY2(!taken.contains(letter), qPrintable(text + QStringLiteral(" / ") + taken[letter]));
      taken[letter] = text;
    };
    for (const auto* label : bound.Window().findChildren<QLabel*>())
      if (label->buddy()) take(label->text());
    for (const auto* button : bound.Window().findChildren<QAbstractButton*>()) take(button->text());
    if (const auto* main = qobject_cast<QMainWindow*>(&bound.Window())) {
      for (const auto* entry : main->menuBar()->actions()) take(entry->text());
      for (const QMenu* menu : main->findChildren<QMenu*>()) {
        std::set<QString> within;
        for (const QAction* entry : menu->actions())
          if (!Mnemonic(entry->text()).isEmpty())
            QVERIFY2(within.insert(Mnemonic(entry->text())).second, qPrintable(entry->text()));
      }
    }
  }

  void TheTabChainIsTheEntryChain() {
    Bound bound(Make<DDFM>);
    auto& main = static_cast<DDFM&>(*bound.form);
    const Control* chain[] = {
        &main.Bande_A,    &main.Indicatif_A, &main.Depart_A,    &main.Locator_A, &main.Mode_A,     &main.Activ_A,
        &main.Date_A,     &main.Debut_A,     &main.Fin_A,       &main.RSTE_A,    &main.RSTR_A,     &main.Prenom_A,
        &main.QTH_A,      &main.Remarques_A, &main.Enregistrer, &main.Annuler,   &main.Editer,     &main.Effacer,
        &main.Recherche,  &main.Gestion_QSL, &main.Exporter,    &main.Command1,  &main.Option1(1), &main.Option1(0),
        &main.Bande_DDFM, &main.Carre_DDFM,  &main.Liste_QSO};
    QStringList expected, found;
    for (const Control* control : chain) expected << bound.bench.windows.WidgetOf(*control)->objectName();
    const QWidget* first = bound.bench.windows.WidgetOf(main.Bande_A);
    const QWidget* widget = first;
    do {
      if (expected.contains(widget->objectName())) found << widget->objectName();
      if (widget->objectName().startsWith(QLatin1String("Dpt("))) QVERIFY(!(widget->focusPolicy() & Qt::TabFocus));
      widget = widget->nextInFocusChain();
    } while (widget != first);
    QCOMPARE(found, expected);
  }

  void ArraysAreFilledIntoTheirHolders() {
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
    QCOMPARE(bench.binding->WidgetOf(form.Option1(1)), second);
    QCOMPARE(bench.binding->WidgetOf(form.Date_A)->accessibleName(), QStringLiteral("Date"));
    auto* cell = bench.binding->WidgetOf(form.Dpt(13));
    QCOMPARE(cell->accessibleName(), QStringLiteral("Case 13"));
    // The third cell of the second row, next to it and above it.
    bench.programme.Recoit([&] { form.Dpt(12).SetText("12"); });
    cell->setFocus();
    QTest::keyClick(cell, Qt::Key_Left);
    QCOMPARE(bench.programme.Focus(), &form.Dpt(12));
    QTest::keyClick(bench.binding->WidgetOf(form.Dpt(12)), Qt::Key_Up);
    QCOMPARE(bench.programme.Focus(), &form.Dpt(2));
    QCOMPARE(bench.binding->Problems(),
             (std::vector<std::string>{"Orphelin: no widget", "Inconnu: no control behind this QComboBox",
                                       "Label99: no control behind this QLabel"}));
  }

  void ATableNamesItsCellsByItsTitles() {
    Bound bound(Make<Statistiques>);
    auto& form = static_cast<Statistiques&>(*bound.form);
    auto* far = bound.bench.windows.WidgetOf(form.Text11(88));
    auto* near = qobject_cast<QLineEdit*>(bound.bench.windows.WidgetOf(form.Text11(13)));
    QCOMPARE(far->accessibleName(), QStringLiteral("50 MHz, Sup a 1000 Km"));
    QCOMPARE(near->accessibleName(), QStringLiteral("432 MHz, 100 a 200 Km"));
    QVERIFY(near->alignment().testFlag(Qt::AlignRight));
    // To the left of the first stand the titles.
    auto* first = bound.bench.windows.WidgetOf(form.Text11(78));
    bound.bench.programme.Recoit([&] { form.Text11(78).SetFocus(); });
    QTest::keyClick(first, Qt::Key_Left);
    QCOMPARE(bound.bench.programme.Focus(), &form.Text11(78));
  }

  void AWidgetOfAnotherKindIsAProblem() {
    ControlBench<ArrayForm> bench;
    bench.Add(new QComboBox, "Date_A");
    bench.Bind();
    const auto& problems = bench.binding->Problems();
    QVERIFY(std::find(problems.begin(), problems.end(), "Date_A: the widget is a QComboBox") != problems.end());
  }

 private:
  static void Forms() {
    QTest::addColumn<int>("number");
    WindowsBench bench;
    for (int i = 0; i < static_cast<int>(std::size(kForms)); ++i)
      QTest::newRow(kForms[i](bench.programme)->Name().c_str()) << i;
  }
};

const InSuite<BinderTest> kBinderTest;

}  // namespace vorelio::tests

#include "binder_test.moc"
