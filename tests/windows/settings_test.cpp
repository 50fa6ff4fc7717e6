#include <QDir>
#include <QFile>
#include <QSettings>

#include "core/text.h"
#include "qt/program_folder.h"
#include "qt/qt_settings.h"
#include "qt/qt_text.h"
#include "support/error_of.h"
#include "windows/windows_bench.h"

namespace vorelio::tests {
namespace {

TEST(SettingsTest, NamesAndValuesComeBackExactly) {
  const ScratchFolder folder;
  const QString file = ToQt(folder.File("Vorelio.ini"));
  // By itself: Clang 14 crashes on such a literal within the list.
  const std::string accents = "été œ€"_t;
  const std::vector<std::string> texts = {"Setup",      "Setup ",  " Setup", "setup", "a/b",
                                          "a\\b",       "50%",     "a;b",    "a=b",   "a,b",
                                          "@Rect(1)",   "@",       "",       "~",     "~2f",
                                          "\"quoted\"", "General", accents,  "[x]",   "#x",
                                          "  ",         "a\r\nb",  "%20",    "\t",    "F9QZX        JN33BB"};
  {
    QtSettings store(file);
    for (const std::string& text : texts) {
      store.Write("DDFM", text, "cle", "section " + text);
      store.Write("DDFM", "Setup", "n " + text, "key " + text);
      store.Write(text, "Setup", "autre", "application " + text);
      store.Write("Valeurs", "Setup", "v" + text, text);
    }
  }
  QtSettings store(file);
  for (const std::string& text : texts) {
    EXPECT_EQ(store.Read("DDFM", text, "cle").value_or("absent"), "section " + text);
    EXPECT_EQ(store.Read("DDFM", "Setup", "n " + text).value_or("absent"), "key " + text);
    EXPECT_EQ(store.Read(text, "Setup", "autre").value_or("absent"), "application " + text);
    EXPECT_EQ(store.Read("Valeurs", "Setup", "v" + text).value_or("absent"), text);
  }
}

TEST(SettingsTest, AbsentIsNotEmpty) {
  const ScratchFolder folder;
  QtSettings store(ToQt(folder.File("Vorelio.ini")));
  EXPECT_FALSE(store.Read("DDFM", "Setup", "Indicatif Station"));
  store.Write("DDFM", "Setup", "Indicatif Station", "");
  EXPECT_EQ(store.Read("DDFM", "Setup", "Indicatif Station").value_or("absent"), "");
  EXPECT_FALSE(store.Read("DDFM", "Setup", "Indicatif"));
  EXPECT_FALSE(store.Read("DDFM", "Setup ", "Indicatif Station"));
}

// Each write is on the disk when it returns.
TEST(SettingsTest, AWriteIsKeptAtOnce) {
  const ScratchFolder folder;
  QtSettings store(ToQt(folder.File("Vorelio.ini")));
  store.Write("DDFM", "Setup ", "bande Utilisee", "10");
  EXPECT_EQ(folder.Read("Vorelio.ini"), "[DDFM]\nSetup%20\\bande%20Utilisee=10\n");
}

TEST(SettingsTest, AFileThatCannotBeWrittenIsAnError) {
  const ScratchFolder folder;
  folder.Write("file", "");
  QtSettings store(ToQt(folder.File("file/Vorelio.ini")));
  EXPECT_EQ(ErrorOf([&] { store.Write("DDFM", "Setup", "x", "1"); }), 75);
}

TEST(SettingsTest, WhatIsNoTextOfTheSetCountsAsAbsent) {
  const ScratchFolder folder;
  folder.Write("Vorelio.ini", "[DDFM]\nSetup\\liste=a, b\nSetup\\russe=\"\\x44f\"\nSetup\\bon=a\n");
  QtSettings store(ToQt(folder.File("Vorelio.ini")));
  EXPECT_FALSE(store.Read("DDFM", "Setup", "liste"));
  EXPECT_FALSE(store.Read("DDFM", "Setup", "russe"));
  EXPECT_EQ(store.Read("DDFM", "Setup", "bon").value_or("absent"), "a");
}

// A file that somebody has edited: each line counts for itself, and writing goes on.
TEST(SettingsTest, ADamagedFileLosesNothingOfItsOtherLines) {
  const ScratchFolder folder;
  const std::string path = folder.File("Vorelio.ini");
  const std::string damaged[] = {"\xEF\xBB\xBF",       "no equals sign\n",  "[half\n", "; a remark\n",
                                 "x=\"never closed\n", "y=C:\\Vorelio\\\n", "\r\n"};
  for (const std::string& damage : damaged) {
    for (const bool before : {true, false}) {
      const std::string good = "Setup\\a=1\nSetup\\b=\"x;y\"\n";
      folder.Write("Vorelio.ini",
                   before ? damage + "[DDFM]\n" + good : "[DDFM]\nSetup\\0=z\n" + damage + "[DDFM]\n" + good);
      QtSettings store(ToQt(path));
      EXPECT_EQ(store.Read("DDFM", "Setup", "a").value_or("absent"), "1") << damage;
      EXPECT_EQ(ErrorOf([&] { store.Write("DDFM", "Setup", "c", "3"); }), 0) << damage;
      EXPECT_EQ(ErrorOf([&] { store.Write("DDFM", "Setup", "a", "2"); }), 0) << damage;
      QtSettings other(ToQt(path));
      EXPECT_EQ(other.Read("DDFM", "Setup", "a").value_or("absent"), "2") << damage;
      EXPECT_EQ(other.Read("DDFM", "Setup", "b").value_or("absent"), "x;y") << damage;
      EXPECT_EQ(other.Read("DDFM", "Setup", "c").value_or("absent"), "3") << damage;
    }
  }
}

TEST(SettingsTest, AFailureIsOverWhenItsCauseIs) {
  const ScratchFolder folder;
  folder.Write("lie", "");
  QtSettings store(ToQt(folder.File("lie/Vorelio.ini")));
  EXPECT_NE(ErrorOf([&] { store.Write("DDFM", "Setup", "x", "1"); }), 0);
  folder.Remove("lie");
  EXPECT_EQ(ErrorOf([&] { store.Write("DDFM", "Setup", "x", "2"); }), 0);
  EXPECT_EQ(folder.Read("lie/Vorelio.ini"), "[DDFM]\nSetup\\x=2\n");
}

// The store's syntax is the toolkit's, whose files are out there.
TEST(SettingsTest, ReadsWhatTheToolkitWritesAndTheReverse) {
  const ScratchFolder folder;
  const QString path = ToQt(folder.File("Vorelio.ini"));
  const std::string accents = "été €"_t;
  const std::vector<std::string> texts = {"",     " a ", "a;b", "a,b",        "a=b",        "@x",  "\"q\"",
                                          "a\\b", "[x]", "#x",  "a\r\n\tb\v", "\001f0\x02", "50%", accents};
  const auto name = [](const char* section, std::size_t i) { return ToQt(section + std::to_string(i)); };
  {
    QSettings toolkit(path, QSettings::IniFormat);
    for (std::size_t i = 0; i < texts.size(); ++i) toolkit.setValue(name("DDFM/Setup /n", i), ToQt(texts[i]));
    toolkit.setValue(ToQt("General/Setup/k"), ToQt("x"));
    toolkit.setValue(ToQt(accents + "/Setup/" + accents), ToQt("y"));
  }
  QtSettings store(path);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(store.Read("DDFM", "Setup ", "n" + std::to_string(i)).value_or("absent"), texts[i]);
    store.Write("Ecrit", "Setup ", "n" + std::to_string(i), texts[i]);
    store.Write("general", "Setup", "n" + std::to_string(i), "g");
  }
  EXPECT_EQ(store.Read("General", "Setup", "k").value_or("absent"), "x");
  EXPECT_EQ(store.Read(accents, "Setup", accents).value_or("absent"), "y");
  const QSettings toolkit(path, QSettings::IniFormat);
  EXPECT_EQ(toolkit.status(), QSettings::NoError);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(FromQt(toolkit.value(name("Ecrit/Setup /n", i)).toString()), texts[i]);
    EXPECT_EQ(FromQt(toolkit.value(name("general/Setup/n", i)).toString()), "g");
  }
}

