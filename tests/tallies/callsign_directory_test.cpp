#include "tallies/callsign_directory.h"

#include "support/rows.h"
#include "support/station_fixture.h"
#include "tallies/directory_window.h"

namespace vorelio::tests {
namespace {

constexpr const char* kFile = "Nomenclature.txt";

class CallsignDirectoryTest : public StationFixture {
 protected:
  std::string Look(std::string_view call) {
    std::string department = "??", locator = "??????";
    Event([&] { Cherche_Nomenclature(*programme, call, department, locator); });
    return department + "|" + locator;
  }
  void Update(std::string_view call, std::string_view department, std::string_view locator) {
    Event([&] { Maj_Nomenclature(*programme, call, department, locator); });
  }
};

TEST_F(CallsignDirectoryTest, LookUpByTheFirstTenCharacters) {
  WriteLines(kFile, {"F6ABC      06 JN33BB", "F6ABC      83 JN23AA", "F9QZX/P    9  JN18", "F9QZX",
                     "ABCDEFGHIJ 2A   JN33", "DL1ABC     67 JN48AA,F1XYZ      75 JN18EU"});
  EXPECT_EQ(Look("F6ABC"), "06|JN33BB");
  EXPECT_EQ(Look("F9QZX/P"), "09|JN18");
  EXPECT_EQ(Look("F9QZX"), "|");
  EXPECT_EQ(Look("ABCDEFGHIJ"), "2A|JN33");
  EXPECT_EQ(Look("ABCDEFGHIJK"), "|");
  EXPECT_EQ(Look("f6abc"), "|");
  // A comma ends a record as a line end does.
  EXPECT_EQ(Look("DL1ABC"), "67|JN48AA");
  EXPECT_EQ(Look("F1XYZ"), "75|JN18EU");

  Write(kFile, "F6ABC      06 JN33BB\nF1XYZ      75 JN18EU");
  EXPECT_EQ(Look("F1XYZ"), "75|JN18EU");
  Write(kFile, "");
  EXPECT_EQ(Look("F6ABC"), "|");
  folder.Remove(kFile);
  Look("F6ABC");
  EXPECT_EQ(programme->Erreur_Fatale(), 53);
}

TEST_F(CallsignDirectoryTest, UpdateReplacesOrAddsAtTheEnd) {
  Update("F6ABC", "06", "JN33BB");
  EXPECT_EQ(Read(kFile), "F6ABC      06 JN33BB\r\n");
  EXPECT_EQ(disk.Log(), (Lines{"read Nomenclature.txt", "write Temporaire5.txt", "delete Nomenclature.txt",
                               "read Temporaire5.txt", "write Nomenclature.txt", "delete Temporaire5.txt"}));

  Write(kFile, "F6ABC      06 JN33BB\nDL1ABC     67 JN48AA,kept\r\n\r\nF1XYZ      75 JN18EU");
  Update("F1XYZ", "9", "JN1");
  EXPECT_EQ(Read(kFile), "F6ABC      06 JN33BB\r\nDL1ABC     67 JN48AA,kept\r\n\r\nF1XYZ      9  JN1\r\n");
  Update("ABCDEFGHIJK", "", "");
  EXPECT_EQ(Line(kFile, 5), "ABCDEFGHIJK   ");
  EXPECT_FALSE(folder.Exists("Temporaire5.txt"));
}

TEST_F(CallsignDirectoryTest, ASecondLineOfACallsignGetsBothReplacements) {
  WriteLines(kFile, {"F6ABC      06 JN33BB", "F1XYZ", "F6ABC      83 JN23AA"});
  Update("F6ABC", "13", "JN23XX");
  EXPECT_EQ(Read(kFile), "F6ABC      13 JN23XX\r\nF1XYZ\r\nF6ABC      13 JN23XXF6ABC      13 JN23XX\r\n");
}

TEST_F(CallsignDirectoryTest, WhatDoesNotFitLeavesTheDirectory) {
  const struct { const char *call, *department; } cases[] = {{"ABCDEFGHIJKL", "06"}, {"F6ABC", "1234"}};
  for (const auto& test : cases) {
    Restart();
    WriteLines(kFile, {"F6ABC      06 JN33BB"});
    Update(test.call, test.department, "JN33BB");
    EXPECT_EQ(programme->Erreur_Fatale(), 5) << test.call;
    EXPECT_EQ(Read(kFile), "F6ABC      06 JN33BB\r\n");
  }
  EXPECT_EQ(Debut_Nomenclature("ABCDEFGHIJK", "123"), "ABCDEFGHIJK123");
}

class DirectoryWindowTest : public CallsignDirectoryTest {
 protected:
  DirectoryWindowTest() {
    WriteLines(kFile, {"F6ABC      06 JN33BB", "DL1ABC     67 JN48AA", "F1XYZ      75   JN18"});
    programme->saisie.Locator_Repertoire = "JN99XX";
    Event([this] { programme->Fenetre<Fichier_Nomenclature>().Show(); });
  }

