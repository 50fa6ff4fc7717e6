#include "tallies/prefix_tally.h"

#include "core/text.h"
#include "statistics/prefix_statistics_window.h"
#include "support/station_fixture.h"
#include "tallies/add_prefix_window.h"

namespace vorelio::tests {
namespace {

constexpr const char* kFile = "F6ABC_Prefixe.txt";

class PrefixTallyTest : public StationFixture {
 protected:
  PrefixTallyTest() {
    ReadyStation();
    WriteLines(kFile, {"FK     00000000000000000  Nouvelle-Calédonie"_t, "F      00100000000000000  France",
                       "ABCDEF 00000000000000000  Six", "X"});
  }

  /// Both give what they leave in the three outputs.
  std::string Look(std::string_view call, std::string_view band) {
    Event([&] { Cherche_Prefixe(*programme, call, band, code, country, prefix); });
    return code + "|" + country + "|" + prefix;
  }
  std::string Update(std::string_view call, std::string_view band) {
    Event([&] { Maj_Prefixe(*programme, call, band, code, country, prefix); });
    return code + "|" + country + "|" + prefix;
  }

  std::string code = "?", country = "old", prefix = "OLD";
};

TEST_F(PrefixTallyTest, LookUpTellsOfAPrefixThatIsNewOnTheBand) {
  EXPECT_EQ(Look("F6ABC", "7.0 Mhz"), "1|France|F");
  EXPECT_EQ(messages.TakeMessages(), Lines{});
  EXPECT_EQ(Look("F6ABC", "14 Mhz"), "0|France|F");
  EXPECT_EQ(messages.TakeMessages(), Lines{"Nouveau prefixe : F   Pays : France   sur Bande : 14 Mhz"});
  EXPECT_EQ(Look("FK8AA", "24 Ghz"), "0|Nouvelle-Calédonie|FK"_t);
}

TEST_F(PrefixTallyTest, OnlyFiveCharactersOfAPrefixAreCompared) {
  EXPECT_EQ(Look("ABCDE1", "14 Mhz"), "0|Six|ABCDE");
  EXPECT_EQ(Look("XX1A", "14 Mhz"), "||X");
  EXPECT_EQ(messages.TakeMessages().back(), "Nouveau prefixe : X   Pays :    sur Bande : 14 Mhz");

  WriteLines(kFile, {"       01", "F      00000000000000000  France"});
  EXPECT_EQ(Look("DL1ABC", "3.5 Mhz"), "1||");
}

TEST_F(PrefixTallyTest, UnknownPrefixLeavesTheOutputs) {
  EXPECT_EQ(Look("DL1ABC", "14 Mhz"), "?|old|OLD");
  EXPECT_EQ(messages.TakeMessages().size(), 1U);

  const std::string before = Read(kFile);
  disk.Forget();
  messages.OnBox = [&](const Box&) {
    // The box waits between the two halves of the rewriting.
    EXPECT_TRUE(folder.Exists("Temporaire1.txt"));
    EXPECT_EQ(disk.Log().size(), 2U);
  };
  EXPECT_EQ(Update("DL1ABC", "14 Mhz"), "?|old|OLD");
  EXPECT_EQ(messages.TakeMessages().size(), 1U);
  EXPECT_EQ(Read(kFile), before);
  EXPECT_EQ(disk.Log(), (Lines{"read F6ABC_Prefixe.txt", "write Temporaire1.txt", "delete F6ABC_Prefixe.txt",
                               "copy Temporaire1.txt F6ABC_Prefixe.txt", "delete Temporaire1.txt"}));
}

TEST_F(PrefixTallyTest, ABandOutsideTheTableLeavesTheCallersCode) {
  EXPECT_EQ(Look("F6ABC", "70 Mhz"), "?|France|F");
  const std::string before = Read(kFile);
  EXPECT_EQ(Update("F6ABC", "70 Mhz"), "?|France|F");
  EXPECT_EQ(Read(kFile), before);
}

TEST_F(PrefixTallyTest, UpdateMarksTheFirstMatchOnly) {
  WriteLines(kFile, {"F      00000000000000002  France", "F6     00000000000000000  Never", "X"});
  EXPECT_EQ(Update("F6ABC", "1.8 Mhz"), "0|France|F");
  EXPECT_EQ(Update("F6ABC", "24 Ghz"), "2|France|F");
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

  // After a line that an editor has left open.
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
  const std::pair<std::string, int> cases[] = {
      {"F      00000000000000000  " + std::string(35, 'x'), 0},
      {"F      00000000000000000  " + std::string(36, 'x'), 5},
      {"F      00A00000000000000  France", 13},
      {"F      0A000000000000000  France", 0},
      {"F      00 00000000000000  France", 13},
  };
  for (const auto& [line, error] : cases) {
    SCOPED_TRACE(line);
    Restart();
    ReadyStation();
    WriteLines(kFile, {line});
    Event([&] { programme->Fenetre<Statistique_Prefixe>(); });
    EXPECT_EQ(programme->Erreur_Fatale(), error);
  }
}

}  // namespace
}  // namespace vorelio::tests
