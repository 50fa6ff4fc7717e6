#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

#include "cluster/cluster_settings_windows.h"
#include "cluster/cluster_window.h"
#include "cluster/memory_window.h"
#include "core/bands.h"
#include "core/log_line.h"
#include "core/text.h"
#include "entry/ddfm.h"
#include "exchange/adif3_writer.h"
#include "exchange/award_export_window.h"
#include "exchange/export_adif_window.h"
#include "exchange/import_journal_window.h"
#include "maintenance/add_activity_window.h"
#include "maintenance/backup_settings_window.h"
#include "maintenance/notes_window.h"
#include "maintenance/progress_window.h"
#include "maintenance/restore_activities_window.h"
#include "maps/activity_map.h"
#include "maps/department_map.h"
#include "maps/locator_maps.h"
#include "maps/tally_painting.h"
#include "printing/labels_window.h"
#include "printing/print_activity_window.h"
#include "printing/print_log_window.h"
#include "printing/select_qso_window.h"
#include "qsl/multi_qsl_window.h"
#include "qsl/qsl_window.h"
#include "qt/application.h"
#include "qt/qt_text.h"
#include "search/department_window.h"
#include "search/search_window.h"
#include "stations/error_window.h"
#include "stations/loading_window.h"
#include "stations/station_form.h"
#include "statistics/activation_statistics_window.h"
#include "statistics/distance_statistics_window.h"
#include "statistics/prefix_statistics_window.h"
#include "statistics/qso_statistics_window.h"
#include "tallies/add_prefix_window.h"
#include "tallies/department_tally.h"
#include "tallies/directory_window.h"
#include "tallies/locator_tally.h"
#include "tallies/prefix_tally.h"

/// Saves a picture of every window, light and dark, with a made-up station and its log.
using namespace vorelio;

namespace {

constexpr const char* kStation = "F9QZX";
constexpr int kContacts = 240;

/// Where the pictures go, and how the next one is called.
struct Album {
  QDir folder;
  QString theme;

  void Save(QWidget& window, const QString& name) const {
    const QString file = folder.filePath(name + u'-' + theme + QStringLiteral(".png"));
    if (!window.grab().save(file)) std::fprintf(stderr, "%s: impossible d'écrire\n", qUtf8Printable(file));
  }
};

/// Takes a picture of each box instead of waiting for its answer.
class PicturedMessages : public QtMessages {
 public:
  PicturedMessages(QtWindows& windows, const Album& album) : QtMessages(windows), album_(album) {}

 protected:
  int Execute(QMessageBox& box) override {
    box.show();
    QCoreApplication::processEvents();
    album_.Save(box, QStringLiteral("boite-%1").arg(++count_));
    return box.standardButton(box.defaultButton());
  }