  Fichier_Nomenclature& Window() { return programme->Fenetre<Fichier_Nomenclature>(); }
  void Fill(std::string_view call, std::string_view department, std::string_view locator) {
    Window().Ind_Edit.UserText(call, 0);
    Window().Dep_Edit.UserText(department, 0);
    Window().Loc_Edit.UserText(locator, 0);
  }
  Lines Press(Button& button) {
    Event([&] { button.UserClick(); });
    return messages.TakeMessages();
  }
  std::string Fields() {
    return Window().Ind_Edit.Text() + "|" + Window().Dep_Edit.Text() + "|" + Window().Loc_Edit.Text();
  }
  void Pick(int row) {
    Event([&] { Window().Liste_Nomenclature.UserSelect(row); });
  }
};

TEST_F(DirectoryWindowTest, AddingTestsCallsignLocatorAndDoubles) {
  const std::string no_call = "Attention pas d'indicatif ou indicatif superieur a 10 caracteres";
  const std::string no_locator = "Attention pas de locator ou locator superieur a 6 caracteres";
  const struct {
    const char *call, *department, *locator;
    std::string box;
  } cases[] = {
      {"", "06", "JN33BB", no_call},
      {"ABCDEFGHIJK", "06", "JN33BB", no_call},
      {"F5AAA", "06", "", no_locator},
      {"F5AAA", "06", "JN33BBB", no_locator},
      {"F6ABC", "06", "JN33BB", "Attention l'indicatif F6ABC est deja present dans le fichier"},
  };
  for (const auto& test : cases) {
    Fill(test.call, test.department, test.locator);
    EXPECT_EQ(Press(Window().Ajouter), Lines{test.box});
    EXPECT_EQ(Window().Liste_Nomenclature.Count(), 3);
  }

  Fill("f6aba", "123", "JN3");
  EXPECT_EQ(Press(Window().Ajouter), Lines{});
  EXPECT_EQ(Window().Liste_Nomenclature.Item(2), "F6ABA      123   JN3");
  EXPECT_EQ(Fields(), "||");
  // The test is of the text as it stands: small letters pass it.
  Fill("f6aba", "", "JN33BB");
  EXPECT_EQ(Press(Window().Ajouter), Lines{});
  EXPECT_EQ(Window().Liste_Nomenclature.Item(2), "F6ABA         JN33BB");

  Fill("F5AAA", "1234", "JN33BB");
  Press(Window().Ajouter);
  EXPECT_EQ(programme->Erreur_Fatale(), 5);
}

TEST_F(DirectoryWindowTest, EditingReplacesThePickedLine) {
  const struct {
    const char *call, *department, *locator, *box;
  } cases[] = {
      {"", "123", "JN33BBB", "Selectionnez une ligne d'abord"},
      {"ABCDEFGHIJK", "123", "JN33BBB", "Attention Indicatif superieur a 10 caracteres"},
      {"F6ABC", "123", "JN33BBB", "Attention locator superieur a 6 caracteres"},
      {"F6ABC", "123", "JN33BB", "Attention departement superieur a 2 caracteres"},
  };
  Pick(2);
  for (const auto& test : cases) {
    Fill(test.call, test.department, test.locator);
    EXPECT_EQ(Press(Window().Editer), Lines{test.box});
  }
  Fill("a1aa", "2A", "");
  EXPECT_EQ(Press(Window().Editer), Lines{});
  EXPECT_EQ(Texts(Window().Liste_Nomenclature.Items()),
            (Lines{"A1AA       2A       ", "DL1ABC     67 JN48AA", "F1XYZ      75   JN18"}));
  EXPECT_EQ(Fields(), "||");

  // The line that was selected is gone, and nothing else is.
  Fill("F5AAA", "06", "JN33BB");
  Press(Window().Editer);
  EXPECT_EQ(programme->Erreur_Fatale(), 5);
}

}  // namespace
}  // namespace vorelio::tests
