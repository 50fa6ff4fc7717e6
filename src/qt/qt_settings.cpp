#include "qt/qt_settings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "qt/qt_text.h"

namespace vorelio {

QtSettings::QtSettings(const QString& file)
    : folder_(QFileInfo(file).absolutePath()),
      path_(FromQt(QFileInfo(file).absoluteFilePath())),
      disk_(path_, QFile::encodeName(QFileInfo(file).absoluteFilePath()).toStdString()),
      settings_(disk_, path_) {}

std::optional<std::string> QtSettings::Read(const std::string& application, const std::string& section,
                                            const std::string& key) {
  return settings_.Read(application, section, key);
}

void QtSettings::Write(const std::string& application, const std::string& section, const std::string& key,
                       const std::string& value) {
  QDir().mkpath(folder_);
  settings_.Write(application, section, key, value);
}

}  // namespace vorelio
