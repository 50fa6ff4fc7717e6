#pragma once

#include <QSettings>
#include <QString>
#include <optional>
#include <string>

#include "platform/platform.h"

namespace vorelio {

/// The settings store in an INI file: the application is its section, section and key are joined to the name of a
/// value. Names and values come back to the last character, whatever they are.
class QtSettings : public SettingsStore {
 public:
  explicit QtSettings(const QString& file) : file_(file, QSettings::IniFormat) {}

  /// A value that is no text of the program's character set, as one that was edited by hand may be, counts as absent.
  std::optional<std::string> Read(const std::string& application, const std::string& section,
                                  const std::string& key) override;

  /// A file that can't be written is run-time error 75.
  void Write(const std::string& application, const std::string& section, const std::string& key,
             const std::string& value) override;

 private:
  QSettings file_;
};

}  // namespace vorelio
