#include "qt/application.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTranslator>

#include "qt/one_press.h"

namespace vorelio {

void SetUpApplication() {
  QApplication::setApplicationName(QStringLiteral("Vorelio"));
  QApplication::setApplicationDisplayName(QString());
  QApplication::setApplicationVersion(QStringLiteral(VORELIO_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("vorelio"));
  QApplication::setQuitOnLastWindowClosed(false);
  qApp->installEventFilter(new OnePress(qApp));
  UseResources();
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256})
    icon.addFile(QStringLiteral(":/icons/vorelio-%1.png").arg(size), QSize(size, size));
  QApplication::setWindowIcon(icon);
  // The dialogs that Qt brings speak French too, where its translations are installed.
  QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
  auto* french = new QTranslator(qApp);
  if (french->load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(french);
}

QString SettingsFolder() {
  return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
      .filePath(QStringLiteral("Vorelio"));
}

QString DataHome() { return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation); }

Application::Application(const ProgramFolder& folder, const QString& settings_folder)
    : memory(QDir(settings_folder).filePath(QStringLiteral("Fenetres.ini")), QSettings::IniFormat),
      appearance(memory),
      extras(appearance, memory),
      messages(windows),
      dialogs(windows, messages),
      settings(QDir(settings_folder).filePath(QStringLiteral("Vorelio.ini"))),
      disk(folder.text, folder.bytes),
      printer(windows, messages),
      pages(windows),
      sounds(windows),
      clipboard(messages),
      directory_(folder.text) {
  windows.Furnish = [this](const Form& form, QWidget& window) { return extras.Furnish(form, window); };
}

Platform Application::Services(MessageService& boxes) {
  return {settings, boxes, dialogs, clock,     windows,   disk,       printer,
          serial,   pages, sounds,  clipboard, documents, directory_, '/'};
}

}  // namespace vorelio
