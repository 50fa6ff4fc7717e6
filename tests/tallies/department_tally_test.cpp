#include "tallies/department_tally.h"

#include "entry/ddfm.h"
#include "maps/tally_painting.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

constexpr const char* kFile = "F6ABC_Departement.txt";

class DepartmentTallyTest : public StationFixture {
 protected:
  DepartmentTallyTest() { ReadyStation(); }

  /// What a look-up leaves in its three outputs.
  std::string Look(std::string_view key, std::string_view band) {
    Event([&] { Cherche_Departement(*programme, key, code, name, band, line); });
    return code + "|" + name + "|" + line;
  }
  void Update(std::string_view key, std::string_view code_to_write, std::string_view band) {
    Event([&] { Maj_Departement(*programme, key, code_to_write, band); });
  }
  void Paint(std::string_view band) {
    Event([&] { counts = Affiche_Departements(*programme, band, total); });
  }
  /// Starts the program, so that its grid is there.
  TextField& Cell(int index) { return programme->Fenetre<DDFM>().Dpt(index); }

  std::string code = "?", name = "old name", line = "old line";
  int total = -1;
  Compte_Departements counts;
};

TEST_F(DepartmentTallyTest, LookUpTakesTheFirstLineOfAKey) {
  WriteLines(kFile, {"01 01234567890123456   Ain", "06 0000000003       x", "06 00000000040000000 Second", "07"});
  EXPECT_EQ(Look("01", "24 Ghz"), "6|Ain|01 01234567890123456   Ain");
  EXPECT_EQ(Look("06", "50 Mhz"), "3||06 0000000003       x");
  EXPECT_EQ(Look("07", "50 Mhz"), "||07");
}

TEST_F(DepartmentTallyTest, LookUpLeavesWhatItDoesNotFind) {
  WriteLines(kFile, {"01 00000000000000000 Ain"});
  EXPECT_EQ(Look("99", "14 Mhz"), "?|old name|old line");
  // A band outside the table leaves the code, and gives the rest.
  EXPECT_EQ(Look("01", "70 Mhz"), "?|Ain|01 00000000000000000 Ain");
  EXPECT_EQ(disk.Log(), (Lines{std::string("read ") + kFile, std::string("read ") + kFile}));

  Write(kFile, "");
  EXPECT_EQ(Look("01", "14 Mhz").front(), '?');
  folder.Remove(kFile);
  Look("01", "14 Mhz");
  EXPECT_EQ(programme->Erreur_Fatale(), 53);
}

TEST_F(DepartmentTallyTest, UpdateChangesOneColumnOfEveryLineOfTheKey) {
  Write(kFile,
        "06 00000000030000000 Alpes-Maritimes\r\n"
        "6\n"
        "\r\n"
        "06\n"
        "06 00\r\n"
        "58 00000000000000000 Ni\xE8vre\n"
        "06 00000000000000000 last");
  Update("06", "2", "50 Mhz");
  EXPECT_EQ(Read(kFile),
            "06 00000000020000000 Alpes-Maritimes\r\n"
            "6\r\n"
            "\r\n"
            "06 0000000002\r\n"
            "06 0000000002\r\n"
            "58 00000000000000000 Ni\xE8vre\r\n"
            "06 00000000020000000 last\r\n");
  EXPECT_EQ(disk.Log(), (Lines{"read F6ABC_Departement.txt", "write Temporaire2.txt", "delete F6ABC_Departement.txt",
                               "copy Temporaire2.txt F6ABC_Departement.txt", "delete Temporaire2.txt"}));
  EXPECT_FALSE(folder.Exists("Temporaire2.txt"));
}

TEST_F(DepartmentTallyTest, UpdateTouchesEachBandAtBothEndsOfTheTable) {
  WriteLines(kFile, {"01 00000000000000000 Ain"});
  Update("01", "1", "1.8 Mhz");
  Update("01", "4", "24 Ghz");
  EXPECT_EQ(Read(kFile), "01 10000000000000004 Ain\r\n");
}

