#include "maintenance/backup.h"

#include <chrono>
#include <ctime>
#include <filesystem>

#include "core/text.h"
#include "entry/ddfm.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

constexpr const char* kSection = "Setup F6ABC";

class BackupTest : public StationFixture {
 protected:
  BackupTest() {
    ReadyStation();
    Write("F6ABC.log", "log");
    Write("F6ABC_Activite.txt", "activities");
    // A base path isn't a folder: the endings are joined to it.
    Write("sauve/here", "");
    settings.Write("DDFM", kSection, "Chemin Sauvegarde", folder.File("sauve/F6"));
  }

  void Save() {
    Event([&] { Sauvegarde_Auto(*programme); });
  }
};

TEST_F(BackupTest, FiveFilesInOrderOverOldCopies) {
  Write("sauve/F6.bak", "older and longer");
  programme->contexte.Chemin_Sauvegarde = "elsewhere";
  Save();
  EXPECT_EQ(messages.TakeMessages(), Lines{"Sauvegarde automatique effectuée"_t});
  EXPECT_EQ(disk.Changes(),
            (Lines{"copy F6ABC.log sauve/F6.bak", "copy F6ABC_Departement.txt sauve/F6_Departement.bak",
                   "copy F6ABC_Locator.txt sauve/F6_Locator.bak", "copy F6ABC_Prefixe.txt sauve/F6_Prefixe.bak",
                   "copy F6ABC_Activite.txt sauve/F6_Activite.bak"}));
  EXPECT_EQ(Read("sauve/F6.bak"), "log");
  EXPECT_EQ(Read("sauve/F6_Activite.bak"), "activities");
  EXPECT_EQ(programme->contexte.Chemin_Sauvegarde, folder.File("sauve/F6"));
}

TEST_F(BackupTest, WithoutASettingTheCopiesLieBesideTheProgramsFolder) {
  settings.Remove("DDFM", kSection, "Chemin Sauvegarde");
  disk.FailOn("copy F6ABC_Prefixe.txt", Erreur::Disque_Plein);
  Save();
  EXPECT_EQ(programme->contexte.Chemin_Sauvegarde, folder.Path());
  EXPECT_EQ(posix_disk.ReadAll(folder.Path() + ".bak"), "log");
  for (const char* ending : {".bak", "_Departement.bak", "_Locator.bak"}) posix_disk.Delete(folder.Path() + ending);
}

TEST_F(BackupTest, AFailureIsSeenWithTheFilesBeforeItCopied) {
  folder.Remove("F6ABC_Locator.txt");
  Save();
  EXPECT_EQ(programme->Erreur_Fatale(), 53);
  EXPECT_EQ(messages.TakeMessages(), Lines{});
  EXPECT_TRUE(folder.Exists("sauve/F6_Departement.bak"));
  EXPECT_FALSE(folder.Exists("sauve/F6_Prefixe.bak"));

  Restart();
  ReadyStation();
  settings.Write("DDFM", kSection, "Chemin Sauvegarde", folder.File("nowhere/F6"));
  Save();
  EXPECT_EQ(programme->Erreur_Fatale(), 76);
}

TEST_F(BackupTest, TheStatusLineTellsWhatWouldComeBack) {
  Event([&] { programme->Fenetre<DDFM>(); });
  const auto told = [&] {
    messages.Answer(false);
    Event([&] { programme->Fenetre<DDFM>().Mnu_Restauration.UserClick(); });
    messages.TakeQuestions();
    return programme->Fenetre<DDFM>().Etat.Caption();
  };
  EXPECT_EQ(told(), "Pas de sauvegarde : " + folder.File("sauve/F6.bak"));

  Write("sauve/F6.bak", "one\r\ntwo\r\nthree");
  struct tm day {};
  day.tm_mday = 9;
  day.tm_mon = 4;
  day.tm_year = 103;
  const auto noon = std::chrono::system_clock::from_time_t(std::mktime(&day)) + std::chrono::hours(12);
  std::filesystem::last_write_time(folder.File("sauve/F6.bak"), std::chrono::file_clock::from_sys(noon));
  EXPECT_EQ(told(), "Sauvegarde du 09/05/2003 : 3 QSO ; log avant restauration : 1 QSO");

  disk.FailOn("read sauve/F6.bak", Erreur::Disque_Non_Pret);
  EXPECT_EQ(told(), "Sauvegarde illisible : " + folder.File("sauve/F6.bak"));
  EXPECT_EQ(Read("F6ABC.log"), "log");
}

TEST_F(BackupTest, RestoringBringsLogAndTalliesBack) {
  const Lines tallies = {"F6ABC.log", "F6ABC_Departement.txt", "F6ABC_Locator.txt", "F6ABC_Prefixe.txt"};
  Save();
  Lines before;
  for (const auto& name : tallies) {
    before.push_back(Read(name));
    Write(name, "spoilt");
  }
  Write("F6ABC_Activite.txt", "stays");
  disk.Forget();
  Event([&] { Restaure_Sauvegarde(*programme); });
  for (std::size_t i = 0; i < tallies.size(); ++i) EXPECT_EQ(Read(tallies[i]), before[i]) << tallies[i];
  EXPECT_EQ(Read("F6ABC_Activite.txt"), "stays");
  EXPECT_EQ(disk.Changes(),
            (Lines{"copy F6ABC.log F6ABC.log.garde-20030512-143456", "copy sauve/F6.bak F6ABC.log",
                   "copy sauve/F6_Departement.bak F6ABC_Departement.txt", "copy sauve/F6_Locator.bak F6ABC_Locator.txt",
                   "copy sauve/F6_Prefixe.bak F6ABC_Prefixe.txt"}));

  // What stood there hadn't come from this run.
  EXPECT_EQ(Read("F6ABC.log.garde-20030512-143456"), "spoilt");

  folder.Remove("sauve/F6.bak");
  Event([&] { Restaure_Sauvegarde(*programme); });
  EXPECT_EQ(programme->Erreur_Fatale(), 53);
  EXPECT_EQ(Read("F6ABC.log"), "log");
}

}  // namespace
}  // namespace vorelio::tests