 private:
  const Album& album_;
  int count_ = 0;
};

// --- The station ----------------------------------------------------------------------------------------------------

template <std::size_t N>
std::string Turn(const std::array<const char*, N>& words, int n) {
  return De_Utf8(words[static_cast<std::size_t>(n) % N]);
}

std::string Contact(int n) {
  static constexpr std::array kCalls = {"F9AAA", "F9BCD/P", "DL9ZZZ", "F9EFG", "I9QQQ", "F9HIJ", "EA9XXX", "TK9KLM"};
  static constexpr std::array kDepartments = {"57", "06", "", "33", "", "75", "", "2a"};
  static constexpr std::array kLocators = {"JN39BC", "JN33RQ", "JO31AA", "IN94PT",
                                           "JN45OL", "JN18EU", "IN80BK", "JN41JX"};
  static constexpr std::array kNames = {"Hélène", "René", "Jürgen", "Marc", "Paolo", "Anaïs", "Íñigo", "Ange"};
  static constexpr std::array kPlaces = {"METZ", "NICE", "ESSEN", "DFCF 33012", "MILANO", "PARIS", "MADRID", "AJACCIO"};
  static constexpr std::array kReports = {"59", "57", "599", "55"};
  Champs_QSO qso;
  qso.Date_A = Deux_Chiffres(1 + n / 12 % 28) + "/" + Deux_Chiffres(3 + n / 120 % 9) + "/24";
  qso.Indicatif_A = Turn(kCalls, n);
  qso.Debut_A = Deux_Chiffres(8 + n % 12) + ":" + Deux_Chiffres(n * 7 % 50);
  qso.Fin_A = Deux_Chiffres(8 + n % 12) + ":" + Deux_Chiffres(n * 7 % 50 + 4);
  qso.Depart_A = Turn(kDepartments, n);
  qso.Bande_A = kBandes[static_cast<std::size_t>(10 + n % 3)];
  qso.Locator_A = Turn(kLocators, n);
  qso.Mode_A = kModes[static_cast<std::size_t>(n % 2)];
  qso.RSTE_A = Turn(kReports, n);
  qso.RSTR_A = Turn(kReports, n + 1);
  qso.QTH_A = Turn(kPlaces, n);
  qso.Prenom_A = Turn(kNames, n);
  qso.Distance_A = std::to_string(120 + n * 37 % 900);
  qso.Azimut_A = std::to_string(n * 53 % 360);
  qso.Activ_A = n % 8 == 3 ? "1" : "0";
  qso.Remarques_A = n % 8 == 3 ? "C. DE LA TOUR" : "";
  return Construit_Ligne(qso);
}

void MakeStation(Application& application, const ProgramFolder& folder) {
  const auto file = [&](const char* suffix) { return folder.text + "/" + kStation + suffix; };
  const auto setting = [&](const std::string& key, const std::string& value) {
    application.settings.Write("DDFM", "Setup", key, value);
    application.settings.Write("DDFM", std::string("Setup ") + kStation, key, value);
  };
  for (const char* suffix : {"_Departement.txt", "_Locator.txt", "_Prefixe.txt"})
    application.disk.Copy(folder.text + "/FXXXX" + suffix, file(suffix));
  std::string log, directory;
  for (int n = 0; n < kContacts; ++n) log += Contact(n).append(kFin_De_Ligne);
  application.disk.WriteAll(file(".log"), log);
  for (const char* line : {"F9AAA      57 JN39BC", "F9EFG      33 IN94PT", "F9HIJ      75 JN18EU"})
    directory += std::string(line) + "\r\n";
  application.disk.WriteAll(folder.text + "/Nomenclature.txt", directory);
  application.disk.WriteAll(file("_Activite.bak"), "QSO\r\nDFCF\r\nDMF\r\nDIFI\r\nDIFM\r\n");
  setting("Indicatif Station", kStation);
  setting("Locator Station", "JN33BB");
  setting("Nombre Indicatif", "2");
  setting("Indicatif1", "F9QZX        JN33BB");
  setting("Indicatif2", "F9QZX_P      JN23WE");
  setting("bande Utilisee", "10");
  setting("NB Activite", "5");
  setting("Chemin Sauvegarde", file(""));
  setting("Numero Sauvegarde", std::to_string(kContacts));
  const char* activities[] = {"QSO", "DFCF", "DMF", "DIFI", "DIFM"};
  for (int n = 0; n < 5; ++n) setting("Activite" + std::to_string(n), activities[n]);
}

void FillTallies(Programme& programme) {
  for (int n = 1; n < 96; ++n)
    if (n * 7 % 5 < 3)
      Sous_Programmes::Maj_Departement(programme, Deux_Chiffres(n), std::to_string(1 + n * 11 % 4), "144 Mhz");
  for (int n = 0; n < 100; ++n)
    if (n * 13 % 7 < 3)
      Sous_Programmes::Maj_Locator(programme, "JN" + Deux_Chiffres(n), std::to_string(1 + n * 5 % 4), "144 Mhz");
  for (const char* call : {"F9AAA", "DL9ZZZ", "I9QQQ", "EA9XXX", "TK9KLM", "G9AAA", "HB9AAA"}) {
    std::string code, country, prefix;
    Sous_Programmes::Maj_Prefixe(programme, call, "7.0 Mhz", code, country, prefix);
  }
}

// --- The pictures ---------------------------------------------------------------------------------------------------

class Tour {
 public:
  Tour(Application& application, Programme& programme, const Album& album)
      : windows_(application.windows), programme_(programme), album_(album) {}

