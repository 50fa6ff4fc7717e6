#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/errors.h"
#include "platform/disk.h"

namespace vorelio::tests {

/// A disk over another one that logs each access, and fails when it is told to.
class LoggingDisk : public Disk {
 public:
  /// Names in the log are relative to `folder`.
  LoggingDisk(Disk& inner, std::string folder);

  std::string ReadAll(const std::string& path) override;
  void WriteAll(const std::string& path, std::string_view data) override;
  void Append(const std::string& path, std::string_view data) override;
  void Copy(const std::string& from, const std::string& to) override;
  void Delete(const std::string& path) override;
  bool Exists(const std::string& path) override;
  std::uint64_t Size(const std::string& path) override;

  /// "read X", "write X", "append X", "copy X Y", "delete X", "exists X", "size X", in order; a failing one too.
  const std::vector<std::string>& Log() const { return log_; }
  /// Of these the ones that change something: write, append, copy, delete.
  std::vector<std::string> Changes() const;
  /// Forgets the log. Faults that were ordered stay.
  void Forget() { log_.clear(); }

  /// The `nth` access from now (1: the next) raises `error` and does nothing.
  void FailAt(int nth, Erreur error);
  /// Every access that begins with these words raises `error`: "write Temporaire2.txt", "copy", ...
  void FailOn(std::string_view words, Erreur error);
  /// The `nth` write or append from now raises `error` behind its first `bytes` bytes, which are on the disk then.
  void FailWriteAfter(int nth, std::size_t bytes, Erreur error);
  void Mend();

 private:
  struct Fault {
    int in;
    std::size_t bytes;
    Erreur error;
  };

  /// Logs an access, and raises what was ordered for it.
  void Note(const std::string& words, const std::string& path);
  std::string Short(const std::string& path) const;
  /// What of `data` still gets to the disk, if this write is the one to fail.
  std::optional<Fault> WriteFault();

  Disk& inner_;
  std::string folder_;
  std::vector<std::string> log_;
  std::optional<Fault> access_fault_;
  std::optional<Fault> write_fault_;
  std::vector<std::pair<std::string, Erreur>> faults_on_;
};

}  // namespace vorelio::tests
