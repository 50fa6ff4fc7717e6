#pragma once

#include <optional>
#include <string>

#include "platform/disk.h"
#include "platform/platform.h"

namespace vorelio {

/// The settings store in an INI file: the application is its section, section and key are joined to the name of a
/// value. Names and values come back to the last character, whatever they are. What others write into the file counts
/// at once.
class FileSettings : public SettingsStore {
 public:
  FileSettings(Disk& disk, std::string path);

  /// A value that is no text of the program's character set, as one that was edited by hand may be, counts as absent.
  /// A file that is there and can't be read is the disk's error.
  std::optional<std::string> Read(const std::string& application, const std::string& section,
                                  const std::string& key) override;

  /// A file that can't be written is the disk's error.
  void Write(const std::string& application, const std::string& section, const std::string& key,
             const std::string& value) override;

 private:
  std::string Bytes();

  Disk& disk_;
  std::string path_;
};

}  // namespace vorelio
