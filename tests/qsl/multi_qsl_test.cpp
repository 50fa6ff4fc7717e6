#include "qsl/multi_qsl_window.h"

#include "core/errors.h"
#include "core/log_line.h"
#include "entry/ddfm.h"
#include "qsl/qsl_state.h"
#include "qsl/qsl_window.h"
#include "support/contact.h"
#include "support/random_log.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

class MultiQsl : public StationFixture {
 protected:
  MultiQsl() { ReadyStation("F9QZX"); }

  DDFM& Start(const std::string& log) {
    Write("F9QZX.log", log);
    Event([&] { programme->Fenetre<DDFM>(); });
    return *programme->Ouverte<DDFM>();
  }

  void EnterOne(DDFM& ddfm, int row, bool sent) {
    Event([&] { ddfm.Liste_QSO.UserSelect(row); });
    Event([&] { ddfm.Gestion_QSL.UserClick(); });
    auto* window = programme->Ouverte<QSL>();
    Event([&] { (sent ? window->Check_Envoye : window->Check_Recu).UserClick(); });
    Event([&] { window->Enregistre.UserClick(); });
  }

  std::string AllFiles() const { return Read("F9QZX.log") + Read("F9QZX_Departement.txt") + Read("F9QZX_Locator.txt"); }

  Multi_QSL& Open(bool sent) {
    Event([&] { programme->Fenetre<Multi_QSL>().Show(); });
    auto& window = *programme->Ouverte<Multi_QSL>();
    if (!sent) Event([&] { window.Option2.UserClick(); });
    Event([&] { window.Recherche.UserClick(); });
    return window;
  }
};

TEST_F(MultiQsl, ABatchLeavesWhatTheCardsOneByOneWould) {
  for (const bool sent : {true, false}) {
    RandomLog random(sent ? 5 : 6);
    random.unknown_bands = false;
    std::string log;
    for (int i = 0; i < 40; ++i) {
      std::string line = random.Line();
      line.resize(kLargeur_Ligne, ' ');
      log += line + "\r\n";
    }
    auto& ddfm = Start(log);
    for (int row = 0; row < 40; ++row) {
      const std::string_view state = Lit_Liste(ddfm.Liste_QSO.Item(row), champs::Etat_QSL);
      if (state == "1" || state == (sent ? "3" : "2")) EnterOne(ddfm, row, sent);
    }
    const std::string one_by_one = AllFiles();

    Restart();
    ReadyStation("F9QZX");
    Start(log);
    auto& window = Open(sent);
    ASSERT_GT(window.Liste_QSO.Count(), 10);
    for (int row = 0; row < window.Liste_QSO.Count(); ++row) window.Liste_QSO.UserTick(row);
    disk.Forget();
    Event([&] { window.Enregistre.UserClick(); });
    EXPECT_EQ(AllFiles(), one_by_one);
    EXPECT_EQ(std::count(disk.Log().begin(), disk.Log().end(), "write Temporaire4.txt"), 1);
    EXPECT_EQ(programme->Ouverte<Multi_QSL>(), nullptr);
    Restart();
    ReadyStation("F9QZX");
  }
}

TEST_F(MultiQsl, AFailureHalfWayLeavesTheCardsBeforeItInTheLog) {
  std::string log;
  for (const auto& [band, department] : {std::pair("14 Mhz", "06"), std::pair("144 Mhz", "07"), {"14 Mhz", "08"}})
    log += Construit_Ligne(Contact({"12/05/03", "F6ABC", "", "", department, "", band})) + "\r\n";
  Start(log);
  auto& window = Open(true);
  for (int row = 0; row < 3; ++row) window.Liste_QSO.UserTick(row);
  // The second contact asks for its square; the error window is left with the program.
  folder.Remove("F9QZX_Locator.txt");
  Event([&] { window.Enregistre.UserClick(); });
  EXPECT_EQ(Line("F9QZX.log", 1).substr(134, 10), "2 12/05/03");
  EXPECT_EQ(Line("F9QZX.log", 2).substr(134, 2), "1 ");
  EXPECT_EQ(Line("F9QZX_Departement.txt", 6).substr(0, 8), "06 00002");
  EXPECT_FALSE(folder.Exists("Temporaire2.txt"));
}

// Whatever the disk refuses, and however far the cards come with it.
TEST_F(MultiQsl, ABatchThatTheDiskStopsLeavesWhatTheCardsOneByOneWould) {
  std::string log;
  for (const auto& [band, department] : {std::pair("144 Mhz", "06"), std::pair("144 Mhz", "07"), {"14 Mhz", "08"}})
    log += Construit_Ligne(Contact({"12/05/03", "F6ABC", "", "", department, "JN33BB", band})) + "\r\n";
  const char* const faults[] = {"read F9QZX.log", "write Temporaire4.txt", "copy Temporaire4.txt F9QZX.log",
                                "delete Temporaire4.txt", "read F9QZX_Departement.txt"};
  for (const char* fault : faults) {
    std::string outcomes[2];
    for (const bool batch : {false, true}) {
      Restart();
      ReadyStation("F9QZX");
      for (const char* name : {"Temporaire2.txt", "Temporaire3.txt", "Temporaire4.txt"}) folder.Remove(name);
      auto& ddfm = Start(log);
      messages.fatal_number = 0;
      if (batch) {
        auto& window = Open(false);
        for (int row = 0; row < 3; ++row) window.Liste_QSO.UserTick(row);
        disk.FailOn(fault, Erreur::Disque_Plein);
        Event([&] { window.Enregistre.UserClick(); });
      } else {
        // The fault comes with the card, not with the loading of the log behind it.
        for (int row = 0; row < 3 && !programme->Termine_Deja(); ++row) {
          Event([&] { ddfm.Liste_QSO.UserSelect(row); });
          Event([&] { ddfm.Gestion_QSL.UserClick(); });
          disk.FailOn(fault, Erreur::Disque_Plein);
          Event([&] {
            Lignes_Remplacees card;
            Maj_QSL_Recue(*programme, card);
            card.Applique(*programme);
          });
          disk.Mend();
        }
      }
      disk.Mend();
      outcomes[batch] = AllFiles() + Read("Temporaire4.txt") + std::to_string(messages.fatal_number);
    }
    EXPECT_EQ(outcomes[1], outcomes[0]) << fault;
  }
}

// A batch doesn't rewrite the tallies card by card; where it can't write one, the cards themselves try.
TEST_F(MultiQsl, ATallyThatCantBeWrittenAtOnceIsWrittenCardByCard) {
  const std::string line = Construit_Ligne(Contact({"12/05/03", "F6ABC", "", "", "06", "JN33BB", "144 Mhz"})) + "\r\n";
  for (const char* fault : {"write F9QZX_Departement.txt", "write F9QZX_Locator.txt"}) {
    Restart();
    ReadyStation("F9QZX");
    Start(line + line);
    auto& window = Open(false);
    window.Liste_QSO.UserTick(0);
    disk.FailOn(fault, Erreur::Disque_Plein);
    Event([&] { window.Enregistre.UserClick(); });
    disk.Mend();
    EXPECT_EQ(messages.fatal_number, 0) << fault;
    EXPECT_EQ(Line("F9QZX.log", 1)[134], '3');
    EXPECT_EQ(Line("F9QZX_Departement.txt", 6).substr(0, 14), "06 00000000003");
    EXPECT_EQ(Read("F9QZX_Locator.txt").substr(Read("F9QZX_Locator.txt").find("JN33"), 7), "JN33 03");
  }
}

}  // namespace
}  // namespace vorelio::tests
