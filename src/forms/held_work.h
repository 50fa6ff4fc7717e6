#pragma once

#include <functional>

namespace vorelio {

class Programme;

/// Work that a long procedure keeps in memory for speed. Nobody else finds it missing: it is on the disk before an
/// event procedure runs, before a box opens, and while a procedure waits.
class Tenue {
 public:
  /// `ecrit` brings to the disk what it doesn't have yet.
  Tenue(Programme& programme, std::function<void()> ecrit);
  ~Tenue();
  Tenue(const Tenue&) = delete;
  Tenue& operator=(const Tenue&) = delete;

  /// What stands in memory is now ahead of the disk.
  void Modifie() { en_avance_ = true; }
  /// Writes it if it is ahead.
  void Depose();
  /// Runs `travail`, then writes. Also if it fails; its own error is the one to tell then.
  void Pendant(const std::function<void()>& travail);
  /// Whether somebody else has had a turn since the last call: the files may no longer be what they were.
  bool Interrompue();

 private:
  friend class Programme;

  Programme& programme_;
  std::function<void()> ecrit_;
  bool en_avance_ = false;
  bool interrompue_ = false;
};

}  // namespace vorelio
