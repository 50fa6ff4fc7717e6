#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QFileInfo>

#include "platform/qt/appearance.h"

namespace vorelio {

namespace {

constexpr int kPatience_ms = 300;
constexpr unsigned kPrefersDark = 1;

/// The desktop's word over its session bus. A bus that isn't there already isn't started for it.
bool PortalSaysDark() {
  const bool bus = qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
                   QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
  if (!bus || QGuiApplication::platformName() == QLatin1String("offscreen")) return false;
  QDBusMessage question = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
      QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
  question << QStringLiteral("org.freedesktop.appearance") << QStringLiteral("color-scheme");
  const QDBusMessage answer = QDBusConnection::sessionBus().call(question, QDBus::Block, kPatience_ms);
  if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) return false;
  // The value comes in two wrappings.
  QVariant value = answer.arguments().constFirst();
  for (int i = 0; i < 2 && value.canConvert<QDBusVariant>(); ++i) value = value.value<QDBusVariant>().variant();
  return value.toUInt() == kPrefersDark;
}

}  // namespace

bool DesktopIsDark() {
  // Some desktops tell Qt by its palette, some by a variable, some by a service.
  if (QGuiApplication::palette().color(QPalette::Window).lightness() < 128) return true;
  const QString gtk = qEnvironmentVariable("GTK_THEME").toLower();
  if (gtk.endsWith(QLatin1String(":dark")) || gtk.endsWith(QLatin1String("-dark"))) return true;
  return PortalSaysDark();
}

}  // namespace vorelio
