#include "core/station_form.h"

#include <gtest/gtest.h>

#include "core/error_window.h"
#include "core/loading_window.h"
#include "core/station_files.h"
#include "entry/ddfm.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

using namespace Sous_Programmes;
using Lines = std::vector<std::string>;

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
  std::string Setting(const std::string& section, const std::string& key) { return settings.Get(section, key); }
};

TEST_F(StationFormTest, FirstRunMakesTheFirstStation) {
  windows.OnModal = [&](Form& form) {
    ASSERT_EQ(form.Name(), "Station");
    EXPECT_EQ(form.Title(), "Identification de la station");
    EXPECT_EQ(Window().Liste_Indicatifs.Items(), Lines{"Nouvel Indicatif"});
    EXPECT_FALSE(Window().New_Indicatif.Enabled());
    EXPECT_FALSE(Window().Validation.Enabled());
    Create("f9qzx/p", "jn33bb");
    EXPECT_TRUE(form.Unloaded());
  };
  Event([&] { Main(); });
  EXPECT_EQ(messages.TakeMessages(),
            Lines{"Premiere installation, vous devez entrer votre Indicatif et votre Locator"});
  EXPECT_EQ(programme->Erreur_Fatale(), 0);

  EXPECT_EQ(Setting("Setup", "Nombre Indicatif"), "1");
  EXPECT_EQ(Setting("Setup", "Indicatif1"), "F9QZX_P      JN33BB");
  EXPECT_EQ(Setting("Setup", "Indicatif Station"), "F9QZX_P");
  EXPECT_EQ(Setting("Setup", "Locator Station"), "JN33BB");
  const std::pair<const char*, std::string> fresh[] = {{"Indicatif Station", "F9QZX_P"},
                                                       {"Locator Station", "JN33BB"},
                                                       {"Date Automatique", "True"},
                                                       {"Heure UTC", "True"},
                                                       {"Activite0", "QSO"},
                                                       {"Activite1", "DFCF"},
                                                       {"Activite2", "DMF"},
                                                       {"Activite3", "DIFI"},
                                                       {"Activite4", "DIFM"},
                                                       {"NB Activite", "5"},
                                                       {"bande Utilisee", "0"},
                                                       {"Mode Utilise", "0"},
                                                       {"Activite", "0"},
                                                       {"Chemin Sauvegarde", folder.Path() + "/F9QZX_P"},
                                                       {"Delta Sauvegarde", "10"}};
  for (const auto& [key, value] : fresh) EXPECT_EQ(Setting("Setup F9QZX_P", key), value) << key;
  for (const char* ending : {"_Departement.txt", "_Locator.txt", "_Prefixe.txt"})
    EXPECT_EQ(Read("F9QZX_P" + std::string(ending)), Read("FXXXX" + std::string(ending))) << ending;
  for (const char* empty : {"F9QZX_P.log", "F9QZX_P_Absent.txt"}) {
    EXPECT_TRUE(folder.Exists(empty)) << empty;
    EXPECT_EQ(Read(empty), "");
  }
  EXPECT_EQ(Read("F9QZX_P_Activite.txt"), "QSO\r\nDFCF\r\nDMF\r\nDIFI\r\nDIFM\r\n");

  EXPECT_EQ(Main().I_Station.Caption(), "F9QZX/P");
  EXPECT_EQ(Main().L_Station.Caption(), "JN33BB");
  EXPECT_EQ(Main().Frame5.Caption(), "Vorelio de F9QZX/P");
  EXPECT_EQ(programme->contexte.Station_Indicatif, "F9QZX_P");
  EXPECT_EQ(programme->contexte.Station_Locator, "JN33BB");
}

TEST_F(StationFormTest, ClosedWithoutAChoiceTheTemplateStationStays) {
  windows.OnModal = [&](Form&) { Window().Quitter.UserClick(); };
  Event([&] { Main(); });
  EXPECT_EQ(programme->contexte.Station_Indicatif, "FXXXX");
  EXPECT_EQ(Setting("Setup", "Nombre Indicatif"), "");
  EXPECT_EQ(programme->Erreur_Fatale(), 0);
}

