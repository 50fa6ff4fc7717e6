#include "stations/station_form.h"

#include "entry/ddfm.h"
#include "stations/error_window.h"
#include "stations/loading_window.h"
#include "stations/station_files.h"
#include "support/rows.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

class StationFormTest : public StationFixture {
 protected:
  Station& Window() { return programme->Fenetre<Station>(); }
  DDFM& Main() { return programme->Fenetre<DDFM>(); }

  /// A running program with a station, and its window open.
  void OpenOver(const std::string& call) {
    ReadyStation(call);
    Event([&] { Main(); });
    messages.Forget();
    Open();
  }
  void Open() {
    Event([&] { Window().Show(); });
  }
  void Enter(Control& control) {
    Event([&] {
      if (auto* list = dynamic_cast<ListBox*>(&control)) list->UserKey(kEntree);
      if (auto* field = dynamic_cast<TextField*>(&control)) field->UserKey(kEntree);
    });
  }
  void Type(TextField& field, std::string_view text) {
    Event([&] {
      for (const char c : text) field.UserKey(static_cast<unsigned char>(c));
    });
  }
  /// A new station, through the chain of its fields.
  void Create(std::string_view call, std::string_view locator) {
    Event([&] { Window().Liste_Indicatifs.UserSelect(Window().Liste_Indicatifs.Count() - 1); });
    Enter(Window().Liste_Indicatifs);
    Type(Window().New_Indicatif, call);
    Enter(Window().New_Indicatif);
    Type(Window().New_Locator, locator);
    Enter(Window().New_Locator);
    Event([&] { Window().Validation.UserClick(); });
  }
  /// A listed station.
  void Pick(int row) {
    Event([&] { Window().Liste_Indicatifs.UserSelect(row); });
    Enter(Window().Liste_Indicatifs);
    Event([&] { Window().Validation.UserClick(); });
  }
};

TEST_F(StationFormTest, ClosedWithoutAChoiceTheTemplateStationStays) {
  windows.OnModal = [&](Form&) { Window().Quitter.UserClick(); };
  Event([&] { Main(); });
  EXPECT_EQ(programme->contexte.Station_Indicatif, "FXXXX");
  EXPECT_EQ(settings.Get("Setup", "Nombre Indicatif"), "");
  EXPECT_EQ(programme->Erreur_Fatale(), 0);
}

TEST_F(StationFormTest, AnotherStationBringsItsOwnSettings) {
  OpenOver("F6ABC");
  Create("F9QZX", "jn18eu");
  settings.Write("DDFM", "Setup F9QZX", "bande Utilisee", "10");
  settings.Write("DDFM", "Setup F9QZX", "Mode Utilise", "1");
  settings.Write("DDFM", "Setup F9QZX", "Heure UTC", "False");
  settings.Write("DDFM", "Setup F9QZX", "Date Automatique", "False");
  WriteLines("F6ABC.log", {"12/05/03  F1XYZ"});

  Open();
  const auto before = settings.values;
  disk.Forget();
  Pick(0);
  EXPECT_TRUE(Main().Mnu_Auto_Oui.Checked());
  EXPECT_EQ(programme->contexte.Nb_QSO, 1);
  // Nothing is saved but the choice, and nothing is written to the disk.
  EXPECT_EQ(disk.Changes(), Lines{});
  auto after = settings.values;
  for (const char* key : {"Indicatif Station", "Locator Station"})
    after[{"DDFM", "Setup", key}] = before.at({"DDFM", "Setup", key});
  EXPECT_EQ(after, before);

  Event([&] { Main().Liste_QSO.UserSelect(0); });
  Open();
  Pick(1);
  EXPECT_EQ(Main().Bande_A.Text(), "144 Mhz");
  EXPECT_EQ(Main().Mode_A.Text(), "CW");
  EXPECT_TRUE(Main().Mnu_UTC_Non.Checked());
  EXPECT_EQ(Main().Label15.Caption(), "Date manuelle");
  // The line selected in the log before is forgotten with it.
  EXPECT_EQ(programme->saisie.Ligne_Selection, "");
}

TEST_F(StationFormTest, AListedStationWithoutItsLogIsMadeAnew) {
  OpenOver("F6ABC");
  folder.Remove("F6ABC.log");
  settings.Write("DDFM", "Setup F6ABC", "NB Activite", "9");
  Pick(0);
  EXPECT_TRUE(folder.Exists("F6ABC.log"));
  EXPECT_EQ(settings.Get("Setup F6ABC", "NB Activite"), "5");
  EXPECT_EQ(settings.Get("Setup", "Nombre Indicatif"), "1");
}