  void TakeAll(QSize size) {
    Do([this] { programme_.Fenetre<DDFM>(); });
    DDFM& main = programme_.Fenetre<DDFM>();
    FillTallies(programme_);
    Do([&] {
      main.Peint_Departements();
      main.Timer1.Fire();
    });
    if (!size.isEmpty()) windows_.WindowOf(main)->resize(size);
    Take(main, QStringLiteral("DDFM-repos"));
    TypeContact(main);
    Take(main, QStringLiteral("DDFM-saisie"));

    TakeWindow<Station>();
    TakeWindow<Ajout_Prefixe>();
    TakeWindow<Statistique_Prefixe>();
    TakeWindow<Statistique_QSO>();
    TakeWindow<Statistiques>();
    Do([&] { programme_.Fenetre<Statistique_DFCF>().Show(); });
    Do([&] { programme_.Fenetre<Statistique_DFCF>().Bande_E.SetListIndex(1); });
    Do([&] { programme_.Fenetre<Statistique_DFCF>().Affiche_Contact.UserClick(); });
    TakeWindow<Statistique_DFCF>();
    Do([&] { programme_.Fenetre<Recherche_Indicatif>().Indica.SetText("F9"); });
    Do([&] { programme_.Fenetre<Recherche_Indicatif>().Indica.UserKey(kEntree); });
    TakeWindow<Recherche_Indicatif>();
    Do([&] { programme_.Fenetre<Affiche_Dpt>().Montre_Departement(57); });
    TakeWindow<Affiche_Dpt>();
    TakeWindow<Print_Log>();
    TakeWindow<Print_Activite>();
    TakeWindow<Fichier_Nomenclature>();
    TakeWindow<Ajout_Activite>();
    TakeWindow<Delta_QSO>();
    TakeWindow<Restoration_Activite>();
    TakeWindow<Export_Adif>();
    TakeExportOfSome();
    TakeImport();
    Do([&] { main.Liste_QSO.UserSelect(3); });
    TakeWindow<Exporter_QSO>();
    TakeWindow<Etiquettes>();
    TakeLabels();
    TakeNotes();
    TakeCluster();
    Do([&] { programme_.Fenetre<Carte>().Bande_S.SetListIndex(10); });
    TakeWindow<Carte>();
    Do([&] { programme_.Fenetre<Carte_Acti>().Show(); });
    Do([&] { programme_.Fenetre<Carte_Acti>().Aff_Carte.UserClick(); });
    TakeWindow<Carte_Acti>();
    TakeWindow<Select_Locator>();
    Do([&] { Sous_Programmes::Affiche_Locators(programme_, "144 Mhz", "JN", programme_.contexte.Nb_Contactes); });
    TakeWindow<Carte_JN>();
    TakeWindow<Chargement>();
    TakeWindow<Progression>();
    Do([&] {
      main.Liste_QSO.SetListIndex(main.Liste_QSO.Count() - 5);
      main.Gestion_QSL.UserClick();
    });
    if (auto* cards = programme_.Ouverte<QSL>()) {
      Take(*cards, QStringLiteral("QSL"));
      Do([&] { cards->Multiple.UserClick(); });
      auto& many = programme_.Fenetre<Multi_QSL>();
      Do([&] { many.Recherche.UserClick(); });
      Do([&] { many.Liste_QSO.UserTick(1); });
      Take(many, QStringLiteral("Multi_QSL"));
    }
    // Boxes of each kind. The answers are those of the key Enter.
    Do([&] { main.Mnu_A_Propos.UserClick(); });
    Do([&] { main.Mnu_RAZ_All.UserClick(); });
    Do([&] { main.Liste_QSO.UserDblClick(3); });
    Do([&] { main.Effacer.UserClick(); });
    // Comes last: the program ends with it.
    TakeWindow<Gestion_Erreur>();
  }

