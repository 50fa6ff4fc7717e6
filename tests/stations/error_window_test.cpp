#include "stations/error_window.h"

#include "core/errors.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

class ErrorWindowTest : public StationFixture {
 protected:
  ErrorWindowTest() {
    ReadyStation("F9QZX_P", "JN33BB");
    settings.Write("DDFM", "Setup", "Indicatif Station", "F9QZX_P");
  }

  /// Runs into a missing prefix tally, and lets the user act while the program waits.
  void Miss(const std::function<void(Gestion_Erreur&)>& act) {
    windows.OnWait = [this, act] {
      if (++waits > 5) throw Fin_Programme{};
      Event([&] { act(programme->Fenetre<Gestion_Erreur>()); });
    };
    Event([this] {
      Piege_Fichier_Station(*programme, "_Prefixe.txt", [this] { disk.ReadAll(folder.File("nowhere.txt")); });
      resumed = true;
    });
  }

  bool resumed = false;
  int waits = 0;
};

TEST_F(ErrorWindowTest, ClosingTheWindowEndsTheProgramToo) {
  Miss([](Gestion_Erreur& window) { window.UserClose(); });
  EXPECT_FALSE(resumed);
  EXPECT_TRUE(programme->Termine_Deja());
  EXPECT_EQ(programme->Erreur_Fatale(), 0);
  EXPECT_EQ(settings.Get("Setup", "Indicatif Station"), "F9QZX_P");
}

TEST_F(ErrorWindowTest, AnyOtherErrorEndsTheProgramEvenBelowATrap) {
  Event([this] {
    try {
      Piege_Fichier_Station(*programme, "_Prefixe.txt", [] { throw Erreur_Execution(Erreur::Disque_Plein); });
    } catch (const Erreur_Execution&) {
      resumed = true;
    }
  });
  EXPECT_FALSE(resumed);
  EXPECT_EQ(programme->Erreur_Fatale(), 13);
  EXPECT_EQ(programme->Ouverte<Gestion_Erreur>(), nullptr);
  // The box still tells the user what really happened.
  EXPECT_NE(messages.Texts(Box::Kind::Fatal).at(0).find("Disque plein"), std::string::npos);
}

}  // namespace
}  // namespace vorelio::tests
