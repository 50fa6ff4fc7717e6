#include "tallies/prefix_tally.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "support/station_fixture.h"
#include "tallies/add_prefix_window.h"
#include "tallies/prefix_statistics_window.h"

namespace vorelio::tests {
namespace {

using namespace Sous_Programmes;

constexpr const char* kFile = "F6ABC_Prefixe.txt";

const std::string kUnknownAtEntry =
    "            Prefixe Inconnu, annulez la saisie du QSO\r\n"
    "Dans 'Outils' puis 'Ajout d'un Prefixe', renseignez les 2 fenetres\r\n"
    "                    Saisissez a nouveau le QSO";
const std::string kUnknownAtSave =
    "Prefixe Inconnu, annulez la saisie du QSO\r\n"
    "Dans Fichier puis Ajout Prefixe, renseignez les 2 fenetres\r\n"
    "Saisissez a nouveau le QSO";

class PrefixTallyTest : public StationFixture {
 protected:
  PrefixTallyTest() {
    ReadyStation();
    WriteLines(kFile, {"FK     00000000000000000  Nouvelle-Cal\xE9"
                       "donie",
                       "F      00100000000000000  France", "ABCDEF 00000000000000000  Six", "X"});
  }

  void Look(std::string_view call, std::string_view band) {
    Event([&] { Cherche_Prefixe(*programme, call, band, code, country, prefix); });
  }
  void Update(std::string_view call, std::string_view band) {
    Event([&] { Maj_Prefixe(*programme, call, band, code, country, prefix); });
  }
  std::string Found() const { return code + "|" + country + "|" + prefix; }

