#include "platform/folder_lock.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <optional>

#include "doubles/scratch_folder.h"

namespace vorelio::tests {
namespace {

/// A process that takes the lock and keeps it until it is ended.
class Holder {
 public:
  explicit Holder(const std::string& folder) {
    int ready[2];
    EXPECT_EQ(pipe(ready), 0);
    process_ = fork();
    if (process_ == 0) {
      const FolderLock lock(folder);
      const char taken = lock.TakenByOther() ? '0' : '1';
      if (write(ready[1], &taken, 1) != 1) _exit(1);
      for (;;) pause();
    }
    char answer = '?';
    EXPECT_EQ(read(ready[0], &answer, 1), 1);
    has_it_ = answer == '1';
    close(ready[0]);
    close(ready[1]);
  }
  ~Holder() { End(); }

  bool HasIt() const { return has_it_; }
  void End() {
    if (process_ <= 0) return;
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
    process_ = -1;
  }

 private:
  pid_t process_ = -1;
  bool has_it_ = false;
};

TEST(FolderLockTest, OneProcessHasTheFolderUntilItIsGone) {
  const doubles::ScratchFolder folder, elsewhere;
  Holder first(folder.Path());
  EXPECT_TRUE(first.HasIt());
  EXPECT_TRUE(FolderLock(folder.Path()).TakenByOther());
  // By another way too, and as often as one asks.
  std::filesystem::create_directory_symlink(folder.Path(), elsewhere.File("link"));
  EXPECT_TRUE(FolderLock(elsewhere.File("link")).TakenByOther());
  EXPECT_FALSE(FolderLock(elsewhere.Path()).TakenByOther());
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));

  first.End();
  const Holder second(folder.Path());
  EXPECT_TRUE(second.HasIt());
  EXPECT_FALSE(Holder(folder.Path()).HasIt());
}

TEST(FolderLockTest, AFolderThatCantBeOpenedHasNoLock) { EXPECT_FALSE(FolderLock("/nowhere").TakenByOther()); }

// A program that this one has started doesn't keep the folder behind it.
TEST(FolderLockTest, AProgramStartedFromThisOneDoesNotHoldIt) {
  const doubles::ScratchFolder folder;
  auto lock = std::make_optional<FolderLock>(folder.Path());
  const pid_t child = fork();
  if (child == 0) {
    execlp("sleep", "sleep", "60", nullptr);
    _exit(1);
  }
  // Between fork and exec it still has it.
  for (int i = 0; i < 500; ++i) {
    if (std::filesystem::read_symlink("/proc/" + std::to_string(child) + "/exe").filename() != "vorelio_tests") break;
    usleep(10000);
  }
  lock.reset();
  EXPECT_TRUE(Holder(folder.Path()).HasIt());
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
}

}  // namespace
}  // namespace vorelio::tests
