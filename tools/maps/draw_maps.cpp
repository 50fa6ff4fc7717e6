// Draws the images of the maps: vorelio_maps FOLDER

#include <QDir>
#include <QGuiApplication>
#include <cstdio>
#include <exception>

#include "maps/canvas.h"

int main(int argc, char** argv) {
  using namespace vorelio::maps;
  if (argc != 2) {
    std::fputs("vorelio_maps FOLDER\n", stderr);
    return 2;
  }
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  try {
    const QString folder = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(folder);
    const auto departments = ReadOutlines(VORELIO_MAPS_DIR "/departments.txt");
    const auto coasts = ReadOutlines(VORELIO_MAPS_DIR "/coasts.txt");
    Save(DrawFrance(departments, coasts), folder, QStringLiteral("france"));
    for (const char* field : {"IM", "IN", "IO", "JM", "JN", "JO", "KM", "KN", "KO"})
      Save(DrawField(field, coasts), folder, QString::fromLatin1(field).toLower());
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "vorelio_maps: %s\n", error.what());
    return 1;
  }
}