 private:
  void Do(const std::function<void()>& action) {
    windows_.Deliver(programme_, action);
    windows_.ShowPending();
    QCoreApplication::processEvents();
  }

  void Take(Form& form, const QString& name) {
    windows_.ShowPending();
    QCoreApplication::processEvents();
    album_.Save(*windows_.WindowOf(form), name);
  }

  template <typename F>
  void TakeWindow() {
    Do([this] { programme_.Fenetre<F>().Show(); });
    F* form = programme_.Ouverte<F>();
    if (!form) return;
    Take(*form, ToQt(form->Name()));
    Do([form] { form->Hide(); });
  }

  /// The fields that the export of a part of the log asks for.
  void TakeExportOfSome() {
    auto& some = programme_.Fenetre<Export_Adif>();
    Do([&] { some.Show(); });
    Do([&] { some.Option2.UserClick(); });
    Take(some, QStringLiteral("Export_Adif-partiel"));
    Do([&] { some.Hide(); });
  }

  /// The log of another program, as it is shown before it comes in.
  void TakeImport() {
    const std::string file = programme_.Chemin("mes_qso.adi");
    programme_.Disque().WriteAll(file, MadeUpJournal());
    windows_.Waiter = [this](const std::function<bool()>&) {
      auto& import = programme_.Fenetre<Import_Journal>();
      Take(import, QStringLiteral("Import_Journal"));
      Do([&] { import.Unload(); });
    };
    Do([&] { programme_.Fenetre<Import_Journal>().Ouvre(file); });
    windows_.Waiter = {};
  }

  /// Contacts that the log has, with their cards, contacts that it doesn't, and some that it can't take.
  static std::string MadeUpJournal() {
    std::string journal = "<ADIF_VER:5>3.1.4<PROGRAMID:4>LogX<PROGRAMVERSION:3>2.6<EOH>\r\n";
    for (int n = kContacts - 14; n < kContacts + 90; ++n) {
      const std::string record = Enregistrement_ADIF3(Contact(n), {});
      journal += record.substr(0, record.rfind("<EOR>")) + (n % 5 == 0 ? "<QSL_RCVD:1>Y" : "") + "<EOR>\r\n";
    }
    journal += "<CALL:5>F9PQR<QSO_DATE:8>20240612<TIME_ON:4>1832<BAND:2>4M<MODE:3>SSB<EOR>\r\n";
    journal += "<CALL:5>F9STU<QSO_DATE:8>20240231<TIME_ON:4>0912<BAND:3>20M<MODE:2>CW<EOR>\r\n";
    journal += "<CALL:15>VP2E/DL9ZZZ/MM1<QSO_DATE:8>20240613<TIME_ON:4>0715<BAND:3>15M<MODE:2>CW<EOR>\r\n";
    return journal;
  }

  void TakeLabels() {
    auto& selection = programme_.Fenetre<Select_QSO>();
    Do([&] {
      selection.Show();
      for (int row = 3; row < 10; ++row) selection.Liste_QSO.UserSelect(row);
    });
    Take(selection, QStringLiteral("Select_QSO"));
    Do([&] { selection.Unload(); });
  }

  void TakeNotes() {
    auto& notes = programme_.Fenetre<Notes>();
    Do([&] {
      notes.Show();
      notes.Text1.UserText("Rotor \xE0 graisser avant l'hiver.\r\n\r\nDimanche 9 h : balise sur 144.475 Mhz", 0);
    });
    Take(notes, QStringLiteral("Notes"));
    Do([&] { notes.Hide(); });
  }