TEST_F(StationFormTest, ASecondStationAndBack) {
  OpenOver("F6ABC");
  const std::string contact = "12/05/03  F1XYZ       12:34  12:35  06" + std::string(161, ' ');
  WriteLines("F6ABC.log", {contact, contact});
  Event([&] { Main().Bande_A.UserSelect(4); });
  Create("F9QZX", "jn18eu");
  EXPECT_EQ(programme->Ouverte<Station>(), nullptr);
  EXPECT_EQ(Main().I_Station.Caption(), "F9QZX");
  EXPECT_EQ(Main().Liste_QSO.Count(), 0);
  EXPECT_EQ(Main().Frame4.Caption(), "QSO num\xE9ro 1");
  EXPECT_EQ(programme->Focus(), &Main().Bande_A);
  EXPECT_EQ(programme->contexte.Numero_Sauvegarde, 0);
  settings.Write("DDFM", "Setup F9QZX", "bande Utilisee", "10");
  settings.Write("DDFM", "Setup F9QZX", "Mode Utilise", "1");
  settings.Write("DDFM", "Setup F9QZX", "Heure UTC", "False");
  settings.Write("DDFM", "Setup F9QZX", "Date Automatique", "False");

  Open();
  EXPECT_EQ(Window().Liste_Indicatifs.Items(),
            (Lines{"F6ABC        JN33BB", "F9QZX        JN18EU", "Nouvel Indicatif"}));
  EXPECT_EQ(Window().New_Indicatif.Text() + Window().New_Locator.Text(), "");
  const auto before = settings.values;
  disk.Forget();
  Pick(0);
  EXPECT_EQ(Main().I_Station.Caption(), "F6ABC");
  EXPECT_EQ(Main().L_Station.Caption(), "JN33BB");
  EXPECT_EQ(Main().Liste_QSO.Count(), 2);
  EXPECT_EQ(Main().Liste_QSO.ListIndex(), 1);
  EXPECT_EQ(programme->contexte.Nb_QSO, 2);
  EXPECT_TRUE(Main().Mnu_Auto_Oui.Checked());
  // Nothing is saved but the choice, and nothing is written to the disk.
  EXPECT_EQ(disk.Changes(), Lines{});
  auto after = settings.values;
  for (const char* key : {"Indicatif Station", "Locator Station"})
    after[{"DDFM", "Setup", key}] = before.at({"DDFM", "Setup", key});
  EXPECT_EQ(after, before);

  Open();
  Pick(1);
  EXPECT_EQ(Main().Bande_A.Text(), "144 Mhz");
  EXPECT_EQ(Main().Mode_A.Text(), "CW");
  EXPECT_TRUE(Main().Mnu_UTC_Non.Checked());
  EXPECT_EQ(Main().Label15.Caption(), "Date manuelle");
  // The line selected in the log before is forgotten with it.
  EXPECT_EQ(programme->saisie.Ligne_Selection, "");
}

TEST_F(StationFormTest, KeysAndColoursOfTheChain) {
  OpenOver("F6ABC");
  Station& window = Window();
  int key = 'f';
  window.Liste_Indicatifs.KeyPress(key);
  EXPECT_EQ(key, 'F');
  key = '/';
  window.Liste_Indicatifs.KeyPress(key);
  EXPECT_EQ(key, '_');

  Enter(window.Liste_Indicatifs);
  EXPECT_EQ(window.Liste_Indicatifs.Colour(), kFace_Bouton);
  EXPECT_EQ(window.New_Indicatif.Text() + "|" + window.New_Locator.Text(), "F6ABC|JN33BB");
  EXPECT_EQ(programme->Focus(), &window.Validation);
  EXPECT_FALSE(window.New_Indicatif.Enabled());

  Event([&] { window.Liste_Indicatifs.UserSelect(1); });
  Enter(window.Liste_Indicatifs);
  for (const Control* opened : std::initializer_list<const Control*>{&window.New_Indicatif, &window.New_Locator,
                                                                     &window.Label3, &window.Label4, &window.Label5})
    EXPECT_TRUE(opened->Enabled()) << opened->Name();
  EXPECT_EQ(window.New_Indicatif.Text() + window.New_Locator.Text(), "");
  EXPECT_EQ(window.New_Indicatif.Colour(), kSaisie);
  EXPECT_EQ(programme->Focus(), &window.New_Indicatif);
  Type(window.New_Indicatif, "f9q/p\r");
  EXPECT_EQ(window.New_Indicatif.Text(), "F9Q_P");
  EXPECT_EQ(window.New_Indicatif.Colour(), kFait);
  EXPECT_EQ(window.New_Locator.Colour(), kSaisie);
  EXPECT_EQ(programme->Focus(), &window.New_Locator);
  Type(window.New_Locator, "jn/\r");
  EXPECT_EQ(window.New_Locator.Text(), "JN/");
  EXPECT_EQ(window.New_Locator.Colour(), kFait);
  EXPECT_EQ(programme->Focus(), &window.Validation);
}