TEST_F(StationFormTest, AFailingStepDoesNotKeepTheNextOnesBack) {
  OpenOver("F6ABC");
  for (const char* key : {"bande Utilisee", "NB Activite"}) settings.Write("DDFM", "Setup F6ABC", key, "x");
  settings.Write("DDFM", "Setup F6ABC", "Date Automatique", "False");
  WriteLines("F6ABC.log", {"12/05/03  F1XYZ"});
  Pick(0);
  EXPECT_EQ(programme->Erreur_Fatale(), 0);
  EXPECT_EQ(Main().Label15.Caption(), "Date manuelle");
  EXPECT_EQ(Main().Liste_QSO.Count(), 1);
  EXPECT_EQ(programme->Ouverte<Station>(), nullptr);
}

TEST_F(StationFormTest, ALogThatCannotBeReadIsNotCopiedOver) {
  OpenOver("F6ABC");
  WriteLines("F6ABC.log", {"12/05/03  F1XYZ"});
  disk.FailOn("read F6ABC.log", Erreur::Permission_Refusee);
  Pick(0);
  EXPECT_EQ(programme->Erreur_Fatale(), 0);
  EXPECT_EQ(Read("F6ABC.log"), "12/05/03  F1XYZ\r\n");
  disk.FailOn("exists F6ABC.log", Erreur::Disque_Non_Pret);
  Event([&] { programme->Fenetre<Station>(); });
  Pick(0);
  EXPECT_EQ(Read("F6ABC.log"), "12/05/03  F1XYZ\r\n");
  // The main window isn't left hidden behind the one of the load.
  EXPECT_TRUE(Main().Visible());
  EXPECT_FALSE(programme->Fenetre<Chargement>().Visible());
}

TEST_F(StationFormTest, AMissingTemplateShowsAtTheFirstTally) {
  OpenOver("F6ABC");
  folder.Remove("FXXXX_Departement.txt");
  bool waited = false;
  windows.OnWait = [&] {
    Event([&] {
      waited = true;
      EXPECT_EQ(programme->Fenetre<Gestion_Erreur>().Ind_Station.Caption(), "F9QZX");
      programme->Fenetre<Gestion_Erreur>().Quitter.UserClick();
    });
  };
  Create("F9QZX", "JN33BB");
  EXPECT_TRUE(waited);
  EXPECT_EQ(settings.Get("Setup", "Indicatif Station"), "F9QZX");
  EXPECT_FALSE(folder.Exists("F9QZX_Prefixe.txt"));
}

TEST_F(StationFormTest, CountsThatNobodyCanHave) {
  ReadyStation();
  settings.Write("DDFM", "Setup", "Nombre Indicatif", "2000000000");
  Event([&] { Window(); });
  EXPECT_EQ(programme->Erreur_Fatale(), 6);

  Restart();
  settings.Write("DDFM", "Setup", "Nombre Indicatif", "2");
  Event([&] { Window(); });
  EXPECT_EQ(Texts(Window().Liste_Indicatifs.Items()), (Lines{"F6ABC        JN33BB", "No Call", "Nouvel Indicatif"}));
}

TEST_F(StationFormTest, FilesAreCopiedInTheirOrderOverWhatExists) {
  Write("F9QZX_Locator.txt", "old");
  Event([&] { Cree_Fichiers_Station(*programme, "F9QZX"); });
  EXPECT_EQ(disk.Log(), (Lines{"copy FXXXX.log F9QZX.log", "copy FXXXX_Departement.txt F9QZX_Departement.txt",
                               "copy FXXXX_Locator.txt F9QZX_Locator.txt", "copy FXXXX_Prefixe.txt F9QZX_Prefixe.txt",
                               "copy FXXXX.log F9QZX_Absent.txt"}));
  EXPECT_EQ(Read("F9QZX_Locator.txt"), Read("FXXXX_Locator.txt"));

  folder.Remove("FXXXX_Locator.txt");
  Event([&] { Cree_Fichiers_Station(*programme, "F1XYZ"); });
  EXPECT_EQ(programme->Erreur_Fatale(), 53);
  EXPECT_TRUE(folder.Exists("F1XYZ_Departement.txt"));
  EXPECT_FALSE(folder.Exists("F1XYZ_Prefixe.txt"));
}

}  // namespace
}  // namespace vorelio::tests
