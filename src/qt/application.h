#pragma once

#include <QSettings>
#include <QString>

#include "platform/posix_disk.h"
#include "qt/appearance.h"
#include "qt/program_folder.h"
#include "qt/qt_clipboard.h"
#include "qt/qt_clock.h"
#include "qt/qt_documents.h"
#include "qt/qt_file_dialogs.h"
#include "qt/qt_messages.h"
#include "qt/qt_pages.h"
#include "qt/qt_printer.h"
#include "qt/qt_serial.h"
#include "qt/qt_settings.h"
#include "qt/qt_sounds.h"
#include "qt/qt_windows.h"
#include "qt/window_extras.h"

namespace vorelio {

/// Names, icon and language of the QApplication. To be called once, after its making.
void SetUpApplication();

/// The user's folder for settings, XDG_CONFIG_HOME/Vorelio, and for data, XDG_DATA_HOME.
QString SettingsFolder();
QString DataHome();

/// The services of the platform on Qt, joined.
class Application {
 public:
  /// The station's settings go to Vorelio.ini of the folder, those of the windows to Fenetres.ini.
  Application(const ProgramFolder& folder, const QString& settings_folder);

  Platform Services() { return Services(messages); }
  /// The same with other boxes.
  Platform Services(MessageService& boxes);

  QSettings memory;
  Appearance appearance;
  WindowExtras extras;
  QtWindows windows;
  QtMessages messages;
  QtFileDialogs dialogs;
  QtSettings settings;
  QtClock clock;
  PosixDisk disk;
  QtPrinter printer;
  QtSerial serial;
  QtPages pages;
  QtSounds sounds;
  QtClipboard clipboard;
  QtDocuments documents;

 private:
  std::string directory_;
};

}  // namespace vorelio
