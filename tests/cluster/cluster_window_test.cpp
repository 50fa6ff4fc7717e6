#include "cluster/cluster_window.h"

#include <chrono>
#include <utility>

#include "cluster/cluster_settings_windows.h"
#include "cluster/made_up_page.h"
#include "cluster/memory_window.h"
#include "entry/ddfm.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

constexpr const char* kPage = "/dxc/top_250_HF.html";
const std::string kNoAnswer =
    "Pas de reponse du site vérifiez votre liaison internet\r\n            Appuyez de nouveau sur Afficher"_t;

class ClusterWindowTest : public StationFixture {
 protected:
  void SetUp() override {
    ReadyStation();
    settings.Write("DDFM", "Setup", "Adresse Cluster", "http://cluster.example");
    Offer({{}, {.dx = "VK9ZZ", .qrg = "7040.5", .date = "12-May 1235Z "}});
    Event([this] { programme->Fenetre<DDFM>(); });
  }

  void Offer(const std::vector<MadeUpRow>& rows) {
    devices.pages.pages[kPage] = [page = MadeUpPage(rows)] { return page; };
  }

  Cluster& Open(const std::string& port = "0") {
    settings.Write("DDFM", "Setup F6ABC", "Port Com", port);
    settings.Write("DDFM", "Setup F6ABC", "Baud", "9600,n,8,1");
    Event([this] { programme->Fenetre<Cluster>().Show(); });
    return programme->Fenetre<Cluster>();
  }
};

TEST_F(ClusterWindowTest, EachStepOfTheFilesIsOneAccess) {
  auto& form = Open();
  disk.Forget();
  Event([&] { form.Afficher.UserClick(); });
  EXPECT_EQ(disk.Log(), (Lines{"write Cluster1.txt", "read Cluster1.txt", "write Temp1.txt",
                               "copy Temp1.txt Cluster1.txt", "read Cluster1.txt"}));
  EXPECT_EQ(Read("Temp1.txt"),
            Fins_De_Ligne(Majuscules(MadeUpPage({{}, {.dx = "VK9ZZ", .qrg = "7040.5", .date = "12-May 1235Z "}}))));
  EXPECT_EQ(form.Liste_Stations.ListIndex(), 1);
}

TEST_F(ClusterWindowTest, AFileLeftOpenFailsEveryLoadThatFollows) {
  auto& form = Open();
  const auto load = [&] { Event([&] { form.Indicatif.UserKey(kEntree); }); };
  Event([&] { form.Indicatif.UserText("F", 1); });
  disk.FailOn("write Temp1.txt", Erreur::Permission_Refusee);
  load();
  disk.Mend();
  load();
  EXPECT_EQ(messages.TakeMessages(), Lines{kNoAnswer});  // It had never been open.
  disk.FailOn("write Temp1.txt", Erreur::Disque_Plein);
  load();
  disk.Mend();
  disk.Forget();
  load();
  EXPECT_EQ(disk.Log(), (Lines{"write Cluster1.txt", "read Cluster1.txt"}));
  EXPECT_EQ(messages.TakeMessages(), (Lines{kNoAnswer, kNoAnswer}));
  EXPECT_FALSE(form.Afficher.Enabled());
  EXPECT_TRUE(form.Patientez.Enabled());
  EXPECT_FALSE(form.Timer2.Enabled());
}

TEST_F(ClusterWindowTest, OneLoadAtATime) {
  auto& form = Open();
  Event([&] { form.Indicatif.UserText("F", 1); });
  int asked = 0;
  devices.pages.OnFetch = [&] {
    if (++asked > 3) return;
    Event([&] { form.Indicatif.UserKey(kEntree); });
    Event([&] { form.Afficher.UserClick(); });
    Event([&] { form.Timer2.Fire(); });
    Event([&] { form.Option3.UserClick(); });
  };
  Event([&] { form.Afficher.UserClick(); });
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(form.Liste_Stations.Item(0).substr(0, 15), "   7040.5 VK9ZZ");
}

