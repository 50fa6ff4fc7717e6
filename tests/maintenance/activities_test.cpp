#include "stations/activities.h"
#include "entry/ddfm.h"
#include "maintenance/add_activity_window.h"
#include "maintenance/restore_activities_window.h"
#include "support/rows.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

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
};

TEST_F(ActivitiesTest, EachReaderHasItsOwnDefaults) {
  settings.Remove("DDFM", kSection, "NB Activite");
  settings.Remove("DDFM", kSection, "Activite1");
  Event([&] { Adding().Show(); });
  EXPECT_EQ(Texts(Adding().Activ_Exist.Items()), Lines{"Err4"});
  Event([&] { Adding().UserClose(); });
  EXPECT_EQ(Read("F6ABC_Activite.txt"), "QSO\r\nXXX\r\n");

  settings.Write("DDFM", kSection, "NB Activite", "2");
  Event([&] { Adding().Show(); });
  Event([&] { Adding().Command1.UserClick(); });
  EXPECT_EQ(Texts(Main().Activ_A.Items()), (Lines{"QSO", "err5", ""}));
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

TEST_F(ActivitiesTest, WithoutAReadableBackupTheProgramEnds) {
  const std::tuple<bool, Erreur, std::string> cases[] = {
      {true, Erreur::Fichier_Introuvable, "Fichier F6ABC_Prefixe.txt Absent"},
      {false, Erreur::Fichier_Introuvable, "Fichier F6ABC_Prefixe.txt Absent"},
      {true, Erreur::Disque_Non_Pret, "Erreur N\xB0 71"},
  };
  for (const auto& [has_path, error, box] : cases) {
    Restart();
    ReadyStation();
    if (!has_path) settings.Remove("DDFM", kSection, "Chemin Sauvegarde");
    disk.Forget();
    disk.FailOn("read", error);
    Event([&] { programme->Fenetre<Restoration_Activite>().Show(); });
    EXPECT_EQ(messages.TakeMessages(), Lines{box});
    EXPECT_TRUE(programme->Termine_Deja());
    EXPECT_EQ(programme->Erreur_Fatale(), 0);
    EXPECT_EQ(disk.Log(), Lines{has_path ? "read F6ABC_Activite.bak" : "read X:/XXXXXXX_Activite.bak"});
    disk.Mend();
  }
}

}  // namespace
}  // namespace vorelio::tests
