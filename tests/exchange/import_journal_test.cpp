#include "exchange/import_journal_window.h"

#include <filesystem>

#include "core/log_line.h"
#include "entry/ddfm.h"
#include "support/contact.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

std::string LogLine(const std::string& date, const std::string& call) {
  return Construit_Ligne(Contact({date, call, "10:00", "10:05", "", "", "14 Mhz", "SSB"}));
}

std::string Adif(const std::string& date, const std::string& call) {
  return "<CALL:5>" + call + "<QSO_DATE:8>" + date + "<TIME_ON:4>1000<BAND:3>20M<MODE:3>SSB<EOR>\n";
}

class ImportJournal : public StationFixture {
 protected:
  ImportJournal() {
    ReadyStation("F9QZX");
    WriteLines("F9QZX.log", {old_});
    Event([&] { programme->Fenetre<DDFM>(); });
    messages.Forget();
    disk.Forget();
  }

  /// Opens the window on a file; `meanwhile` is what happens while it waits.
  void Open(const std::string& file, const std::function<void(Import_Journal&)>& meanwhile) {
    dialogs.Choose(file);
    windows.OnModal = [&](Form& form) { meanwhile(static_cast<Import_Journal&>(form)); };
    Event([&] { programme->Ouverte<DDFM>()->Mnu_Import_Journal.UserClick(); });
  }
  void OpenBytes(const std::string& bytes, const std::function<void(Import_Journal&)>& meanwhile) {
    Write("in.adi", bytes);
    Open(folder.File("in.adi"), meanwhile);
  }
  static void Press(Import_Journal& window) { window.Importer.UserClick(); }

  const std::string old_ = LogLine("12/05/03", "F1OLD");
};

TEST_F(ImportJournal, WhatIsNoLogIsToldInASentenceAndNoWindowIsShown) {
  namespace fs = std::filesystem;
  fs::create_directory(folder.File("folder.adi"));
  Write("huge.adi", "<EOH>");
  fs::resize_file(folder.File("huge.adi"), std::uintmax_t{1} << 30);
  Write("pdf.adi", "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n1 0 obj\n");
  Write("utf16.adi", std::string("\xFF\xFE<\0C\0A\0L\0L\0", 12));
  Write("zeros.adi", std::string(100000, '\0'));
  Write("words.adi", "Dear OM, thank you for this contact.");
  Write("locked.adi", Adif("20030513", "F2NEW"));
  disk.FailOn("read locked.adi", Erreur::Permission_Refusee);
  for (const char* name :
       {"absent.adi", "folder.adi", "huge.adi", "pdf.adi", "utf16.adi", "zeros.adi", "words.adi", "locked.adi"}) {
    SCOPED_TRACE(name);
    Open(folder.File(name), [](Import_Journal&) { FAIL() << "the window waits"; });
    const auto shown = messages.TakeMessages();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_TRUE(shown[0].ends_with(folder.File(name))) << shown[0];
    EXPECT_EQ(programme->Ouverte<Import_Journal>(), nullptr);
  }
  EXPECT_EQ(Read("F9QZX.log"), old_ + "\r\n");
  EXPECT_EQ(disk.Changes(), Lines{});
  EXPECT_EQ(messages.fatal_number, 0);
}

TEST_F(ImportJournal, AnErrorBeforeTheReplacementLeavesTheLogAndTheWindow) {
  for (const char* fault : {"read F9QZX.log", "copy F9QZX.log", "write F9QZX.log"}) {
    SCOPED_TRACE(fault);
    OpenBytes(Adif("20030513", "F2NEW"), [&](Import_Journal& window) {
      disk.FailOn(fault, Erreur::Disque_Plein);
      Press(window);
      EXPECT_FALSE(window.Unloaded());
      EXPECT_TRUE(window.Importer.Enabled());
      disk.Mend();
      window.Quitter.UserClick();
    });
    const auto shown = messages.TakeMessages();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_TRUE(shown[0].starts_with(De_Utf8("Rien n'a été importé.\r\nDisque plein"))) << shown[0];
    EXPECT_EQ(Read("F9QZX.log"), old_ + "\r\n");
  }
}

TEST_F(ImportJournal, AnErrorBehindTheReplacementIsToldAndTheContactsAreThere) {
  disk.FailOn("copy FXXXX_Prefixe.txt", Erreur::Fichier_Introuvable);
  disk.FailOn("write in-refuses.adi", Erreur::Permission_Refusee);
  OpenBytes(Adif("20030513", "F2NEW") + Adif("20030231", "F3BAD"), Press);
  EXPECT_EQ(messages.TakeMessages().size(), 2U);
  EXPECT_EQ(programme->Ouverte<DDFM>()->Liste_QSO.Count(), 2);
  EXPECT_EQ(messages.fatal_number, 0);
}

