#pragma once

#include <functional>
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

  std::string ReadAll(const std::string& path) override { return Pret().ReadAll(path); }
  void WriteAll(const std::string& path, std::string_view data) override { Pret().WriteAll(path, data); }
  void Append(const std::string& path, std::string_view data) override { Pret().Append(path, data); }
  void Copy(const std::string& from, const std::string& to) override { Pret().Copy(from, to); }
  void Delete(const std::string& path) override { Pret().Delete(path); }
  bool Exists(const std::string& path) override { return Pret().Exists(path); }
  std::uint64_t Size(const std::string& path) override { return Pret().Size(path); }

 private:
  /// The real disk, with every held file written.
  Disk& Pret();

  Disk& disk_;
  std::vector<Tenue*> tenues_;
};

}  // namespace vorelio
