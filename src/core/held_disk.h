#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/disk.h"

namespace vorelio {

/// The disk as the procedures see it. A long procedure may hold a file in memory while it works on it; whoever else
/// turns to the disk meanwhile finds there what the procedure has done so far, because the file is written first.
class Disque_Tenu : public Disk {
 public:
  explicit Disque_Tenu(Disk& disk) : disk_(disk) {}

  /// A file held in memory, for as long as this lives. Its end writes what the disk doesn't have yet.
  class Tenue {
   public:
    /// `ecrit` brings the file's text to the disk that it is given.
    Tenue(Disque_Tenu& disque, std::function<void(Disk&)> ecrit);
    ~Tenue();
    Tenue(const Tenue&) = delete;
    Tenue& operator=(const Tenue&) = delete;

    /// What stands in memory is now ahead of the disk.
    void Modifie() { en_avance_ = true; }
    /// Writes the file if it is ahead.
    void Depose();
    /// Whether the disk has been used by others since the last call: the file may no longer be what it was.
    bool Disque_Touche();

   private:
    friend class Disque_Tenu;

    Disque_Tenu& disque_;
    std::function<void(Disk&)> ecrit_;
    bool en_avance_ = false;
    bool touche_ = false;
  };

  /// Many small changes in one go: while this lives, what is written, copied and deleted stays in memory, and the disk
  /// gets what has become of each file at the end.
  class Groupe {
   public:
    explicit Groupe(Disque_Tenu& disque);
    ~Groupe();
    Groupe(const Groupe&) = delete;
    Groupe& operator=(const Groupe&) = delete;

    /// Brings the files to the disk; without it the end of the group does, and then no error is told.
    void Acheve();

   private:
    Disque_Tenu& disque_;
  };

  std::string ReadAll(const std::string& path) override;
  void WriteAll(const std::string& path, std::string_view data) override;
  void Append(const std::string& path, std::string_view data) override;
  void Copy(const std::string& from, const std::string& to) override;
  void Delete(const std::string& path) override;
  bool Exists(const std::string& path) override;
  std::uint64_t Size(const std::string& path) override;
  Instant Written(const std::string& path) override;

 private:
  /// What has become of a file in a group; nothing if it was deleted.
  using Contenu = std::optional<std::string>;

  /// The real disk, with every held file written.
  Disk& Pret();
  /// What the group has made of a file, null if it hasn't touched it.
  const Contenu* En_Memoire(const std::string& path) const;
  void Ecrit_Groupe();

  Disk& disk_;
  std::vector<Tenue*> tenues_;
  bool groupe_ = false;
  std::map<std::string, Contenu> memoire_;
};

}  // namespace vorelio
