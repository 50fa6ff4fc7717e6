#include "platform/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace vorelio {

FolderLock::FolderLock(const std::string& folder)
    : descriptor_(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  if (descriptor_ < 0) return;
  int result = 0;
  do {
    result = flock(descriptor_, LOCK_EX | LOCK_NB);
  } while (result < 0 && errno == EINTR);
  taken_by_other_ = result < 0 && errno == EWOULDBLOCK;
}

FolderLock::~FolderLock() {
  if (descriptor_ >= 0) close(descriptor_);
}

}  // namespace vorelio
