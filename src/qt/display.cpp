#include "qt/display.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QLibraryInfo>

namespace vorelio {

namespace {

/// Whether the X display answers. Without the library to ask with, Qt may try.
bool DisplayAnswers() {
  QLibrary xcb(QStringLiteral("xcb"), 1);
  const auto connect = reinterpret_cast<void* (*)(const char*, int*)>(xcb.resolve("xcb_connect"));
  const auto failed = reinterpret_cast<int (*)(void*)>(xcb.resolve("xcb_connection_has_error"));
  const auto disconnect = reinterpret_cast<void (*)(void*)>(xcb.resolve("xcb_disconnect"));
  if (!connect || !failed || !disconnect) return true;
  void* connection = connect(nullptr, nullptr);
  const bool answers = failed(connection) == 0;
  disconnect(connection);
  return answers;
}

/// Whether the Wayland compositor is there, and Qt knows how to speak to it.
bool WaylandAnswers(const QString& display) {
  const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
  if (plugins.entryList({QStringLiteral("libqwayland*")}, QDir::Files).isEmpty()) return false;
  return QFileInfo::exists(QDir(qEnvironmentVariable("XDG_RUNTIME_DIR")).filePath(display));
}

}  // namespace

QString MissingDisplay() {
  const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM");
  // Platforms that draw into memory or onto the bare machine need no display.
  if (!platform.isEmpty() && !platform.startsWith(QLatin1String("xcb")) &&
      !platform.startsWith(QLatin1String("wayland")))
    return {};
  const QString wayland = qEnvironmentVariable("WAYLAND_DISPLAY");
  if (!wayland.isEmpty() && WaylandAnswers(wayland)) return {};
  const QString display = qEnvironmentVariable("DISPLAY");
  if (display.isEmpty())
    return QStringLiteral("Vorelio a besoin d'un écran graphique : lancez-le depuis une session de bureau.");
  if (!DisplayAnswers()) return QStringLiteral("Vorelio n'arrive pas à ouvrir l'écran graphique « %1 ».").arg(display);
  return {};
}

}  // namespace vorelio