// --- The program's folder ---

TEST(SettingsTest, TheProgramsOwnFolderComesFirst) {
  const ScratchFolder program, home;
  CopyTemplates(program.Path());
  QString problem;
  const auto folder = FindProgramFolder(ToQt(program.Path()), ToQt(home.Path()), problem);
  ASSERT_TRUE(folder);
  EXPECT_EQ(folder->text, program.Path());
  EXPECT_FALSE(home.Exists("Vorelio"));
}

TEST(SettingsTest, AnInstalledProgramSeedsTheUsersFolder) {
  const ScratchFolder system, home;
  system.Write("bin/vorelio", "");
  system.Write("share/vorelio/LISEZMOI.txt", "");
  CopyTemplates(system.File("share/vorelio"));
  home.Write("Vorelio/Nomenclature.txt", "F6ABC      57 JN39BC\r\n");
  QString problem;
  const auto find = [&] { return FindProgramFolder(ToQt(system.File("bin")), ToQt(home.Path()), problem); };
  const auto folder = find();
  ASSERT_TRUE(folder) << qPrintable(problem);
  EXPECT_EQ(folder->text, home.File("Vorelio"));
  EXPECT_EQ(home.Read("Vorelio/FXXXX_Departement.txt"), system.Read("share/vorelio/FXXXX_Departement.txt"));
  EXPECT_EQ(home.Read("Vorelio/Nomenclature.txt"), "F6ABC      57 JN39BC\r\n");
  home.Write("Vorelio/FXXXX.log", "work");
  system.Write("share/vorelio/manuel/index.html", "renewed");
  home.Write("Vorelio/manuel/index.html", "old");
  EXPECT_TRUE(find());
  EXPECT_EQ(home.Read("Vorelio/FXXXX.log"), "work");
  EXPECT_EQ(home.Read("Vorelio/manuel/index.html"), "renewed");
}

TEST(SettingsTest, AFolderThatCannotBeMadeIsToldOf) {
  const ScratchFolder system, home;
  home.Write("file", "");
  QString problem;
  EXPECT_FALSE(FindProgramFolder(ToQt(system.Path()), ToQt(home.File("file")), problem));
  EXPECT_TRUE(problem.contains(QStringLiteral("Impossible de créer le dossier")));
}

// A folder whose name the character set can't hold is called otherwise inside, and works.
TEST(SettingsTest, AFolderOfAnyName) {
  const ScratchFolder home;
  const QString program = QString::fromStdString(home.File("Журнал é"));
  EXPECT_TRUE(QDir().mkpath(program));
  CopyTemplates(program.toStdString());
  QString problem;
  const auto folder = FindProgramFolder(program, ToQt(home.Path()), problem);
  ASSERT_TRUE(folder);
  EXPECT_TRUE(folder->text.ends_with("/?????? é"_t));
  PosixDisk disk(folder->text, folder->bytes);
  disk.Copy(folder->text + "/FXXXX_Departement.txt", folder->text + "/F9QZX_Departement.txt");
  EXPECT_TRUE(QFile::exists(program + QStringLiteral("/F9QZX_Departement.txt")));
}

}  // namespace
}  // namespace vorelio::tests