TEST_F(DepartmentTallyTest, UpdateWithoutALineOrAColumnRewritesTheFileAsItIs) {
  const std::string before = Read(kFile);
  Update("99", "1", "14 Mhz");
  EXPECT_EQ(Read(kFile), before);
  Update("01", "1", "70 Mhz");
  EXPECT_EQ(Read(kFile), before);
  EXPECT_EQ(programme->Erreur_Fatale(), 0);
}

TEST_F(DepartmentTallyTest, AFullDiskLeavesTheTally) {
  const std::string before = Read(kFile);
  disk.FailOn("write Temporaire2.txt", Erreur::Disque_Plein);
  Update("01", "1", "14 Mhz");
  EXPECT_EQ(programme->Erreur_Fatale(), 61);
  EXPECT_EQ(Read(kFile), before);
}

TEST_F(DepartmentTallyTest, AFailingCopyLeavesTheTemporaryFile) {
  disk.FailOn("copy", Erreur::Disque_Plein);
  Update("01", "1", "14 Mhz");
  EXPECT_FALSE(folder.Exists(kFile));
  EXPECT_EQ(Line("Temporaire2.txt", 1), "01 00001000000000000 Ain");
}

TEST_F(DepartmentTallyTest, PaintingColoursCellsAndCounts) {
  WriteLines(kFile,
             {"01 00001000000000000 Ain", "02 00002000000000000", "03 00003000000000000", "04 00004000000000000",
              "05 00000000000000000", "06 0000 000000000000 blank", "07 00009000000000000", "2a 00001000000000000",
              "96 00002000000000000", "2B 00004000000000000", "08 000", "09 00001", "", "XX"});
  Event([&] { Cell(50).SetColour(kDpt_Confirme); });
  Paint("14 Mhz");
  // Counted: every code that isn't "0", blank or unknown ones too. A line that ends before its code has none.
  EXPECT_EQ(total, 10);
  for (const int cell : {1, 9}) EXPECT_EQ(Cell(cell).Colour(), 0xC0C0FFU) << cell;
  for (const int cell : {2, 96}) EXPECT_EQ(Cell(cell).Colour(), 0x00FFFFU) << cell;
  EXPECT_EQ(Cell(3).Colour(), 0xFFFF80U);
  for (const int cell : {4, 97}) EXPECT_EQ(Cell(cell).Colour(), 0x80FF80U) << cell;
  for (const int plain : {0, 5, 6, 7, 8, 50, 99}) EXPECT_EQ(Cell(plain).Colour(), kFond_Fenetre) << plain;
  // The four counts are of cells: both lines of Corsica's south are one.
  EXPECT_EQ(counts.sans, 2);
  EXPECT_EQ(counts.envoyees, 2);
  EXPECT_EQ(counts.recues, 1);
  EXPECT_EQ(counts.confirmees, 2);
  EXPECT_EQ(programme->Erreur_Fatale(), 0);

  Paint("18 Mhz");
  EXPECT_EQ(total, 0);
  EXPECT_EQ(Cell(1).Colour(), kFond_Fenetre);
  EXPECT_EQ(counts.sans + counts.envoyees + counts.recues + counts.confirmees, 0);
}

TEST_F(DepartmentTallyTest, ABandOutsideTheTableCountsEveryLineAndPaintsNone) {
  WriteLines(kFile, {"01 11111111111111111 Ain", "02 11111111111111111", "2A 11111111111111111", ""});
  Event([&] { Cell(0); });
  Paint("70 Mhz");
  EXPECT_EQ(total, 3);
  EXPECT_EQ(Cell(1).Colour(), kFond_Fenetre);
}

TEST_F(DepartmentTallyTest, AKeyThatIsNoCellEndsThePaintingAsError13) {
  for (const char* key : {"XX", "2C", "-1"}) {
    SCOPED_TRACE(key);
    Restart();
    WriteLines(kFile, {std::string(key) + " 00000000000000000"});
    Event([&] { Cell(0); });
    Paint("14 Mhz");
    EXPECT_EQ(programme->Erreur_Fatale(), 0);
    WriteLines(kFile, {std::string(key) + " 00001000000000000"});
    Paint("14 Mhz");
    EXPECT_EQ(programme->Erreur_Fatale(), 13);
  }
}

}  // namespace
}  // namespace vorelio::tests