TEST_F(ImportJournal, ALogThatChangedMeanwhileIsComparedAgainBeforeAnythingIsWritten) {
  const std::string other = LogLine("13/05/03", "F2NEW") + "\r\n";
  OpenBytes(Adif("20030513", "F2NEW"), [&](Import_Journal& window) {
    EXPECT_EQ(window.Nb_Nouveaux.Caption(), "1");
    Write("F9QZX.log", old_ + "\r\n" + other);
    Press(window);
    EXPECT_FALSE(window.Unloaded());
    EXPECT_EQ(window.Nb_Nouveaux.Caption(), "0");
    EXPECT_EQ(window.Nb_Doubles.Caption(), "1");
    EXPECT_EQ(window.Liste_Apercu.Count(), 0);
    EXPECT_EQ(disk.Changes(), Lines{});
    Press(window);
  });
  EXPECT_EQ(messages.TakeMessages().size(), 1U);
  EXPECT_EQ(Read("F9QZX.log"), old_ + "\r\n" + other);
}

TEST_F(ImportJournal, ALogOfMoreThan99999ContactsIsRefused) {
  std::string log;
  for (int i = 0; i < 99998; ++i) log += old_ + "\r\n";
  Write("F9QZX.log", log);
  OpenBytes(Adif("20030513", "F2NEW") + Adif("20030514", "F2NEW"), [&](Import_Journal& window) {
    Press(window);
    EXPECT_FALSE(window.Unloaded());
    window.Quitter.UserClick();
  });
  EXPECT_EQ(messages.TakeMessages(),
            Lines{De_Utf8("Le log aurait 100000 QSO, et il peut en compter 99999 au plus.\r\nRien n'a été importé.")});
  EXPECT_EQ(disk.Changes(), Lines{});
  OpenBytes(Adif("20030513", "F2NEW"), Press);
  EXPECT_EQ(programme->Ouverte<DDFM>()->Liste_QSO.Count(), 99999);
}

TEST_F(ImportJournal, ClosingTheWindowWhileItReadsEndsTheReading) {
  std::string bytes;
  for (int i = 0; i < 5000; ++i) bytes += Adif("20030513", "F2NEW");
  int served = 0;
  windows.OnServe = [&] {
    ++served;
    if (auto* window = programme->Ouverte<Import_Journal>()) {
      EXPECT_FALSE(window->Importer.Enabled());
      EXPECT_LT(window->Avance.Done(), window->Avance.Total());
      window->UserClose();
    }
  };
  OpenBytes(bytes, [](Import_Journal&) { FAIL() << "the window waits"; });
  EXPECT_EQ(served, 1);
  EXPECT_EQ(programme->Ouverte<Import_Journal>(), nullptr);
  EXPECT_TRUE(messages.TakeMessages().empty());
  EXPECT_EQ(disk.Changes(), Lines{});
}

TEST_F(ImportJournal, TheTalliesAreThoseOfARebuildAndNothingIsLeftOpen) {
  OpenBytes(
      "<CALL:6>F6ABC/P<QSO_DATE:8>20030513<TIME_ON:4>1000<BAND:2>2M<MODE:3>SSB<GRIDSQUARE:6>JN33BB<STATE:2>06<EOR>",
      Press);
  const std::string departments = Read("F9QZX_Departement.txt"), squares = Read("F9QZX_Locator.txt"),
                    prefixes = Read("F9QZX_Prefixe.txt");
  EXPECT_EQ(messages.TakeMessages(), Lines{});
  Event([&] {
    programme->Ouverte<DDFM>()->Mnu_MAJ_Prefixe.UserClick();
    programme->Ouverte<DDFM>()->Mnu_MAJ_Locator.UserClick();
    programme->Ouverte<DDFM>()->Mnu_MAJ_Departement.UserClick();
  });
  EXPECT_EQ(Read("F9QZX_Departement.txt"), departments);
  EXPECT_EQ(Read("F9QZX_Locator.txt"), squares);
  EXPECT_EQ(Read("F9QZX_Prefixe.txt"), prefixes);
  EXPECT_NE(departments, Read("FXXXX_Departement.txt"));
  EXPECT_NE(squares, Read("FXXXX_Locator.txt"));
}

}  // namespace
}  // namespace vorelio::tests
