#include "tallies/locator_tally.h"

#include "entry/ddfm.h"
#include "maps/tally_painting.h"
#include "stations/error_window.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

constexpr const char* kFile = "F6ABC_Locator.txt";

class LocatorTallyTest : public StationFixture {
 protected:
  LocatorTallyTest() { ReadyStation(); }

  /// What a look-up leaves in its two outputs.
  std::string Look(std::string_view locator, std::string_view band) {
    Event([&] { Cherche_Locator(*programme, locator, code, band, line); });
    return code + "|" + line;
  }
  void Paint(std::string_view band, std::string_view field) {
    Event([&] { Affiche_Locators(*programme, band, field, total); });
  }
  TextField& Cell(int index) { return programme->Fenetre<DDFM>().Dpt(index); }

  std::string code = "?", line = "old";
  int total = -1;
};

TEST_F(LocatorTallyTest, LookUpByTheFirstFourCharacters) {
  WriteLines(kFile, {"JN33 12345670 tail", "JN33 00000000", "JN34 0"});
  EXPECT_EQ(Look("JN33BB", "144 Mhz"), "2|JN33 12345670 tail");
  EXPECT_EQ(Look("JN33", "24 Ghz"), "0|JN33 12345670 tail");
  EXPECT_EQ(Look("JN34AA", "432 Mhz"), "|JN34 0");

  code = "?";
  line = "old";
  EXPECT_EQ(Look("HM12AA", "144 Mhz"), "?|old");
  // A band without a column empties the code, and gives the line.
  EXPECT_EQ(Look("JN33BB", "14 Mhz"), "|JN33 12345670 tail");
}

TEST_F(LocatorTallyTest, LookUpWithoutTheFileOpensTheErrorWindow) {
  folder.Remove(kFile);
  windows.OnWait = [&] {
    Event([&] {
      line = programme->Fenetre<Gestion_Erreur>().Err_Departement.Caption();
      programme->Fenetre<Gestion_Erreur>().Quitter.UserClick();
    });
  };
  Look("JN33BB", "144 Mhz");
  EXPECT_EQ(line, "_Locator.txt");
  EXPECT_TRUE(programme->Termine_Deja());
}

TEST_F(LocatorTallyTest, UpdateByTheWholeKey) {
  Write(kFile, "JN33 00000000 tail\r\nJN34 00000000\nJN33\nJN33 3");
  Event([&] { Maj_Locator(*programme, "JN33", "1", "432 Mhz"); });
  EXPECT_EQ(Read(kFile), "JN33 00100000 tail\r\nJN34 00000000\r\nJN33 001\r\nJN33 301\r\n");
  EXPECT_EQ(disk.Log(), (Lines{"read F6ABC_Locator.txt", "write Temporaire3.txt", "delete F6ABC_Locator.txt",
                               "copy Temporaire3.txt F6ABC_Locator.txt", "delete Temporaire3.txt"}));

  const std::string before = Read(kFile);
  Event([&] { Maj_Locator(*programme, "JN33BB", "4", "432 Mhz"); });
  EXPECT_EQ(Read(kFile), before);
  // A square left over from the contact before, and a contact on HF.
  Event([&] { Maj_Locator(*programme, "JN33", "4", "14 Mhz"); });
  EXPECT_EQ(Read(kFile), before);

  folder.Remove(kFile);
  Event([&] { Maj_Locator(*programme, "JN33", "1", "432 Mhz"); });
  EXPECT_EQ(programme->Erreur_Fatale(), 53);
}

TEST_F(LocatorTallyTest, PaintingShowsOneFieldOnPaleCells) {
  WriteLines(kFile, {"JN00 01000000", "JN20 02000000", "JN33 03000000", "JN33 04000000", "JN99 09000000",
                     "JO33 01000000", "JN44 00000000", "JN55", "", "JNXX 09000000"});
  Event([&] { Cell(0); });
  Paint("144 Mhz", "JN");
  EXPECT_EQ(total, 6);
  EXPECT_EQ(Cell(0).Colour(), 0xC0C0FFU);
  EXPECT_EQ(Cell(20).Colour(), 0x00FFFFU);
  EXPECT_EQ(Cell(33).Colour(), 0x80FF80U);
  for (const int pale : {1, 44, 55, 99}) EXPECT_EQ(Cell(pale).Colour(), 0xC0FFFFU) << pale;

  Paint("144 Mhz", "IO");
  EXPECT_EQ(total, 0);
  EXPECT_EQ(Cell(33).Colour(), 0xC0FFFFU);
  // A square in place of the field finds no line.
  Paint("144 Mhz", "JN33");
  EXPECT_EQ(total, 0);
  EXPECT_EQ(programme->Erreur_Fatale(), 0);
}

TEST_F(LocatorTallyTest, ABandWithoutSquaresCountsTheWholeField) {
  Event([&] { Cell(0); });
  Paint("14 Mhz", "JN");
  EXPECT_EQ(total, 100);
  EXPECT_EQ(Cell(33).Colour(), 0xC0FFFFU);
}

TEST_F(LocatorTallyTest, PaintingErrorsEndTheProgramWithTheirOwnNumber) {
  Event([&] { Cell(0); });
  WriteLines(kFile, {"JNXX 01000000"});
  Paint("144 Mhz", "JN");
  EXPECT_EQ(programme->Erreur_Fatale(), 13);

  Restart();
  ReadyStation();
  Event([&] { Cell(0); });
  folder.Remove(kFile);
  Paint("144 Mhz", "JN");
  EXPECT_EQ(programme->Erreur_Fatale(), 53);
}

}  // namespace
}  // namespace vorelio::tests
