#pragma once

#include <QString>
#include <optional>
#include <string>

#include "platform/platform.h"
#include "platform/posix_disk.h"

namespace vorelio {

/// The settings store in an INI file: the application is its section, section and key are joined to the name of a
/// value. Names and values come back to the last character, whatever they are. What others write into the file counts
/// at once.
class QtSettings : public SettingsStore {
 public:
  explicit QtSettings(const QString& file);

  /// A value that is no text of the program's character set, as one that was edited by hand may be, counts as absent.
  /// A file that is there and can't be read is the disk's error.
  std::optional<std::string> Read(const std::string& application, const std::string& section,
                                  const std::string& key) override;

  /// A file that can't be written is the disk's error.
  void Write(const std::string& application, const std::string& section, const std::string& key,
             const std::string& value) override;

 private:
  std::string Bytes();

  QString folder_;
  std::string path_;
  PosixDisk disk_;
};

}  // namespace vorelio
