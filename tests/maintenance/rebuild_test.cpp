#include "maintenance/rebuild.h"

#include "bench/line_by_line.h"
#include "core/errors.h"
#include "core/log_line.h"
#include "entry/ddfm.h"
#include "maintenance/progress_window.h"
#include "support/random_log.h"
#include "support/station_fixture.h"
#include "tallies/department_tally.h"

namespace vorelio::tests {

using bench::LineByLine;

namespace {

struct Case {
  LineByLine::Kind kind;
  const char* suffix;
  void (*rebuild)(Programme&);
};

constexpr Case kCases[] = {
    {LineByLine::Kind::Prefix, "_Prefixe.txt", Refait_Prefixes},
    {LineByLine::Kind::Department, "_Departement.txt", Refait_Departements},
    {LineByLine::Kind::Locator, "_Locator.txt", Refait_Locators},
};

class Rebuild : public StationFixture {
 protected:
  Rebuild() { ReadyStation("F9QZX"); }

  void Start() {
    Event([&] { programme->Fenetre<DDFM>(); });
    messages.Forget();
  }

  /// The judge's way through a log; the log's lines as the program reads them.
  LineByLine Judge(const Case& tally, const std::string& log) {
    LineByLine judge(tally.kind, Read(std::string("FXXXX") + tally.suffix), programme->contexte.Bande_Courante);
    for (Lecteur_Lignes lines(log); !lines.Fini();)
      if (!judge.Take(std::string(lines.Suivante()))) break;
    return judge;
  }
};

TEST_F(Rebuild, EqualsARewritingForEveryLine) {
  for (unsigned seed = 1; seed <= 12; ++seed) {
    for (const char* band : {"4", "16"}) {
      RandomLog random(seed);
      random.unknown_bands = seed % 3 == 0;
      const std::string log = random.Text(60);
      Write("F9QZX.log", log);
      settings.Write("DDFM", "Setup F9QZX", "bande Utilisee", band);
      for (const Case& tally : kCases) {
        SCOPED_TRACE(std::string(tally.suffix) + " seed " + std::to_string(seed) + " band " + band);
        Restart();
        messages.fatal_number = 0;
        folder.Remove("Temporaire.txt");
        Start();
        programme->saisie.Indicatif_Saisi = "F6ABC";
        const LineByLine judge = Judge(tally, log);
        Event([&] { tally.rebuild(*programme); });
        EXPECT_EQ(Read(std::string("F9QZX") + tally.suffix), judge.Tally());
        EXPECT_EQ(messages.fatal_number, judge.left_over ? 5 : 0);
        EXPECT_EQ(Read("Temporaire.txt"), judge.left_over.value_or(""));
        EXPECT_EQ(folder.Exists("Temporaire.txt"), judge.left_over.has_value());
        if (tally.kind == LineByLine::Kind::Prefix) {
          EXPECT_EQ(Read("F6ABC_Absent.txt"), judge.absent);
        }
      }
    }
  }
}

TEST_F(Rebuild, WhatIsDoneMeanwhileStands) {
  RandomLog random(7);
  random.unknown_bands = false;
  const std::string log = random.Text(40);
  Write("F9QZX.log", log);
  Start();
  LineByLine judge(LineByLine::Kind::Department, Read("FXXXX_Departement.txt"), "1.8 Mhz");

  // After every seventh line a department is entered in the main window, and the tally is looked at.
  int line = 0;
  std::string seen;
  windows.OnServe = [&] {
    ++line;
    EXPECT_EQ(programme->Ouverte<Progression>()->Avance.Done(), line);
    EXPECT_EQ(programme->Ouverte<Progression>()->Avance.Total(), 40);
    if (line % 7 != 0) return;
    programme->Recoit([&] { Maj_Departement(*programme, "75", "1", "14 Mhz"); });
    seen = Read("F9QZX_Departement.txt");
    EXPECT_FALSE(folder.Exists("Temporaire.txt"));
  };
  int taken = 0;
  std::string expected_seen;
  for (Lecteur_Lignes lines(log); !lines.Fini();) {
    judge.Take(std::string(lines.Suivante()));
    if (++taken % 7 != 0) continue;
    // The same change in the judge's file: code 1 for department 75 on 14 MHz.
    std::string tally = judge.Tally();
    tally[tally.find("\r\n75") + 2 + 7] = '1';
    LineByLine next(LineByLine::Kind::Department, tally, "1.8 Mhz");
    judge = next;
    expected_seen = tally;
  }
  Event([&] { Refait_Departements(*programme); });
  windows.OnServe = nullptr;
  EXPECT_EQ(seen, expected_seen);
  EXPECT_EQ(Read("F9QZX_Departement.txt"), judge.Tally());
}

TEST_F(Rebuild, EndsCleanlyWithTheProgram) {
  RandomLog random(9);
  random.unknown_bands = false;
  const std::string log = random.Text(30);
  Write("F9QZX.log", log);
  Start();
  int served = 0;
  windows.OnServe = [&] {
    if (++served == 10) programme->Recoit([&] { programme->Fenetre<DDFM>().UserClose(); });
  };
  Event([&] { Refait_Departements(*programme); });
  EXPECT_TRUE(programme->Termine_Deja());
  LineByLine judge(LineByLine::Kind::Department, Read("FXXXX_Departement.txt"), "1.8 Mhz");
  Lecteur_Lignes lines(log);
  for (int i = 0; i < 10; ++i) judge.Take(std::string(lines.Suivante()));
  EXPECT_EQ(Read("F9QZX_Departement.txt"), judge.Tally());
}

TEST_F(Rebuild, AnEmptyLogGivesTheTemplate) {
  Write("F9QZX_Prefixe.txt", "worked");
  Start();
  Event([&] { Refait_Prefixes(*programme); });
  EXPECT_EQ(Read("F9QZX_Prefixe.txt"), Read("FXXXX_Prefixe.txt"));
  EXPECT_EQ(messages.TakeMessages(), Lines{"Le fichier Prefixe va etre mis a jour a partir du fichier log"});
}

// A tally line that ends before the band has no code there yet; a contact whose line ends before its state has none.
TEST_F(Rebuild, LinesThatEndEarly) {
  Write("FXXXX_Departement.txt", "06 00\r\n07\r\n08 00002\r\n\r\n");
  const auto line = [](const char* department, char state) {
    Champs_QSO contact;
    contact.Depart_A = department;
    contact.Bande_A = "14 Mhz";
    contact.Bloc_QSL[0] = state;
    return Construit_Ligne(contact);
  };
  WriteLines("F9QZX.log", {line("06", '3'), line("07", ' '), line("08", '1').substr(0, 134), line("08", ' ')});
  Start();
  Event([&] { Refait_Departements(*programme); });
  EXPECT_EQ(messages.fatal_number, 0);
  EXPECT_EQ(Read("F9QZX_Departement.txt"), "06 00003\r\n07\r\n08 00002\r\n\r\n");
}

TEST_F(Rebuild, TheLocatorRebuildNamesTheTemplateWhateverIsMissing) {
  WriteLines("F9QZX.log", {RandomLog(3).Line()});
  Start();
  disk.FailOn("read F9QZX_Locator.txt", Erreur::Fichier_Introuvable);
  Event([&] { Refait_Locators(*programme); });
  EXPECT_EQ(messages.TakeMessages().back(), "Fichier FXXXX_Locator.txt Absent du repertoire");
  EXPECT_TRUE(programme->Termine_Deja());
  EXPECT_EQ(messages.fatal_number, 0);
}

}  // namespace
}  // namespace vorelio::tests