TEST_F(StationFormTest, RefusedInputs) {
  OpenOver("F6ABC");
  const std::string signs = "L'indicatif ne doit comporter que des lettres des chiffres ou le signe _ ";
  const struct {
    const char *call, *locator, *box, *call_left;
  } cases[] = {
      {"", "", "Vous devez entrer un indicatif", ""},
      {"ABCDEFGHIJKLM", "", "12 caracteres maximum pour l'indicatif", "ABCDEFGHIJKLM"},
      {"F6 ABC", "", signs.c_str(), ""},
      {"F6-ABC", "JN33BB", signs.c_str(), ""},
      {"F6ABC\xC9", "JN33BB", signs.c_str(), ""},
      {"F6ABC", "", "Vous devez entrer un locator", "F6ABC"},
      {"F6ABC", "JN33", "Le locator doit comporter 6 caracteres", "F6ABC"},
      {"F6ABC", "JN33BBB", "Le locator doit comporter 6 caracteres", "F6ABC"},
      {"F6ABC", "JNA3BB", "Erreur dans la saisie du locator", "F6ABC"},
  };
  const auto before = settings.values;
  Enter(Window().Liste_Indicatifs);
  for (const auto& test : cases) {
    SCOPED_TRACE(test.box);
    Window().New_Indicatif.SetText(test.call);
    Window().New_Locator.SetText(test.locator);
    disk.Forget();
    Event([&] { Window().Validation.UserClick(); });
    EXPECT_EQ(messages.TakeMessages(), Lines{test.box});
    EXPECT_EQ(Window().New_Indicatif.Text(), test.call_left);
    EXPECT_TRUE(Window().Visible());
    EXPECT_EQ(disk.Log(), Lines{});
  }
  EXPECT_EQ(settings.values, before);
}

TEST_F(StationFormTest, TwelveCharactersFitAndARetypedCallsignIsListedTwice) {
  OpenOver("F6ABC");
  Create("ABCDEFGHIJKL", "JN33BB");
  EXPECT_EQ(Setting("Setup", "Indicatif2"), "ABCDEFGHIJKL JN33BB");

  const std::string contact = "12/05/03  F1XYZ";
  WriteLines("F6ABC.log", {contact});
  Open();
  Create("F6ABC", "JN18EU");
  EXPECT_EQ(Setting("Setup", "Nombre Indicatif"), "3");
  EXPECT_EQ(Setting("Setup", "Indicatif3"), "F6ABC        JN18EU");
  EXPECT_EQ(Setting("Setup", "Locator Station"), "JN18EU");
  EXPECT_EQ(Setting("Setup F6ABC", "Locator Station"), "JN33BB");
  EXPECT_EQ(Read("F6ABC.log"), contact + "\r\n");
  EXPECT_EQ(Main().Liste_QSO.Count(), 1);
}

TEST_F(StationFormTest, AListedStationWithoutItsLogIsMadeAnew) {
  OpenOver("F6ABC");
  folder.Remove("F6ABC.log");
  settings.Write("DDFM", "Setup F6ABC", "NB Activite", "9");
  Pick(0);
  EXPECT_TRUE(folder.Exists("F6ABC.log"));
  EXPECT_EQ(Setting("Setup F6ABC", "NB Activite"), "5");
  EXPECT_EQ(Setting("Setup", "Nombre Indicatif"), "1");
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
  EXPECT_EQ(Setting("Setup", "Indicatif Station"), "F9QZX");
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
  EXPECT_EQ(Window().Liste_Indicatifs.Items(), (Lines{"F6ABC        JN33BB", "No Call", "Nouvel Indicatif"}));
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
