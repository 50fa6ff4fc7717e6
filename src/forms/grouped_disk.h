#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/disk.h"

namespace vorelio {

class Programme;

/// Many small changes of files in one go. While this lives it is the disk that `Programme::Disque` gives: what is
/// written, copied and deleted stays in memory, until the files are written as they have become.
class Disque_Groupe : public Disk {
 public:
  explicit Disque_Groupe(Programme& programme);
  ~Disque_Groupe() override;
  Disque_Groupe(const Disque_Groupe&) = delete;
  Disque_Groupe& operator=(const Disque_Groupe&) = delete;

  /// Gives the disk back to the procedures, writes the files, then runs `suite`, which changes the file at `autre`. If
  /// any of it fails, all these files get back what they held before: false then.
  bool Ecrit(const std::string& autre, const std::function<void()>& suite);

  std::string ReadAll(const std::string& path) override;
  void WriteAll(const std::string& path, std::string_view data) override;
  void Append(const std::string& path, std::string_view data) override;
  void AppendLine(const std::string& path, std::string_view line) override;
  void Copy(const std::string& from, const std::string& to) override;
  void Delete(const std::string& path) override;
  bool Exists(const std::string& path) override;
  std::uint64_t Size(const std::string& path) override;
  Instant Written(const std::string& path) override;
  /// Of the file on the disk: no log is changed in a group.
  std::optional<FileStamp> Stamp(const std::string& path) override { return disk_.Stamp(path); }

 private:
  /// What a file holds; nothing if there is none.
  using Contenu = std::optional<std::string>;
  using Fichiers = std::map<std::string, Contenu>;

  Contenu Lu(const std::string& path);
  void Pose(const std::string& path, const Contenu& contenu);
  void Remet(const Fichiers& avant);

  Programme& programme_;
  Disk& disk_;
  Fichiers memoire_;
};

}  // namespace vorelio