TEST_F(ClusterWindowTest, AnOrderChangedWhileRowsComeInLoadsOnceMore) {
  auto& form = Open();
  devices.sounds.OnPlay = [&] {
    if (devices.sounds.played.size() == 2) Event([&] { form.Option3.UserClick(); });
  };
  Event([&] { form.Check3.UserClick(); });
  Event([&] { form.Check2.UserClick(); });
  EXPECT_EQ(devices.pages.fetched.size(), 2U);
  EXPECT_EQ(form.Liste_Stations.Count(), 2);
  for (const std::string_view line : form.Liste_Stations.Items())
    EXPECT_EQ(line.substr(1, 2), line[3] == '7' ? "  " : " 1");
}

TEST_F(ClusterWindowTest, ClosingDuringAFetchLeavesQuietly) {
  auto* form = &Open();
  devices.pages.OnFetch = [&] { Event([&] { form->UserClose(); }); };
  Event([&] { form->Afficher.UserClick(); });
  EXPECT_EQ(programme->Ouverte<Cluster>(), nullptr);
  form = &Open();
  devices.pages.OnFetch = [&] { Event([&] { programme->Fenetre<DDFM>().UserClose(); }); };
  Event([&] { form->Afficher.UserClick(); });
  EXPECT_TRUE(programme->Termine_Deja());
  EXPECT_EQ(programme->Erreur_Fatale(), 0);
  EXPECT_TRUE(messages.boxes.empty());
  EXPECT_TRUE(devices.sounds.played.empty());
}

// A box or a long procedure must not wait for a page.
TEST_F(ClusterWindowTest, ATickWithinAnotherEventIsPassedOver) {
  auto& form = Open();
  messages.OnBox = [&](const Box&) { Event([&] { form.Timer2.Fire(); }); };
  Event([&] { programme->Message("?"); });
  EXPECT_TRUE(devices.pages.fetched.empty());
  Event([&] { form.Timer2.Fire(); });
  EXPECT_EQ(devices.pages.fetched.size(), 1U);
}

const std::string kOn(5, '\0'), kMode("\0\0\0\0\x07", 5), kOff("\0\0\0\0\x80", 5), k40m("\x00\x70\x40\x50\x01", 5),
    k20m("\x01\x41\x95\x00\x01", 5);

// What can't be had, by the settings or by a date that moves the frequency out of its columns, ends the program; a
// click within a load is no part of the load.
TEST_F(ClusterWindowTest, WhatEndsTheProgram) {
  const struct {
    const char *port, *speed, *model, *date;
    int number;
  } cases[] = {{"2", "9600,n,8,1", "2", "", 68}, {"1", "0", "2", "", 5}, {"1", "fast,n,8,1", "2", "", 5},
               {"0", "0", "Mon FT-847", "", 13}, {"0", "0", "4", "", 9}, {"1", "9600,n,8,1", "2", "1234Z ", 13}};
  devices.serial.missing = {2};
  for (const auto& [port, speed, model, date, number] : cases) {
    Offer({{.date = date}});
    Restart();
    programme->contexte.Station_Indicatif = "F6ABC";
    for (const auto& [key, value] : {std::pair{"Port Com", port}, {"Baud", speed}, {"Transceiver", model}})
      settings.Write("DDFM", "Setup F6ABC", key, value);
    Event([&] {
      programme->Fenetre<Cluster>().Show();
      programme->Fenetre<Cluster>().Afficher.UserClick();
    });
    EXPECT_EQ(programme->Erreur_Fatale(), number) << port << " " << speed << " " << model;
  }
  EXPECT_TRUE(devices.sounds.played.empty());
}

// The page that a tick brings in selects a line, and its tuning stands whole within the one that waits, which then goes
// on with the new frequency.
TEST_F(ClusterWindowTest, ATickInTheMiddleOfATuning) {
  auto& form = Open("1");
  Event([&] { form.Afficher.UserClick(); });
  const std::string tuning = kOn + k40m + kMode + kOff;
  EXPECT_EQ(devices.serial.bytes, tuning);
  devices.serial.bytes.clear();
  devices.serial.slow = 1;
  windows.OnServe = [&] {
    windows.OnServe = nullptr;
    Event([&] { form.Timer2.Fire(); });
  };
  Event([&] { form.Liste_Stations.UserSelect(0); });
  EXPECT_EQ(devices.serial.bytes, kOn + tuning + k40m + kMode + kOff);
}

