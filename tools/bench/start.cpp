// Starts the program as its own main does, on a folder and with settings apart from the user's, and ends it as soon as
// the main window is on the screen and waits for a key. Prints how long that took, in milliseconds, and what memory it
// then holds, in MiB.
//   bench_start prepare FOLDER CONTACTS    makes a ready station in the empty folder
//   bench_start start FOLDER

#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QTimer>
#include <QWindow>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "doubles/ready_station.h"
#include "doubles/scratch_folder.h"
#include "entry/ddfm.h"
#include "log_maker.h"
#include "qt/application.h"
#include "qt/qt_text.h"
#include "stations/station_files.h"

namespace {

using namespace vorelio;

constexpr const char* kStation = "F6ABC";
constexpr int kGive_Up_ms = 60000;

/// The program on its real services, with settings of its own beside its files.
struct RealRun {
  explicit RealRun(const QString& folder)
      : application({folder, FromQt(folder), folder.toStdString()}, folder + QStringLiteral("/config")),
        programme(application.Services()) {}

  Application application;
  Programme programme;
};

void Prepare(const QString& folder, int contacts) {
  doubles::CopyTemplates(folder.toStdString());
  RealRun run(folder);
  Sous_Programmes::Cree_Fichiers_Station(run.programme, kStation);
  const Platform services = run.application.Services();
  doubles::SeedStationSettings(services.settings, services.directory, services.separator, kStation, "JN33BB");
  services.disk.WriteAll(run.programme.Chemin_Log(kStation), bench::MakeLog(contacts));
}

/// What the process holds in memory now.
double ResidentMebibytes() {
  std::ifstream file("/proc/self/statm");
  double all = 0, resident = 0;
  file >> all >> resident;
  return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

}  // namespace

int main(int argc, char** argv) {
  const auto begin = std::chrono::steady_clock::now();
  QApplication application(argc, argv);
  SetUpApplication();
  const QStringList words = QCoreApplication::arguments();
  if (words.size() == 4 && words[1] == QStringLiteral("prepare")) {
    Prepare(words[2], words[3].toInt());
    return 0;
  }
  if (words.size() != 3) return 2;

  RealRun run(words[2]);
  QtWindows& windows = run.application.windows;
  QTimer::singleShot(0, &application, [&] { windows.Deliver(run.programme, [&] { run.programme.Fenetre<DDFM>(); }); });
  QTimer::singleShot(kGive_Up_ms, &application, [] { QCoreApplication::exit(1); });
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &application, [&] {
    const DDFM* main = run.programme.Ouverte<DDFM>();
    const QWidget* widget = main ? windows.WindowOf(*main) : nullptr;
    if (!widget || !widget->windowHandle() || !widget->windowHandle()->isExposed()) return;
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
    std::printf("%.3f %.2f\n", time.count(), ResidentMebibytes());
    std::fflush(stdout);
    // What the end of the program costs is another matter.
    std::_Exit(0);
  });
  return QApplication::exec();
}
