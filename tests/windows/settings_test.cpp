#include <QDir>
#include <QFile>
#include <QSettings>

#include "core/errors.h"
#include "core/text.h"
#include "platform/qt/program_folder.h"
#include "platform/qt/qt_settings.h"
#include "platform/qt/qt_text.h"
#include "windows/windows_bench.h"

namespace vorelio::tests {

class SettingsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void NamesAndValuesComeBackExactly() {
    const ScratchFolder folder;
    const QString file = QString::fromStdString(folder.File("Vorelio.ini"));
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
      QCOMPARE(store.Read("DDFM", text, "cle").value_or("absent"), "section " + text);
      QCOMPARE(store.Read("DDFM", "Setup", "n " + text).value_or("absent"), "key " + text);
      QCOMPARE(store.Read(text, "Setup", "autre").value_or("absent"), "application " + text);
      QCOMPARE(store.Read("Valeurs", "Setup", "v" + text).value_or("absent"), text);
    }
  }

  void AbsentIsNotEmpty() {
    const ScratchFolder folder;
    QtSettings store(QString::fromStdString(folder.File("Vorelio.ini")));
    QVERIFY(!store.Read("DDFM", "Setup", "Indicatif Station"));
    store.Write("DDFM", "Setup", "Indicatif Station", "");
    QCOMPARE(store.Read("DDFM", "Setup", "Indicatif Station").value_or("absent"), "");
    QVERIFY(!store.Read("DDFM", "Setup", "Indicatif"));
    QVERIFY(!store.Read("DDFM", "Setup ", "Indicatif Station"));
  }

  // Each write is on the disk when it returns.
  void AWriteIsKeptAtOnce() {
    const ScratchFolder folder;
    QtSettings store(QString::fromStdString(folder.File("Vorelio.ini")));
    store.Write("DDFM", "Setup ", "bande Utilisee", "10");
    QCOMPARE(folder.Read("Vorelio.ini"), "[DDFM]\nSetup%20\\bande%20Utilisee=10\n");
  }

  void AFileThatCannotBeWrittenIsAnError() {
    const ScratchFolder folder;
    folder.Write("file", "");
    QtSettings store(QString::fromStdString(folder.File("file/Vorelio.ini")));
    try {
      store.Write("DDFM", "Setup", "x", "1");
      QFAIL("no error");
    } catch (const Erreur_Execution& error) {
      QCOMPARE(error.Numero(), 75);
    }
  }

  void WhatIsNoTextOfTheSetCountsAsAbsent() {
    const ScratchFolder folder;
    folder.Write("Vorelio.ini", "[DDFM]\nSetup\\liste=a, b\nSetup\\russe=\"\\x44f\"\nSetup\\bon=a\n");
    QtSettings store(QString::fromStdString(folder.File("Vorelio.ini")));
    QVERIFY(!store.Read("DDFM", "Setup", "liste"));
    QVERIFY(!store.Read("DDFM", "Setup", "russe"));
    QCOMPARE(store.Read("DDFM", "Setup", "bon").value_or("absent"), "a");
  }

  // --- The program's folder ---

  void TheProgramsOwnFolderComesFirst() {
    const ScratchFolder program, home;
    CopyTemplates(program.Path());
    QString problem;
    const auto folder =
        FindProgramFolder(QString::fromStdString(program.Path()), QString::fromStdString(home.Path()), problem);
    QVERIFY(folder);
    QCOMPARE(folder->text, program.Path());
    QVERIFY(!home.Exists("Vorelio"));
  }

  void AnInstalledProgramSeedsTheUsersFolder() {
    const ScratchFolder system, home;
    system.Write("bin/vorelio", "");
    system.Write("share/vorelio/LISEZMOI.txt", "");
    CopyTemplates(system.File("share/vorelio"));
    home.Write("Vorelio/Nomenclature.txt", "F6ABC      57 JN39BC\r\n");
    QString problem;
    const auto find = [&] {
      return FindProgramFolder(QString::fromStdString(system.File("bin")), QString::fromStdString(home.Path()),
                               problem);
    };
    const auto folder = find();
    QVERIFY2(folder, qPrintable(problem));
    QCOMPARE(folder->text, home.File("Vorelio"));
    QCOMPARE(home.Read("Vorelio/FXXXX_Departement.txt"), system.Read("share/vorelio/FXXXX_Departement.txt"));
    QCOMPARE(home.Read("Vorelio/Nomenclature.txt"), "F6ABC      57 JN39BC\r\n");
    home.Write("Vorelio/FXXXX.log", "work");
    system.Write("share/vorelio/manuel/index.html", "renewed");
    home.Write("Vorelio/manuel/index.html", "old");
    QVERIFY(find());
    QCOMPARE(home.Read("Vorelio/FXXXX.log"), "work");
    QCOMPARE(home.Read("Vorelio/manuel/index.html"), "renewed");
  }

  void AFolderThatCannotBeMadeIsToldOf() {
    const ScratchFolder system, home;
    home.Write("file", "");
    QString problem;
    QVERIFY(
        !FindProgramFolder(QString::fromStdString(system.Path()), QString::fromStdString(home.File("file")), problem));
    QVERIFY(problem.contains(QStringLiteral("Impossible de créer le dossier")));
  }

  // A folder whose name the character set can't hold is called otherwise inside, and works.
  void AFolderOfAnyName() {
    const ScratchFolder home;
    const QString program = QString::fromStdString(home.File("Журнал é"));
    QVERIFY(QDir().mkpath(program));
    CopyTemplates(program.toStdString());
    QString problem;
    const auto folder = FindProgramFolder(program, QString::fromStdString(home.Path()), problem);
    QVERIFY(folder);
    QVERIFY(folder->text.ends_with("/?????? é"_t));
    PosixDisk disk(folder->text, folder->bytes);
    disk.Copy(folder->text + "/FXXXX_Departement.txt", folder->text + "/F9QZX_Departement.txt");
    QVERIFY(QFile::exists(program + QStringLiteral("/F9QZX_Departement.txt")));
  }
};

const InSuite<SettingsTest> kSettingsTest;

}  // namespace vorelio::tests

#include "settings_test.moc"
