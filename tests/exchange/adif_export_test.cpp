#include "exchange/adif_export.h"

#include "core/bands.h"
#include "core/log_line.h"
#include "entry/ddfm.h"
#include "exchange/export_adif_window.h"
#include "support/contact.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

Champs_QSO Qso() {
  Champs_QSO qso =
      Contact({"12/05/03", "F9QZX", "12:05", "12:17", "06", "JN33BB", "144 Mhz", "SSB", "59", "57", "NICE", "Zo\xE9"});
  qso.Distance_A = "12";
  qso.Activ_A = "0";
  qso.Remarques_A = "premier QSO";
  return qso;
}

TEST(AdifExport, RecordOfALine) {
  using Q = Champs_QSO;
  const auto with = [](std::initializer_list<std::string Q::*> fields, const char* value) {
    Champs_QSO qso = Qso();
    for (const auto field : fields) qso.*field = value;
    return Construit_Ligne(qso);
  };
  const std::string times = "<time_on:4>1205<time_off:4>1217";
  const std::string head = "<call:5>F9QZX<name:3>Zo\xE9<gridsquare:6>JN33BB<band:2>2m<mode:3>SSB<qso_date:8>20030512";
  const std::string reports = "<rst_sent:2>59<rst_rcvd:2>57";
  const std::string comment = "<comment:24>Dpt:06  NICE premier QSO<eor>";
  const std::tuple<const char*, std::string, std::string> cases[] = {
      {"all fields", Construit_Ligne(Qso()), head + times + reports + comment},
      {"no name", with({&Q::Prenom_A}, ""),
       "<call:5>F9QZX<gridsquare:6>JN33BB<band:2>2m<mode:3>SSB<qso_date:8>20030512" + times + reports + comment},
      {"no locator", with({&Q::Locator_A}, ""),
       "<call:5>F9QZX<name:3>Zo\xE9<band:2>2m<mode:3>SSB<qso_date:8>20030512" + times + reports + comment},
      {"a band of no table", with({&Q::Bande_A}, "27 Mhz"),
       "<call:5>F9QZX<name:3>Zo\xE9<gridsquare:6>JN33BB<band:4>XX.m<mode:3>SSB<qso_date:8>20030512" + times + reports +
           comment},
      {"the century is always 20", with({&Q::Date_A}, "31/12/99"),
       "<call:5>F9QZX<name:3>Zo\xE9<gridsquare:6>JN33BB<band:2>2m<mode:3>SSB<qso_date:8>20991231" + times + reports +
           comment},
      {"no end, no reports", with({&Q::Fin_A, &Q::RSTE_A, &Q::RSTR_A}, ""),
       head + "<time_on:4>1205<time_off:0><rst_sent:0><rst_rcvd:0>" + comment},
      {"a long department", with({&Q::Depart_A}, "974"),
       head + times + reports + "<comment:24>Dpt:97  NICE premier QSO<eor>"},
      {"remarks alone", with({&Q::Depart_A, &Q::QTH_A}, ""),
       head + times + reports + "<comment:18>Dpt:   premier QSO<eor>"},
      {"an empty line", "",
       "<call:0><band:4>XX.m<mode:0><qso_date:2>20<time_on:0><time_off:0><rst_sent:0><rst_rcvd:0>"
       "<comment:7>Dpt:   <eor>"},
      {"a line cut short", Construit_Ligne(Qso()).substr(0, 52),
       "<call:5>F9QZX<gridsquare:6>JN33BB<band:4>XX.m<mode:0><qso_date:8>20030512" + times +
           "<rst_sent:0><rst_rcvd:0><comment:9>Dpt:06   <eor>"},
  };
  for (const auto& [what, line, record] : cases) EXPECT_EQ(Enregistrement_Adif(line), record) << what;
}

TEST(AdifExport, BandsInAnyCase) {
  const Lines expected = {"160m", "80m", "40m",  "30m",  "20m",  "17m", "15m", "12m",   "10m",
                          "6m",   "2m",  "70cm", "23cm", "13cm", "6cm", "3cm", "1.25cm"};
  for (std::size_t i = 0; i < kBandes.size(); ++i) {
    EXPECT_EQ(Bande_Adif(kBandes[i]), expected[i]);
    EXPECT_EQ(Bande_Adif(Majuscules(kBandes[i])), expected[i]);
  }
  for (const char* other : {"", "50Mhz", "7 Mhz", "14", "MHZ"}) EXPECT_EQ(Bande_Adif(other), "XX.m") << other;
}

class AdifExportWindow : public StationFixture {
 protected:
  AdifExportWindow() {
    ReadyStation("F9QZX_M");
    std::string log;
    for (const char* call : {"F1AA", "F2BB", "F3CC", "F4DD"}) {
      Champs_QSO qso = Qso();
      qso.Indicatif_A = call;
      log += Construit_Ligne(qso) + "\r\n";
    }
    Write("F9QZX_M.log", log);
    Event([this] {
      programme->Fenetre<DDFM>();
      programme->Fenetre<Export_Adif>().Show();
    });
    disk.Forget();
  }

