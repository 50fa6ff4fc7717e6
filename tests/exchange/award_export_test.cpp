#include "exchange/award_export.h"

#include "core/log_line.h"
#include "entry/ddfm.h"
#include "exchange/award_export_window.h"
#include "support/contact.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

constexpr std::size_t kDFCF = 0, kDMF = 1, kDCI = 2, kDAI = 3, kDPLF = 4;

Champs_QSO Activation(const std::string& reference) {
  Champs_QSO qso = Contact(
      {"12/05/03", "IK1ABC/P", "12:05", "12:17", "2a", "", "7.0 Mhz", "PSK31", "599", "57", reference, "Ren\xE9"});
  qso.Activ_A = "1";
  return qso;
}

std::string Item(const std::string& reference) { return Colonne_Numero(1) + Construit_Ligne(Activation(reference)); }

TEST(AwardExport, LineOfEachCompanion) {
  const std::string report = " 12/05/03 12:05 PSK 7.0 Mhz 57  599 ";
  const struct {
    std::size_t award;
    std::string qth, reference, line;
  } cases[] = {
      {kDFCF, "DFCF 89125", "89125", "12/05/03  89125  Chateau Contacte        IK1ABC/P    "},
      {kDFCF, "DFCF 8912", "8912", "12/05/03  8912  Chateau Contacte        IK1ABC/P    "},
      {kDMF, "DMF 59025", "59025", "12/05/03  59025  Moulin Contacte         IK1ABC/P    "},
      {kDCI, "DCI IM122", "IM122", "IK1ABC/P          REN\xC9            IM122" + report + Blancs(67)},
      {kDCI, "DCI I", "I    ", "IK1ABC/P          REN\xC9            I    " + report + Blancs(67)},
      {kDAI, "DAI PM0571", "PM0571", "IK1ABC/P          REN\xC9            PM0571" + report + Blancs(61)},
      {kDPLF, "DPLF PB141", "PB141", "IK1ABC/P     2A   REN\xC9            PB141" + report + Blancs(32)},
  };
  for (const auto& test : cases) {
    const Compagnon& companion = kCompagnons[test.award];
    EXPECT_EQ(Reference_Activation(companion, Item(test.qth)), test.reference) << test.qth;
    EXPECT_EQ(Ligne_Compagnon(companion, Item(test.qth)), test.line) << test.qth;
  }
  // A line cut short gives what there is.
  EXPECT_EQ(Ligne_Compagnon(kCompagnons[kDFCF], Item("DFCF 89125").substr(0, 20)),
            "12/05/03    Chateau Contacte        IK1A");
}

TEST(AwardExport, ALineThatWasWrittenIsFoundAgain) {
  const std::pair<std::size_t, const char*> cases[] = {
      {kDFCF, "DFCF 89125"}, {kDMF, "DMF 59025"}, {kDCI, "DCI IM122"}, {kDAI, "DAI PM0571"}, {kDPLF, "DPLF PB141"}};
  for (const auto& [award, qth] : cases) {
    const Compagnon& companion = kCompagnons[award];
    const std::string reference = Reference_Activation(companion, Item(qth));
    const std::string line = Ligne_Compagnon(companion, Item(qth)) + "\r\n";
    Champs_QSO later = Activation(qth);
    later.Date_A = "01/06/03";
    const std::string second = Ligne_Compagnon(companion, Colonne_Numero(2) + Construit_Ligne(later)) + "\n\r\n";

    const Deja_Contacte none = Cherche_Reference(companion, "", reference);
    EXPECT_FALSE(none.trouve || none.zone_vue) << qth;
    // The last line with the reference gives the date.
    const Deja_Contacte both = Cherche_Reference(companion, line + second, reference);
    EXPECT_TRUE(both.trouve && both.zone_vue) << qth;
    EXPECT_EQ(both.date, "01/06/03") << qth;
    // Another reference of the same area, and one of another.
    std::string near = reference, far = reference;
    near.back() = 'X';
    far.front() = 'Z';
    EXPECT_FALSE(Cherche_Reference(companion, line, near).trouve) << qth;
    EXPECT_TRUE(Cherche_Reference(companion, line, near).zone_vue) << qth;
    EXPECT_FALSE(Cherche_Reference(companion, line, far).zone_vue) << qth;
  }
  // A trimmed reference doesn't fill its columns, and so is never found.
  const Compagnon& castles = kCompagnons[kDFCF];
  EXPECT_FALSE(Cherche_Reference(castles, Ligne_Compagnon(castles, Item("DFCF 8912")) + "\r\n", "8912").trouve);
}

class AwardExportWindow : public StationFixture {
 protected:
  AwardExportWindow() { Begin(); }

  void Begin() {
    ReadyStation();
    Event([this] { programme->Fenetre<DDFM>(); });
    disk.Forget();
    windows.events.clear();
  }

  void Install(const std::string& application, const std::string& station = "F6ABC") {
    settings.Write(application, "Setup ", "Indicatif Station", station);
    settings.Write(application, "Setup ", "Chemin Repertoire", folder.File("companion"));
    settings.Write(application, "Setup " + station, "Annee Tournoi", "2003");
  }

  void Open(const std::string& qth) {
    Event([&] {
      programme->saisie.Ligne_Selection = Item(qth);
      programme->Fenetre<Exporter_QSO>().Show();
    });
  }

  void Export() {
    Event([this] { Window().C_Oui.UserClick(); });
  }

  Exporter_QSO& Window() { return programme->Fenetre<Exporter_QSO>(); }
};

