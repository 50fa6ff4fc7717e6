#pragma once

#include <string>

namespace vorelio {

/// A running program's claim on its folder, so that no second one works on the same files. It leaves nothing in the
/// folder, and ends with the process, however that ends.
class FolderLock {
 public:
  /// `folder` as the system calls it.
  explicit FolderLock(const std::string& folder);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  /// Whether another program has the folder. A file system without locks tells of none.
  bool TakenByOther() const { return taken_by_other_; }

 private:
  int descriptor_;
  bool taken_by_other_ = false;
};

}  // namespace vorelio
