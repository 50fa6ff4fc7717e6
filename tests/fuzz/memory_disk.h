#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "core/errors.h"
#include "platform/platform.h"

namespace vorelio::tests {

/// A disk without a device, for the many runs of a fuzz target.
class MemoryDisk : public Disk {
 public:
  std::string ReadAll(const std::string& path) override { return Known(path); }
  void WriteAll(const std::string& path, std::string_view data) override { files[path] = data; }
  void Append(const std::string& path, std::string_view data) override { files[path].append(data); }
  void AppendLine(const std::string& path, std::string_view line) override {
    std::string& file = files[path];
    file.resize(file.find_last_not_of('\0') + 1);
    if (!file.empty() && file.back() != '\n') file.append("\r\n");
    file.append(line).append("\r\n");
  }
  void Copy(const std::string& from, const std::string& to) override { files[to] = std::string(Known(from)); }
  void Delete(const std::string& path) override {
    Known(path);
    files.erase(path);
  }
  bool Exists(const std::string& path) override { return files.count(path) > 0; }
  std::uint64_t Size(const std::string& path) override { return Known(path).size(); }
  std::optional<FileStamp> Stamp(const std::string& path) override {
    return Exists(path) ? std::optional(FileStamp{.size = Size(path)}) : std::nullopt;
  }
  Instant Written(const std::string& path) override {
    Known(path);
    return {};
  }

  std::map<std::string, std::string> files;

 private:
  const std::string& Known(const std::string& path) const {
    const auto place = files.find(path);
    if (place == files.end()) throw Erreur_Execution(Erreur::Fichier_Introuvable, path);
    return place->second;
  }
};

}  // namespace vorelio::tests