TEST_F(AwardExportWindow, SaysWhatIsMissing) {
  Install("DCI");
  const struct {
    std::string qth, companion, missing, word;
    bool exports;
  } cases[] = {
      {"DCI IM122", "ZOR_DCI", "", "", true},
      {"XDCI", "ZOR_DCI", "", "", true},
      {"dci IM122", "", "Type de QSO ", " non gere sur ce PC", false},
      {"NICE", "", "Type de QSO ", " non gere sur ce PC", false},
      {"", "", "Type de QSO ", " non gere sur ce PC", false},
      {"DFCF 89125", "ZOR_Tournoi_DFCF", "ZOR_Tournoi_DFCF", " n'existe pas sur ce PC", false},
      {"DMF 59025", "ZOR_Tournoi_DMF", "ZOR_Tournoi_DMF", " n'existe pas sur ce PC", false},
      {"DAI PM0571", "ZOR_DAI", "ZOR_DAI", " n'existe pas sur ce PC", false},
      {"DPLF PB141", "ZOR_DPLF", "ZOR_DPLF", " n'existe pas sur ce PC", false},
      // Two awards in one reference: the later one is the type, what the other one left stays.
      {"DFCF 1 DCI", "ZOR_DCI", "ZOR_Tournoi_DFCF", " n'existe pas sur ce PC", true},
      {"DAI DCI IM122", "ZOR_DAI", "ZOR_DAI", " n'existe pas sur ce PC", true},
  };
  for (const auto& test : cases) {
    Open(test.qth);
    EXPECT_EQ(Window().Title(), "Exporter un QSO");
    EXPECT_EQ(Window().Label3.Caption(), "IK1ABC/P");
    EXPECT_EQ(Window().Label5.Caption(), test.qth);
    EXPECT_EQ(Window().Label7.Caption(), test.companion) << test.qth;
    EXPECT_EQ(Window().Label9.Caption(), test.missing) << test.qth;
    EXPECT_EQ(Window().Label10.Caption(), test.word) << test.qth;
    EXPECT_EQ(Window().C_Oui.Enabled(), test.exports) << test.qth;
    Event([this] { Window().C_Non.UserClick(); });
    EXPECT_EQ(programme->Ouverte<Exporter_QSO>(), nullptr);
  }
  EXPECT_EQ(disk.Log(), Lines{});
}

TEST_F(AwardExportWindow, TheCompanionsStationBecomesTheRuns) {
  for (const auto& [application, qth, file] :
       {std::tuple{"Tournoi_DMF", "DMF 59025", "companion/F6ZZZ_P_Tournoi_DMF_2003.txt"},
        std::tuple{"DPLF", "DPLF PB141", "companion/F6ZZZ_P_DPLF.log"}}) {
    programme->contexte.Station_Indicatif = "F6ABC";
    Install(application, "F6ZZZ_P");
    Write(file, "");
    Open(qth);
    EXPECT_EQ(programme->contexte.Station_Indicatif, "F6ABC");
    Export();
    EXPECT_NE(Read(file), "");
    EXPECT_EQ(programme->contexte.Station_Indicatif, "F6ZZZ_P");
    EXPECT_EQ(programme->Fenetre<DDFM>().I_Station.Caption(), "F6ABC");
  }
}

TEST_F(AwardExportWindow, TheContactIsTheOneSelectedAtThePress) {
  Install("DCI");
  Write("companion/F6ABC_DCI.log", "");
  Open("DCI IM122");
  programme->saisie.Ligne_Selection = Item("DCI TO001");
  Event([this] { programme->Fenetre<Exporter_QSO>().Show(); });
  EXPECT_EQ(Window().Label5.Caption(), "DCI IM122");
  Export();
  EXPECT_EQ(messages.TakeMessages(), Lines{"TO Nouvelle Province"});
  EXPECT_EQ(Read("companion/F6ABC_DCI.log").substr(34, 5), "TO001");
}

TEST_F(AwardExportWindow, OfTwoAwardsTheLaterOneIsExportedTo) {
  Install("DCI");
  Write("companion/F6ABC_DCI.log", "");
  Open("DFCF 1 DCI");
  Export();
  EXPECT_EQ(messages.TakeMessages(), Lines{" 1 Nouvelle Province"});
  EXPECT_EQ(Read("companion/F6ABC_DCI.log").substr(34, 5), " 1 DC");

  // The one that is installed has enabled the button; the later one has no folder.
  disk.Forget();
  Open("DAI DCI IM122");
  Export();
  EXPECT_EQ(programme->Erreur_Fatale(), 53);
  EXPECT_EQ(disk.Log(), Lines{"read X:/XXXXXXX/FXXXX_DAI.log"});
}

TEST_F(AwardExportWindow, AFileThatCannotBeReadOrWrittenEndsTheProgram) {
  const struct {
    const char* what;
    bool folder_set, file;
    int error;
  } cases[] = {
      {"no folder in the settings", false, false, 53}, {"no file", true, false, 53}, {"a full disk", true, true, 61}};
  for (const auto& test : cases) {
    Restart();
    Begin();
    Install("DCI");
    if (!test.folder_set) settings.Remove("DCI", "Setup ", "Chemin Repertoire");
    if (test.file) Write("companion/F6ABC_DCI.log", "kept\r\n");
    disk.FailOn("append", Erreur::Disque_Plein);
    Open("DCI IM122");
    Export();
    EXPECT_EQ(programme->Erreur_Fatale(), test.error) << test.what;
    EXPECT_EQ(messages.TakeMessages(), Lines{}) << test.what;
    if (!test.folder_set) {
      EXPECT_EQ(disk.Log(), Lines{"read X:/XXXXXXX/F6ABC_DCI.log"});
    }
    EXPECT_EQ(folder.Exists("companion/F6ABC_DCI.log"), test.file);
    EXPECT_EQ(Read("companion/F6ABC_DCI.log"), test.file ? "kept\r\n" : "");
    disk.Mend();
  }
}

}  // namespace
}  // namespace vorelio::tests
