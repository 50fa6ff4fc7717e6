#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QFileInfo>
#include <utility>

#include "qt/appearance.h"

namespace vorelio {

namespace {

constexpr int kPatience_ms = 300;
constexpr unsigned kPrefersDark = 1;

/// The desktop's settings on its session bus, and the one of them that tells dark from light.
struct Portal {
  QString service = QStringLiteral("org.freedesktop.portal.Desktop");
  QString path = QStringLiteral("/org/freedesktop/portal/desktop");
  QString interface = QStringLiteral("org.freedesktop.portal.Settings");
  QString group = QStringLiteral("org.freedesktop.appearance");
  QString key = QStringLiteral("color-scheme");
};

/// A bus that isn't there already isn't started for it.
bool HasBus() {
  const bool bus = qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
                   QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
  return bus && QGuiApplication::platformName() != QLatin1String("offscreen");
}

/// The desktop's word over its session bus.
bool PortalSaysDark() {
  if (!HasBus()) return false;
  const Portal portal;
  QDBusMessage question =
      QDBusMessage::createMethodCall(portal.service, portal.path, portal.interface, QStringLiteral("Read"));
  question << portal.group << portal.key;
  const QDBusMessage answer = QDBusConnection::sessionBus().call(question, QDBus::Block, kPatience_ms);
  if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) return false;
  // The value comes in two wrappings.
  QVariant value = answer.arguments().constFirst();
  for (int i = 0; i < 2 && value.canConvert<QDBusVariant>(); ++i) value = value.value<QDBusVariant>().variant();
  return value.toUInt() == kPrefersDark;
}

/// Hears the desktop's changes. The bus delivers to slots only.
class DesktopListener : public QObject {
  Q_OBJECT

 public:
  DesktopListener(QObject& owner, std::function<void(bool)> changed) : QObject(&owner), changed_(std::move(changed)) {
    // The bus looks types of arguments up by their names, and doesn't know this one of itself.
    qRegisterMetaType<QDBusVariant>("QDBusVariant");
    QDBusConnection::sessionBus().connect(portal_.service, portal_.path, portal_.interface,
                                          QStringLiteral("SettingChanged"), this,
                                          SLOT(SettingChanged(QString, QString, QDBusVariant)));
  }

 private Q_SLOTS:
  void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
    if (group == portal_.group && key == portal_.key) changed_(value.variant().toUInt() == kPrefersDark);
  }

 private:
  Portal portal_;
  std::function<void(bool)> changed_;
};

}  // namespace

bool DesktopIsDark() {
  // Some desktops tell Qt by its palette, some by a variable, some by a service.
  if (QGuiApplication::palette().color(QPalette::Window).lightness() < 128) return true;
  const QString gtk = qEnvironmentVariable("GTK_THEME").toLower();
  if (gtk.endsWith(QLatin1String(":dark")) || gtk.endsWith(QLatin1String("-dark"))) return true;
  return PortalSaysDark();
}

void FollowDesktop(QObject& owner, std::function<void(bool dark)> changed) {
  if (HasBus()) new DesktopListener(owner, std::move(changed));
}

}  // namespace vorelio

#include "desktop_theme.moc"