TEST_F(ClusterWindowTest, APortThatIsGoneOrStuckIsClosedWithAWord) {
  for (const bool stuck : {false, true}) {
    auto& form = Open("1");
    Event([&] { form.Afficher.UserClick(); });
    devices.serial.stuck = stuck ? 5 : 0;
    devices.serial.unplugged = !stuck;
    devices.serial.bytes.clear();
    const auto start = std::chrono::steady_clock::now();
    Event([&] { form.Liste_Stations.UserSelect(0); });
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(4));
    EXPECT_EQ(messages.TakeMessages().size(), 1U);
    EXPECT_FALSE(devices.serial.IsOpen());
    EXPECT_EQ(form.NumPort.Caption(), "1");
    EXPECT_EQ(settings.Get("Setup F6ABC", "Port Com"), "1");
    EXPECT_EQ(settings.Get("Setup F6ABC", "Baud"), "9600,n,8,1");
    EXPECT_EQ(form.Nom_Port.Caption(), "fermé"_t);
    EXPECT_EQ(devices.serial.bytes, stuck ? kOn : "");
    EXPECT_FALSE(programme->Termine_Deja());
    devices.serial.unplugged = false;
    devices.serial.stuck = 0;
    // Choosing it again is enough.
    Event([&] { form.Mnu_Com1.UserClick(); });
    Event([&] { form.Liste_Stations.UserSelect(0); });
    EXPECT_EQ(devices.serial.bytes.substr(stuck ? kOn.size() : 0), kOn + k20m + kMode + kOff);
    Event([&] { form.Unload(); });
  }
}

TEST_F(ClusterWindowTest, AnAddressSavedDuringALoadThatFailsMayBeTried) {
  auto& form = Open();
  devices.pages.pages.clear();
  bool saved = false;
  devices.pages.OnFetch = [&] {
    if (std::exchange(saved, true)) return;
    Event([&] {
      auto& window = programme->Fenetre<Adresse_Cluster>();
      window.Show();
      window.Adresse.SetText("autre.example");
      window.Enregistrer.UserClick();
    });
  };
  Event([&] { form.Afficher.UserClick(); });
  EXPECT_EQ(messages.TakeMessages(), Lines{kNoAnswer});
  EXPECT_TRUE(form.Afficher.Enabled());
  EXPECT_FALSE(form.Patientez.Enabled());
  // Of that address the next failure is a failure like any other.
  Event([&] { form.Afficher.UserClick(); });
  EXPECT_EQ(messages.TakeMessages(), Lines{kNoAnswer});
  EXPECT_FALSE(form.Afficher.Enabled());
}

TEST_F(ClusterWindowTest, TheModelsThatAreNotOffered) {
  auto& form = Open("1");
  Event([&] {
    for (const char* model : {"FT-1000", "IC-706 MKIIG"}) form.Emetteur.AddItem(model);
    form.Ligne_Cluster = std::string(21, ' ') + "  14195.0";
    form.Emetteur.SetListIndex(4);
    form.Envoie_Qrg();
  });
  EXPECT_EQ(devices.serial.bytes, std::string("\x00\x59\x14\x10\x0A\0\0\0\0\x0C", 10));
  devices.serial.bytes.clear();
  Event([&] {
    form.Emetteur.SetListIndex(5);
    form.Envoie_Qrg();
  });
  EXPECT_EQ(devices.serial.bytes, std::string("\xFE\xFE\x58\0\x05&H0&H20&H25&H80&H0\xFD\xFE\xFE\x58\0\0\x01\xFD", 31));
}

// As much as the site's largest page could ever hold, unsorted.
TEST_F(ClusterWindowTest, AHundredThousandRows) {
  std::vector<MadeUpRow> rows(100000);
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i].date = std::to_string(100000 + i * 7919 % 100003);
  Offer(rows);
  auto& form = Open();
  const auto start = std::chrono::steady_clock::now();
  Event([&] { form.Afficher.UserClick(); });
  const auto took = std::chrono::steady_clock::now() - start;
  EXPECT_EQ(form.Liste_Stations.Count(), 100000);
  EXPECT_TRUE(std::is_sorted(form.Liste_Stations.Items().begin(), form.Liste_Stations.Items().end()));
  // Instrumented and on a busy computer; a row inserted at a time would take minutes.
  EXPECT_LT(took, std::chrono::seconds(10));
}

}  // namespace
}  // namespace vorelio::tests
