#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QTimer>
#include <csignal>
#include <cstdio>
#include <cstring>

#include "entry/ddfm.h"
#include "forms/programme.h"
#include "qt/application.h"
#include "qt/display.h"
#include "qt/single_program.h"

using namespace vorelio;

namespace {

constexpr const char* kHelp =
    "Vorelio, carnet de trafic pour radioamateurs.\n"
    "\n"
    "  vorelio             ouvre le carnet\n"
    "  vorelio --version   affiche la version\n"
    "  vorelio --help      affiche cette aide\n"
    "\n"
    "Les fichiers des stations sont à côté du programme, ou, si ce dossier est protégé, dans\n"
    "~/.local/share/Vorelio. Les réglages sont dans ~/.config/Vorelio.\n";

/// Statuses besides 0: a run-time error ended the program, there is no folder to work in, there is no display, another
/// program works on the folder.
constexpr int kFatal = 1, kNoFolder = 2, kNoDisplay = 3, kSecond = 4;

int Run() {
  SetUpApplication();
  QString problem;
  const auto folder = FindProgramFolder(QApplication::applicationDirPath(), DataHome(), problem);
  if (!folder) {
    QMessageBox::critical(nullptr, QStringLiteral("Vorelio"), problem);
    return kNoFolder;
  }
  SingleProgram single(*folder);
  if (!single.First()) {
    QMessageBox::information(
        nullptr, QStringLiteral("Vorelio"),
        QStringLiteral("Vorelio est déjà ouvert sur le dossier :\n%1\n\nUn seul programme à la fois "
                       "peut y travailler : la fenêtre déjà ouverte passe devant.")
            .arg(QDir::toNativeSeparators(folder->path)));
    single.Call();
    return kSecond;
  }
  Application application(*folder, SettingsFolder());
  single.Listen([&] { application.windows.ComeToFront(); });
  Programme programme(application.Services());
  // The start is an event like any other: what it opens is served by the loop below.
  QTimer::singleShot(0, &application.windows,
                     [&] { application.windows.Deliver(programme, [&] { programme.Fenetre<DDFM>(); }); });
  QApplication::exec();
  return programme.Erreur_Fatale() != 0 ? kFatal : 0;
}

}  // namespace

int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--version") == 0) {
      std::puts("Vorelio " VORELIO_VERSION);
      return 0;
    }
    if (std::strcmp(argv[i], "--help") == 0) {
      std::fputs(kHelp, stdout);
      return 0;
    }
  }
  // A limit on file sizes then shows as a full disk, where it would kill the program.
  std::signal(SIGXFSZ, SIG_IGN);
  const QString missing = MissingDisplay();
  if (!missing.isEmpty()) {
    std::fprintf(stderr, "%s\n", qUtf8Printable(missing));
    return kNoDisplay;
  }
  QApplication application(argc, argv);
  return Run();
}