  std::string code = "?", country = "old", prefix = "OLD";
};

TEST_F(PrefixTallyTest, LookUpTellsOfAPrefixThatIsNewOnTheBand) {
  Look("F6ABC", "7.0 Mhz");
  EXPECT_EQ(Found(), "1|France|F");
  EXPECT_EQ(messages.TakeMessages(), Lines{});
  Look("F6ABC", "14 Mhz");
  EXPECT_EQ(Found(), "0|France|F");
  EXPECT_EQ(messages.TakeMessages(), Lines{"Nouveau prefixe : F   Pays : France   sur Bande : 14 Mhz"});
  Look("FK8AA", "24 Ghz");
  EXPECT_EQ(Found(),
            "0|Nouvelle-Cal\xE9"
            "donie|FK");
}

TEST_F(PrefixTallyTest, OnlyFiveCharactersOfAPrefixAreCompared) {
  Look("ABCDE1", "14 Mhz");
  EXPECT_EQ(Found(), "0|Six|ABCDE");
  Look("XX1A", "14 Mhz");
  EXPECT_EQ(Found(), "||X");
  EXPECT_EQ(messages.TakeMessages().back(), "Nouveau prefixe : X   Pays :    sur Bande : 14 Mhz");

  WriteLines(kFile, {"       01", "F      00000000000000000  France"});
  Look("DL1ABC", "3.5 Mhz");
  EXPECT_EQ(Found(), "1||");
}

TEST_F(PrefixTallyTest, UnknownPrefixLeavesTheOutputs) {
  Look("DL1ABC", "14 Mhz");
  EXPECT_EQ(Found(), "?|old|OLD");
  EXPECT_EQ(messages.TakeMessages(), Lines{kUnknownAtEntry});

  const std::string before = Read(kFile);
  disk.Forget();
  messages.OnBox = [&](const Box&) {
    // The box waits between the two halves of the rewriting.
    EXPECT_TRUE(folder.Exists("Temporaire1.txt"));
    EXPECT_EQ(disk.Log().size(), 2U);
  };
  Update("DL1ABC", "14 Mhz");
  EXPECT_EQ(Found(), "?|old|OLD");
  EXPECT_EQ(messages.TakeMessages(), Lines{kUnknownAtSave});
  EXPECT_EQ(Read(kFile), before);
  EXPECT_EQ(disk.Log(), (Lines{"read F6ABC_Prefixe.txt", "write Temporaire1.txt", "delete F6ABC_Prefixe.txt",
                               "copy Temporaire1.txt F6ABC_Prefixe.txt", "delete Temporaire1.txt"}));
}

TEST_F(PrefixTallyTest, ABandOutsideTheTableLeavesTheCallersCode) {
  Look("F6ABC", "70 Mhz");
  EXPECT_EQ(Found(), "?|France|F");
  const std::string before = Read(kFile);
  Update("F6ABC", "70 Mhz");
  EXPECT_EQ(Found(), "?|France|F");
  EXPECT_EQ(Read(kFile), before);
}

TEST_F(PrefixTallyTest, UpdateMarksTheFirstMatchOnly) {
  WriteLines(kFile, {"F      00000000000000002  France", "F6     00000000000000000  Never", "X"});
  Update("F6ABC", "1.8 Mhz");
  EXPECT_EQ(Found(), "0|France|F");
  Update("F6ABC", "24 Ghz");
  EXPECT_EQ(Found(), "2|France|F");
  Update("X1A", "3.5 Mhz");
  EXPECT_EQ(Read(kFile), "F      10000000000000002  France\r\nF6     00000000000000000  Never\r\nX      01\r\n");
  EXPECT_EQ(messages.TakeMessages(), Lines{});
}

TEST_F(PrefixTallyTest, FrenchPrefixesAndCallsigns) {
  for (const char* yes : {"F", "TH", "TK", "TM", "TP", "TQ", "TV", "TW", "HW", "HX", "HY"})
    EXPECT_TRUE(Prefixe_Francais(yes)) << yes;
  for (const char* no : {"", "FK", "T", "f", "TM ", "DL"}) EXPECT_FALSE(Prefixe_Francais(no)) << no;
  for (const char* call : {"F9AAA", "F", "TM9X", "TK5", "HW1", "HY"}) EXPECT_TRUE(Indicatif_Francais(call)) << call;
  for (const char* call : {"HB9AA", "TA1", "TN8", "", "T", "3A2"}) EXPECT_FALSE(Indicatif_Francais(call)) << call;
}

TEST_F(PrefixTallyTest, AddedPrefixGoesToTheEnd) {
  auto& window = programme->Fenetre<Ajout_Prefixe>();
  window.Show();
  const auto add = [&](std::string_view typed_prefix, std::string_view typed_country) {
    window.N_Prefixe.UserText(typed_prefix, 0);
    window.N_Pays.UserText(typed_country, 0);
    window.Ajouter.UserClick();
    return messages.TakeMessages();
  };
  const std::string before = Read(kFile);
  EXPECT_EQ(add("", ""), Lines{"Entrez un prefixe"});
  EXPECT_EQ(add("ABCDEFG", ""), Lines{"6 caracteres maximum pour le prefixe"});
  EXPECT_EQ(add("DL", ""), Lines{"Entrez un Pays"});
  EXPECT_EQ(Read(kFile), before);
  EXPECT_TRUE(window.Visible());

  disk.Forget();
  EXPECT_EQ(add("dl", "Allemagne"), Lines{});
  EXPECT_FALSE(window.Visible());
  EXPECT_EQ(disk.Changes(), Lines{"append F6ABC_Prefixe.txt"});
  EXPECT_EQ(Read(kFile), before + "dl     00000000000000000  Allemagne\r\n");

  // Behind a line that an editor has left open.
  Write(kFile, "F      00100000000000000  France");
  window.Show();
  add("QWERTY", "X");
  EXPECT_EQ(Read(kFile), "F      00100000000000000  France\r\nQWERTY 00000000000000000  X\r\n");
  folder.Remove(kFile);
  window.Show();
  add("Q", "X");
  EXPECT_EQ(Read(kFile), "Q      00000000000000000  X\r\n");
}

TEST_F(PrefixTallyTest, StatisticsFailOnWhatTheyCannotShow) {
  const struct {
    std::string line;
    int error;
  } cases[] = {
      {"F      00000000000000000  " + std::string(35, 'x'), 0},
      {"F      00000000000000000  " + std::string(36, 'x'), 5},
      {"F      00A00000000000000  France", 13},
      {"F      0A000000000000000  France", 0},
      {"F      00 00000000000000  France", 13},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.line);
    Restart();
    ReadyStation();
    WriteLines(kFile, {test.line});
    Event([&] { programme->Fenetre<Statistique_Prefixe>(); });
    EXPECT_EQ(programme->Erreur_Fatale(), test.error);
  }
}

}  // namespace
}  // namespace vorelio::tests
