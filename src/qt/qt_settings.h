#pragma once

#include <QString>
#include <optional>
#include <string>

#include "platform/file_settings.h"
#include "platform/posix_disk.h"

namespace vorelio {

/// The user's settings in a file of any name, whose folder is made when it is needed.
class QtSettings : public SettingsStore {
 public:
  explicit QtSettings(const QString& file);

  std::optional<std::string> Read(const std::string& application, const std::string& section,
                                  const std::string& key) override;
  void Write(const std::string& application, const std::string& section, const std::string& key,
             const std::string& value) override;

 private:
  QString folder_;
  std::string path_;
  PosixDisk disk_;
  FileSettings settings_;
};

}  // namespace vorelio