  /// The cluster with spots, some of them kept.
  void TakeCluster() {
    Do([this] { programme_.Fenetre<Cluster>().Show(); });
    auto& cluster = programme_.Fenetre<Cluster>();
    Take(cluster, QStringLiteral("Cluster-vide"));
    Do([&] {
      for (int n = 0; n < 40; ++n) cluster.Liste_Stations.AddItem(Ligne_De_Liste(MadeUpSpot(n), Tri::QTR));
      cluster.QTR.SetCaption("12:34 TU");
      cluster.Site.SetCaption("http://cluster.example");
      cluster.Liste_Stations.SetListIndex(39);
    });
    Take(cluster, QStringLiteral("Cluster"));
    Do([&] {
      cluster.Memoriser.UserClick();
      cluster.Voir_Mem.UserClick();
    });
    Take(programme_.Fenetre<Memoire_CL>(), QStringLiteral("Memoire_CL"));
    TakeWindow<Adresse_Cluster>();
    TakeWindow<Ports_Serie>();
    Do([&] { cluster.Unload(); });
  }

  static Spot MadeUpSpot(int n) {
    static constexpr std::array kCalls = {"F9AAA", "VK9ZZZ", "DL9ZZZ/P", "TM9XYZ", "JA9QQQ"};
    static constexpr std::array kFrequencies = {"14195.0", "7040.5", "144300.0", "21025.0", "3798.0"};
    static constexpr std::array kWords = {"CQ CQ UP 5", "TNX QSO 73", "IN39VU<TR>JN33BB", "", "QSL VIA BUREAU"};
    Spot spot;
    spot.Date = "12-MAY " + Deux_Chiffres(12) + Deux_Chiffres(n % 60) + "Z ";
    spot.DX = Complete(Turn(kCalls, n), 12);
    spot.QRG = Complete_Gauche(Turn(kFrequencies, n), 8);
    spot.Spotter = Complete(Turn(kCalls, n + 2), 11);
    spot.Remarques = Turn(kWords, n);
    return spot;
  }

  /// A contact on the way: with a callsign that the log knows.
  void TypeContact(DDFM& main) {
    const auto type = [this](auto& field, const char* keys) {
      for (const char key : std::string(keys)) Do([&] { field.UserKey(static_cast<unsigned char>(key)); });
    };
    type(main.Bande_A, "\r");
    type(main.Indicatif_A, "f9aaa\r");
    type(main.Depart_A, "\r");
    type(main.Locator_A, "\r");
    type(main.Mode_A, "\r");
    type(main.Activ_A, "\r");
    type(main.RSTE_A, "\r");
    type(main.RSTR_A, "\r");
    type(main.Prenom_A, "\r");
    type(main.QTH_A, "METZ");
  }

  QtWindows& windows_;
  Programme& programme_;
  const Album& album_;
};

bool CopyData(const QString& to) {
  const QDir data(QStringLiteral(VORELIO_DATA_DIR));
  bool copied = true;
  for (const QString& name : TemplateFiles())
    copied = QFile::copy(data.filePath(name), QDir(to).filePath(name)) && copied;
  const QDir maps(data.filePath(QStringLiteral("maps"))), target(QDir(to).filePath(QStringLiteral("maps")));
  target.mkpath(QStringLiteral("."));
  for (const QString& name : maps.entryList(QDir::Files))
    copied = QFile::copy(maps.filePath(name), target.filePath(name)) && copied;
  return copied;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2 && argc != 4) {
    std::fputs("vorelio_pictures DOSSIER [LARGEUR HAUTEUR]\n", stderr);
    return 2;
  }
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication qt(argc, argv);
  SetUpApplication();
  Album album{QDir(QString::fromLocal8Bit(argv[1])), {}};
  QDir().mkpath(album.folder.path());
  const QSize size = argc == 4 ? QSize(std::atoi(argv[2]), std::atoi(argv[3])) : QSize();
  for (const bool dark : {false, true}) {
    album.theme = dark ? QStringLiteral("sombre") : QStringLiteral("clair");
    const QTemporaryDir scratch;
    if (!CopyData(scratch.path())) return 1;
    const ProgramFolder folder{scratch.path(), FromQt(scratch.path()), scratch.path().toStdString()};
    Application application(folder, scratch.path());
    application.appearance.SetTheme(dark ? Appearance::Theme::Dark : Appearance::Theme::Light);
    PicturedMessages messages(application.windows, album);
    MakeStation(application, folder);
    Programme programme(application.Services(messages));
    Tour(application, programme, album).TakeAll(size);
  }
  return 0;
}
