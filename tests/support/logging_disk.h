#pragma once

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/errors.h"
#include "platform/platform.h"

namespace vorelio::tests {

using Lines = std::vector<std::string>;

/// A disk over another one that logs each access, and fails when it is told to.
class LoggingDisk : public Disk {
 public:
  /// Names in the log are relative to `folder`.
  LoggingDisk(Disk& inner, std::string folder) : inner_(inner), folder_(std::move(folder)) {}

  std::string ReadAll(const std::string& path) override { return Noted("read", path).ReadAll(path); }
  void WriteAll(const std::string& path, std::string_view data) override { Noted("write", path).WriteAll(path, data); }
  void Append(const std::string& path, std::string_view data) override { Noted("append", path).Append(path, data); }
  void AppendLine(const std::string& path, std::string_view line) override {
    Noted("append", path).AppendLine(path, line);
  }
  void Copy(const std::string& from, const std::string& to) override {
    Noted("copy", from, " " + Short(to)).Copy(from, to);
  }
  void Delete(const std::string& path) override { Noted("delete", path).Delete(path); }
  bool Exists(const std::string& path) override { return Noted("exists", path).Exists(path); }
  std::uint64_t Size(const std::string& path) override { return Noted("size", path).Size(path); }
  Instant Written(const std::string& path) override { return inner_.Written(path); }
  /// Isn't logged: it neither reads nor changes.
  std::optional<FileStamp> Stamp(const std::string& path) override { return inner_.Stamp(path); }

  /// "read X", "write X", "append X", "copy X Y", "delete X", "exists X", "size X", in order; a failing one too.
  const Lines& Log() const { return log_; }
  /// Of these the ones that change something: write, append, copy, delete.
  Lines Changes() const {
    Lines changes;
    std::copy_if(log_.begin(), log_.end(), std::back_inserter(changes), [](const std::string& access) {
      return !access.starts_with("read ") && !access.starts_with("exists ") && !access.starts_with("size ");
    });
    return changes;
  }
  /// Forgets the log. Faults that were ordered stay.
  void Forget() { log_.clear(); }

  /// Every access that begins with these words raises `error`: "write Temporaire2.txt", "copy", ...
  void FailOn(std::string_view words, Erreur error) { faults_.emplace_back(words, error); }
  void Mend() { faults_.clear(); }

 private:
  /// The disk below, once the access is logged; raises what was ordered for it.
  Disk& Noted(const char* access, const std::string& path, const std::string& more = {}) {
    const std::string words = std::string(access) + " " + Short(path) + more;
    log_.push_back(words);
    for (const auto& [start, error] : faults_)
      if (words.starts_with(start)) throw Erreur_Execution(error, path);
    return inner_;
  }
  std::string Short(const std::string& path) const {
    return path.starts_with(folder_ + "/") ? path.substr(folder_.size() + 1) : path;
  }

  Disk& inner_;
  std::string folder_;
  Lines log_;
  std::vector<std::pair<std::string, Erreur>> faults_;
};

}  // namespace vorelio::tests
