#include <gtest/gtest.h>

#include "entry/ddfm.h"
#include "maintenance/activity_file.h"
#include "maintenance/add_activity_window.h"
#include "maintenance/restore_activities_window.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

using namespace Sous_Programmes;
using Lines = std::vector<std::string>;

constexpr const char* kSection = "Setup F6ABC";

class ActivitiesTest : public StationFixture {
 protected:
  ActivitiesTest() {
    ReadyStation();
    Event([this] { programme->Fenetre<DDFM>(); });
    messages.Forget();
  }

  DDFM& Main() { return programme->Fenetre<DDFM>(); }
  Ajout_Activite& Adding() { return programme->Fenetre<Ajout_Activite>(); }
  std::string Setting(const std::string& key) { return settings.Get(kSection, key); }
};

TEST_F(ActivitiesTest, AddingExtendsSettingsListAndFile) {
  settings.Write("DDFM", kSection, "Activite", "2");
  Event([&] { Adding().Show(); });
  EXPECT_EQ(Adding().Activ_Exist.Items(), (Lines{"DFCF", "DMF", "DIFI", "DIFM"}));
  Event([&] {
    for (const char c : {'d', 'P', 'l', 'f', '\xE9'}) Adding().Nom_Activ.UserKey(static_cast<unsigned char>(c));
    Adding().Command1.UserClick();
  });
  EXPECT_EQ(programme->Ouverte<Ajout_Activite>(), nullptr);
  EXPECT_EQ(Setting("Activite5"), "DPLF\xE9");
  EXPECT_EQ(Setting("NB Activite"), "6");
  EXPECT_EQ(Main().Activ_A.Items(), (Lines{"QSO", "DFCF", "DMF", "DIFI", "DIFM", "DPLF\xE9"}));
  EXPECT_EQ(Main().Activ_A.ListIndex(), 2);
  EXPECT_EQ(Read("F6ABC_Activite.txt"), "QSO\r\nDFCF\r\nDMF\r\nDIFI\r\nDIFM\r\nDPLF\xE9\r\n");
  EXPECT_EQ(programme->contexte.Nb_Activite, 6);

  // An empty name is one as well.
  Event([&] { Adding().Show(); });
  Event([&] { Adding().Command1.UserClick(); });
  EXPECT_EQ(Setting("Activite6"), "");
  EXPECT_EQ(Setting("NB Activite"), "7");
  EXPECT_EQ(Main().Activ_A.Count(), 7);
}

TEST_F(ActivitiesTest, ClosingRewritesTheFile) {
  Write("F6ABC_Activite.txt", "gone\r\n");
  Event([&] { Adding().Show(); });
  Event([&] { Adding().UserClose(); });
  EXPECT_EQ(Read("F6ABC_Activite.txt"), "QSO\r\nDFCF\r\nDMF\r\nDIFI\r\nDIFM\r\n");
  EXPECT_EQ(Setting("NB Activite"), "5");
}

TEST_F(ActivitiesTest, EachReaderHasItsOwnDefaults) {
  settings.Remove("DDFM", kSection, "NB Activite");
  settings.Remove("DDFM", kSection, "Activite1");
  Event([&] { Adding().Show(); });
  EXPECT_EQ(Adding().Activ_Exist.Items(), Lines{"Err4"});
  Event([&] { Adding().UserClose(); });
  EXPECT_EQ(Read("F6ABC_Activite.txt"), "QSO\r\nXXX\r\n");

  settings.Write("DDFM", kSection, "NB Activite", "2");
  Event([&] { Adding().Show(); });
  Event([&] { Adding().Command1.UserClick(); });
  EXPECT_EQ(Main().Activ_A.Items(), (Lines{"QSO", "err5", ""}));
}

TEST_F(ActivitiesTest, ACountThatNoListHoldsIsAnError) {
  for (const auto& [count, error] : {std::pair{"2000000000", 6}, std::pair{"beaucoup", 13}}) {
    Restart();
    ReadyStation();
    Write("F6ABC_Activite.txt", "kept\r\n");
    settings.Write("DDFM", kSection, "NB Activite", count);
    Event([&] { Ecrit_Fichier_Activites(*programme); });
    EXPECT_EQ(programme->Erreur_Fatale(), error);
    EXPECT_EQ(Read("F6ABC_Activite.txt"), "kept\r\n");
  }
}

class RestoreActivitiesTest : public ActivitiesTest {
 protected:
  const std::string question =
      "Les activit\xE9s presente dans la base de registre vont etre remplac\xE9"
      "es\r\n"
      "       par celles de la derniere sauvegarde, Continuer ?";

  void Open() {
    Event([&] { programme->Fenetre<Restoration_Activite>().Show(); });
  }
};

TEST_F(RestoreActivitiesTest, TheBackupsListComesIntoTheSettings) {
  Write("F6ABC_Activite.bak", "QSO\r\nDFCF,DCI\nDLI");
  for (const bool confirmed : {false, true}) {
    Open();
    auto& window = programme->Fenetre<Restoration_Activite>();
    EXPECT_EQ(window.Title(), "Update Activit\xE9s");
    EXPECT_EQ(window.Liste_Fichiers.Items(), (Lines{"QSO", "DFCF", "DCI", "DLI"}));
    messages.Answer(confirmed);
    Event([&] { window.Ecriture_BDR.UserClick(); });
    ASSERT_EQ(messages.boxes.size(), 1U);
    EXPECT_EQ(messages.boxes[0].text, question);
    EXPECT_EQ(messages.boxes[0].buttons, Buttons::OkCancel);
    EXPECT_EQ(messages.boxes[0].icon, Icon::Critical);
    messages.Forget();
    EXPECT_EQ(programme->Ouverte<Restoration_Activite>(), nullptr);
    EXPECT_EQ(Setting("NB Activite"), confirmed ? "4" : "5");
    EXPECT_EQ(Setting("Activite2"), confirmed ? "DCI" : "DMF");
  }
  // The rows of the entry form and what lies behind the new count stay until the next start.
  EXPECT_EQ(Setting("Activite4"), "DIFM");
  EXPECT_EQ(Main().Activ_A.Count(), 5);
}

TEST_F(RestoreActivitiesTest, WithoutAReadableFileTheProgramEnds) {
  const struct {
    bool has_path;
    Erreur error;
    std::string box;
  } cases[] = {
      {true, Erreur::Fichier_Introuvable, "Fichier F6ABC_Prefixe.txt Absent"},
      {false, Erreur::Fichier_Introuvable, "Fichier F6ABC_Prefixe.txt Absent"},
      {true, Erreur::Disque_Non_Pret, "Erreur N\xB0 71"},
  };
  for (const auto& test : cases) {
    Restart();
    ReadyStation();
    if (!test.has_path) settings.Remove("DDFM", kSection, "Chemin Sauvegarde");
    disk.Forget();
    disk.FailOn("read", test.error);
    Open();
    EXPECT_EQ(messages.TakeMessages(), Lines{test.box});
    EXPECT_TRUE(programme->Termine_Deja());
    EXPECT_EQ(programme->Erreur_Fatale(), 0);
    EXPECT_EQ(disk.Log(), Lines{test.has_path ? "read F6ABC_Activite.bak" : "read X:/XXXXXXX_Activite.bak"});
    disk.Mend();
  }
}

}  // namespace
}  // namespace vorelio::tests