  Export_Adif& Window() { return programme->Fenetre<Export_Adif>(); }

  void Export() {
    Event([this] { Window().Exporter.UserClick(); });
  }

  void Numbers(const char* from, const char* to) {
    Event([&] {
      Window().Option2.UserClick();
      Window().Debut_Ligne.UserText(from, 0);
      Window().Fin_Ligne.UserText(to, 0);
    });
  }

  /// Callsigns of the records written.
  Lines Calls() const {
    Lines calls;
    const std::string text = Read("F9QZX_M.adi");
    for (std::size_t place = 0; (place = text.find("<call:4>", place)) != std::string::npos; ++place)
      calls.push_back(text.substr(place + 8, 4));
    return calls;
  }

  const Lines done{"le fichier F9QZX_M.adi a \xE9t\xE9 sauvegard\xE9 dans le r\xE9pertoire\r\n" + folder.Path()};
  const Lines past_the_end{"Le N\xB0 de fin est superieur au dernier N\xB0 de QSO"};
  const Lines reversed{"Le N\xB0 de fin de ligne est superieur au N\xB0 de debut de ligne"};
  const Lines incomplete{"Entrez un N\xB0 de debut et de fin de QSO"};
};

TEST_F(AdifExportWindow, FromNumberToNumber) {
  const struct {
    const char *from, *to;
    Lines boxes, calls;
  } cases[] = {
      {"2", "3", done, {"F2BB", "F3CC"}},
      {"4", "4", done, {"F4DD"}},
      {"0", "1", done, {"F1AA"}},
      {"1.5", "3.5", done, {"F2BB", "F3CC"}},
      {"x", "0", done, {}},
      {"-9", "4", done, {"F1AA", "F2BB", "F3CC", "F4DD"}},
      {"1", "5", past_the_end, {}},
      {"3", "2", reversed, {}},
      {"", "2", incomplete, {}},
      {"2", "", incomplete, {}},
      {" ", "9", past_the_end, {}},
  };
  for (const auto& test : cases) {
    folder.Remove("F9QZX_M.adi");
    Event([this] { Window().Show(); });
    Numbers(test.from, test.to);
    Export();
    EXPECT_EQ(messages.TakeMessages(), test.boxes) << test.from << " " << test.to;
    EXPECT_EQ(Calls(), test.calls) << test.from << " " << test.to;
    const bool written = test.boxes == done;
    EXPECT_EQ(programme->Ouverte<Export_Adif>() == nullptr, written);
    EXPECT_EQ(folder.Exists("F9QZX_M.adi"), written);
  }
}

TEST_F(AdifExportWindow, AnErrorOfTheFilesIsToldAndTheWindowStays) {
  const std::tuple<const char*, Erreur, std::string> cases[] = {
      {"write F9QZX_M.adi", Erreur::Disque_Non_Pret, "Erreur 71 Pas de disquette dans le lecteur"},
      {"write F9QZX_M.adi", Erreur::Permission_Refusee, "Erreur 70 Disquette protegée"_t},
      {"write F9QZX_M.adi", Erreur::Disque_Plein, "Erreur 61"},
      {"read F9QZX_M.log", Erreur::Permission_Refusee, "Erreur 70 Disquette protegée"_t},
      {"read F9QZX_M.log", Erreur::Fichier_Introuvable, "Erreur 53"},
  };
  for (const auto& [access, error, box] : cases) {
    disk.FailOn(access, error);
    Export();
    EXPECT_EQ(messages.TakeMessages(), Lines{box});
    EXPECT_NE(programme->Ouverte<Export_Adif>(), nullptr);
    EXPECT_FALSE(folder.Exists("F9QZX_M.adi"));
    disk.Mend();
  }
  Export();
  EXPECT_EQ(messages.TakeMessages(), done);
}

// The tests of the numbers stand before the trap.
TEST_F(AdifExportWindow, ANumberBeyondAllBoundsEndsTheProgram) {
  Numbers("1", "1E999");
  Export();
  EXPECT_EQ(programme->Erreur_Fatale(), 6);
}

TEST_F(AdifExportWindow, FileAndLogFollowTheStationOfTheRunTheHeaderTheShownOne) {
  Write("F6ZZZ.log", "");
  programme->contexte.Station_Indicatif = "F6ZZZ";
  Export();
  EXPECT_EQ(messages.TakeMessages()[0].find("le fichier F6ZZZ.adi "), 0U);
  const std::string text = Read("F6ZZZ.adi");
  EXPECT_EQ(text.find("Exportation du log Vorelio de F9QZX/M au"), 0U);
  EXPECT_TRUE(text.ends_with("\r\n\r\n\r\n<eoh>\r\n"));
}

}  // namespace
}  // namespace vorelio::tests
