// Draws the images of the maps into a folder, or compares them with those there: vorelio_maps [--check] FOLDER

#include <QDir>
#include <QGuiApplication>
#include <cstdio>
#include <cstring>
#include <exception>

#include "maps/canvas.h"

int main(int argc, char** argv) {
  using namespace vorelio::maps;
  const bool check = argc == 3 && std::strcmp(argv[1], "--check") == 0;
  if (argc != 2 && !check) {
    std::fputs("vorelio_maps [--check] FOLDER\n", stderr);
    return 2;
  }
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  try {
    const QString folder = QString::fromLocal8Bit(argv[argc - 1]);
    if (!check) QDir().mkpath(folder);
    const auto departments = ReadOutlines(VORELIO_MAPS_DIR "/departments.txt");
    const auto coasts = ReadOutlines(VORELIO_MAPS_DIR "/coasts.txt");
    bool same = true;
    const auto deliver = [&](const QImage& large, const QString& name) {
      if (!check) return Save(large, folder, name);
      if (Shows(folder, name, large)) return;
      std::fprintf(stderr, "the map %s differs from what is drawn\n", qUtf8Printable(name));
      same = false;
    };
    deliver(DrawFrance(departments, coasts), QStringLiteral("france"));
    for (const char* field : {"IM", "IN", "IO", "JM", "JN", "JO", "KM", "KN", "KO"})
      deliver(DrawField(field, coasts), QString::fromLatin1(field).toLower());
    return same ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "vorelio_maps: %s\n", error.what());
    return 1;
  }
}
