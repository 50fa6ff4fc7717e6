#include "platform/posix_disk.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/errors.h"
#include "doubles/scratch_folder.h"

// The calls that this program makes go through here: a test sees their order, and can let one fail as the system
// would. Whoever doesn't ask gets the system's own.
namespace {

struct Calls {
  bool watched = false;
  std::vector<std::string> log;
  /// The call that fails, and with what; -1 writes half of what is asked for, once.
  std::string failing;
  int error = 0;
};
Calls calls;  // NOLINT: C functions stand between the test and its double.

std::string NameOf(int file) {
  std::error_code none;
  return std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file), none).filename().string();
}

template <typename Call>
auto Pass(const char* name, int file, Call call) -> decltype(call()) {
  if (calls.watched) calls.log.push_back(std::string(name) + " " + NameOf(file));
  if (!calls.watched || calls.failing != name || calls.error < 0) return call();
  errno = calls.error;
  if (calls.error == EINTR) calls.failing.clear();
  return -1;
}

size_t Share(const char* name, size_t size) {
  if (!calls.watched || calls.failing != name || calls.error >= 0 || size < 2) return size;
  calls.failing.clear();
  return size / 2;
}

}  // namespace

extern "C" {
int fsync(int file) {
  return Pass("fsync", file, [&] { return static_cast<int>(syscall(SYS_fsync, file)); });
}
int ftruncate(int file, off_t size) noexcept {
  return Pass("ftruncate", file, [&] { return static_cast<int>(syscall(SYS_ftruncate, file, size)); });
}
int fallocate(int file, int mode, off_t from, off_t size) {
  return Pass("fallocate", file, [&] { return static_cast<int>(syscall(SYS_fallocate, file, mode, from, size)); });
}
int rename(const char* from, const char* to) noexcept {
  if (calls.watched) calls.log.push_back("rename " + std::filesystem::path(to).filename().string());
  return static_cast<int>(syscall(SYS_rename, from, to));
}
ssize_t pwrite(int file, const void* data, size_t size, off_t from) {
  return Pass("pwrite", file,
              [&] { return static_cast<ssize_t>(syscall(SYS_pwrite64, file, data, Share("pwrite", size), from)); });
}
}

namespace vorelio::tests {

using namespace doubles;
namespace {

namespace fs = std::filesystem;

/// Runs as a user whom permission bits bind, also where the tests run as root.
class Commoner {
 public:
  Commoner() : root_(geteuid() == 0) {
    if (root_ && seteuid(65534) != 0) std::abort();
  }
  ~Commoner() {
    if (root_ && seteuid(0) != 0) std::abort();
  }

 private:
  bool root_;
};

/// No file may grow beyond this: the kernel then writes as far as it goes, as on a disk that fills up.
class SizeLimit {
 public:
  explicit SizeLimit(rlim_t bytes) : before_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &old_);
    const rlimit now{bytes, old_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &now);
  }
  ~SizeLimit() {
    setrlimit(RLIMIT_FSIZE, &old_);
    std::signal(SIGXFSZ, before_);
  }

 private:
  rlimit old_{};
  void (*before_)(int);
};

class Posix_Disk : public testing::Test {
 protected:
  Posix_Disk() {
    fs::permissions(scratch_.Path(), fs::perms::all);
    scratch_.Write("old", "0123456789");
    fs::create_directory(Path("folder"));
    fs::create_symlink("loop", Path("loop"));
    mkfifo(Path("pipe").c_str(), 0666);
  }
  ~Posix_Disk() override { calls = {}; }

  std::string Path(const std::string& name) const { return scratch_.File(name); }
  std::string Contents(const std::string& name) const { return scratch_.Read(name); }

  /// Number of the error that `action` raises, 0 if none; the path must stand in its text.
  static int Error(const std::string& path, const std::function<void()>& action) {
    try {
      action();
    } catch (const Erreur_Execution& error) {
      EXPECT_NE(std::string::npos, error.Texte().find(path)) << error.Texte();
      return error.Numero();
    }
    return 0;
  }
  int ReadError(const std::string& path) {
    return Error(path, [&] { disk_.ReadAll(path); });
  }
  int WriteError(const std::string& path, const std::string& data = "new") {
    return Error(path, [&] { disk_.WriteAll(path, data); });
  }
  int AppendError(const std::string& path, const std::string& data = "new") {
    return Error(path, [&] { disk_.Append(path, data); });
  }
  int DeleteError(const std::string& path) {
    return Error(path, [&] { disk_.Delete(path); });
  }

  static void Watch(const std::string& failing = {}, int error = 0) { calls = {true, {}, failing, error}; }

  ScratchFolder scratch_;
  PosixDisk disk_;
};

TEST_F(Posix_Disk, GivesAndTakesContentsToTheByte) {
  std::string all(100000, '\0');
  for (std::size_t i = 0; i < all.size(); ++i) all[i] = static_cast<char>(i * 7 % 256);
  for (const std::string& data : {std::string{}, std::string("a\r\n\0b", 5), all, std::string("short")}) {
    disk_.WriteAll(Path("file"), data);
    EXPECT_EQ(data, Contents("file"));
    EXPECT_EQ(data, disk_.ReadAll(Path("file")));
    EXPECT_EQ(data.size(), disk_.Size(Path("file")));
  }
  disk_.Append(Path("file"), " and");
  disk_.Append(Path("file"), " more");
  EXPECT_EQ("short and more", Contents("file"));
  disk_.Append(Path("fresh"), "line");
  EXPECT_EQ("line", Contents("fresh"));
  disk_.Copy(Path("fresh"), Path("old"));
  EXPECT_EQ("line", Contents("old"));
  disk_.Copy(Path("old"), Path("old"));
  EXPECT_EQ("line", Contents("old"));
  disk_.Delete(Path("old"));
  EXPECT_FALSE(disk_.Exists(Path("old")));
  EXPECT_TRUE(disk_.Exists(Path("fresh")));
  EXPECT_FALSE(disk_.Exists(Path("folder")));
}

TEST_F(Posix_Disk, ReadsFilesWhoseSizeIsntKnownBeforehand) { EXPECT_NE("", disk_.ReadAll("/proc/self/maps")); }

TEST_F(Posix_Disk, ReplacesAFileWhole) {
  constexpr auto kMine = fs::perms::owner_read | fs::perms::owner_write;
  const auto node = [&](const std::string& name) { return disk_.Stamp(Path(name)).value_or(FileStamp{}).node; };
  fs::permissions(Path("old"), kMine);
  const bool root = geteuid() == 0;
  ASSERT_EQ(0, root ? chown(Path("old").c_str(), 65534, 65534) : 0);
  fs::create_symlink("old", Path("link"));
  // What a cut has left, be it a link to something else, is in nobody's way.
  scratch_.Write("bystander", "stays");
  fs::create_symlink("bystander", Path("old.neuf"));
  const auto before = node("old");
  disk_.WriteAll(Path("link"), "new");
  EXPECT_NE(before, node("old"));
  EXPECT_TRUE(fs::is_symlink(Path("link")));
  EXPECT_EQ("new", Contents("old"));
  EXPECT_EQ("stays", Contents("bystander"));
  EXPECT_FALSE(fs::exists(fs::symlink_status(Path("old.neuf"))));
  EXPECT_EQ(kMine, fs::status(Path("old")).permissions());
  struct stat status {};
  ASSERT_EQ(0, stat(Path("old").c_str(), &status));
  EXPECT_EQ(root ? 65534U : geteuid(), status.st_uid);
}

TEST_F(Posix_Disk, OverwritesInPlaceWhatCantBeReplaced) {
  const auto stays = [&](const std::string& name, const char* why) {
    const auto before = disk_.Stamp(Path(name));
    for (const std::string data : {"longer than it was", "short"}) {
      EXPECT_EQ(0, WriteError(Path(name), data)) << why;
      EXPECT_EQ(data, Contents(name)) << why;
    }
    EXPECT_EQ(before->node, disk_.Stamp(Path(name))->node) << why;
  };
  fs::create_hard_link(Path("old"), Path("link"));
  stays("old", "two names");
  EXPECT_EQ("short", Contents("link"));

  scratch_.Write("blocked", "0");
  fs::create_directories(Path("blocked.neuf/full"));
  stays("blocked", "the place beside is taken");

  const std::string longest(253, 'x');
  scratch_.Write(longest, "0");
  stays(longest, "no name beside is short enough");

  scratch_.Write("folder/file", "0");
  fs::permissions(Path("folder/file"), fs::perms::all);
  fs::permissions(Path("folder"), fs::perms(0755));
  const Commoner nobody;
  stays("folder/file", "a folder that can't be written");
}

// A line that is added stands alone, whatever a cut or an editor has left at the end.
TEST_F(Posix_Disk, AppendsALineOfItsOwn) {
  const struct {
    std::string before, after;
  } table[] = {{"", "new\r\n"},
               {"one\r\n", "one\r\nnew\r\n"},
               {"one\n", "one\nnew\r\n"},
               {"one", "one\r\nnew\r\n"},
               {"one\r", "one\r\nnew\r\n"},
               {"one\r\ntw" + std::string(10000, '\0'), "one\r\ntw\r\nnew\r\n"},
               {"one\r\n" + std::string(4096, '\0'), "one\r\nnew\r\n"},
               {std::string(8192, '\0'), "new\r\n"}};
  for (const auto& c : table) {
    scratch_.Write("log", c.before);
    disk_.AppendLine(Path("log"), "new");
    EXPECT_EQ(c.after, Contents("log")) << c.before.substr(0, 10);
  }
  disk_.AppendLine(Path("fresh"), "new");
  EXPECT_EQ("new\r\n", Contents("fresh"));
  scratch_.Write("log", "one");
  Watch("fsync", EIO);
  EXPECT_EQ(71, Error(Path("log"), [&] { disk_.AppendLine(Path("log"), "new"); }));
  EXPECT_EQ("one", Contents("log"));
}

TEST_F(Posix_Disk, TellsWhatIsMissing) {
  EXPECT_EQ(53, ReadError(Path("none")));
  EXPECT_EQ(53, ReadError(Path("none/file")));
  EXPECT_EQ(53, DeleteError(Path("none")));
  EXPECT_EQ(53, DeleteError(Path("none/file")));
  EXPECT_EQ(53, Error(Path("none"), [&] { disk_.Size(Path("none")); }));
  EXPECT_EQ(53, Error(Path("none"), [&] { disk_.Copy(Path("none"), Path("old")); }));
  EXPECT_EQ("0123456789", Contents("old"));
  EXPECT_EQ(76, WriteError(Path("none/file")));
  EXPECT_EQ(76, AppendError(Path("none/file")));
  EXPECT_EQ(76, Error(Path("none/file"), [&] { disk_.Copy(Path("old"), Path("none/file")); }));
  fs::create_symlink("none/file", Path("dangling"));
  EXPECT_EQ(53, WriteError(Path("dangling")));
  EXPECT_EQ(53, WriteError(""));
}

TEST_F(Posix_Disk, RefusesWhatIsNoFile) {
  const std::string long_name(300, 'x');
  for (const std::string& name :
       {std::string("folder"), std::string("loop"), std::string("old/file"), long_name, std::string("old\0x", 5)}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(75, ReadError(Path(name)));
    EXPECT_EQ(75, WriteError(Path(name)));
    EXPECT_EQ(75, AppendError(Path(name)));
    if (name == "loop") continue;
    EXPECT_EQ(75, DeleteError(Path(name)));
  }
  EXPECT_EQ(75, Error(Path("folder"), [&] { disk_.Size(Path("folder")); }));
  EXPECT_EQ(75, ReadError(Path("pipe")));
  EXPECT_EQ(71, WriteError(Path("pipe")));
  EXPECT_EQ(75, ReadError("/dev/zero"));
  EXPECT_EQ("0123456789", Contents("old"));
  EXPECT_TRUE(fs::is_directory(Path("folder")));
  ASSERT_EQ(0, truncate(Path("old").c_str(), 3LL << 30));
  EXPECT_EQ(75, ReadError(Path("old")));
}

TEST_F(Posix_Disk, TellsWhatIsntPermitted) {
  fs::permissions(Path("old"), fs::perms::none);
  fs::permissions(Path("folder"), fs::perms::owner_read | fs::perms::others_read);
  {
    const Commoner nobody;
    EXPECT_EQ(70, ReadError(Path("old")));
    EXPECT_EQ(70, WriteError(Path("old")));
    EXPECT_EQ(70, AppendError(Path("old")));
    EXPECT_EQ(70, WriteError(Path("folder/new")));
    EXPECT_EQ(70, DeleteError(Path("folder/new")));
    // Not to be told from here: a "no" would let a template take its place.
    EXPECT_EQ(70, Error(Path("folder/new"), [&] { disk_.Exists(Path("folder/new")); }));
    EXPECT_EQ(70, Error(Path("folder/new"), [&] { disk_.Stamp(Path("folder/new")); }));
  }
  EXPECT_EQ("0123456789", (fs::permissions(Path("old"), fs::perms::owner_read), Contents("old")));

  const int sealed = memfd_create("sealed", MFD_ALLOW_SEALING);
  ASSERT_EQ(0, fcntl(sealed, F_ADD_SEALS, F_SEAL_WRITE | F_SEAL_GROW | F_SEAL_SHRINK));
  const std::string path = "/proc/self/fd/" + std::to_string(sealed);
  EXPECT_EQ(70, WriteError(path));
  EXPECT_EQ(70, AppendError(path));
  close(sealed);
}

TEST_F(Posix_Disk, LeavesTheOldContentsWhenTheDiskIsFull) {
  EXPECT_EQ(61, WriteError("/dev/full"));
  EXPECT_EQ(61, AppendError("/dev/full"));
  EXPECT_EQ(61, Error("/dev/full", [&] { disk_.Copy(Path("old"), "/dev/full"); }));
  {
    // Room up to byte 15: each write gets half way and then fails.
    const SizeLimit limit(15);
    EXPECT_EQ(61, WriteError(Path("old"), std::string(20, 'x')));
    EXPECT_EQ(61, AppendError(Path("old"), std::string(10, 'x')));
    EXPECT_EQ(61, WriteError(Path("new"), std::string(20, 'x')));
    EXPECT_EQ(61, AppendError(Path("new"), std::string(20, 'x')));
  }
  EXPECT_EQ("0123456789", Contents("old"));
  EXPECT_FALSE(scratch_.Exists("new"));

  EXPECT_FALSE(scratch_.Exists("old.neuf"));

  fs::create_hard_link(Path("old"), Path("link"));
  Watch("fallocate", ENOSPC);
  EXPECT_EQ(61, WriteError(Path("old"), std::string(20, 'x')));
  EXPECT_EQ("0123456789", Contents("old"));
}

TEST_F(Posix_Disk, TellsWhatTheDeviceHasRefused) {
  const std::vector<std::pair<int, int>> table = {{EIO, 71},    {ENXIO, 71}, {EDQUOT, 61}, {EFBIG, 61},
                                                  {EACCES, 70}, {EROFS, 70}, {EBADF, 75}};
  for (const auto& [error, number] : table) {
    Watch("pwrite", error);
    EXPECT_EQ(number, WriteError(Path("old"))) << error;
    Watch("fsync", error);
    EXPECT_EQ(number, WriteError(Path("new"))) << error;
    EXPECT_EQ(number, AppendError(Path("old"))) << error;
  }
  calls = {};
  EXPECT_FALSE(scratch_.Exists("new"));
  EXPECT_EQ("0123456789", Contents("old"));
}

TEST_F(Posix_Disk, GoesOnWhereTheSystemAsksForIt) {
  const std::vector<std::pair<std::string, int>> table = {
      {"fallocate", EOPNOTSUPP}, {"fallocate", ENOSYS}, {"fallocate", EINTR}, {"fsync", EINTR},     {"fsync", EINVAL},
      {"ftruncate", EINTR},      {"pwrite", EINTR},     {"pwrite", -1},       {"fsync", EOPNOTSUPP}};
  for (const bool in_place : {false, true}) {
    if (in_place) fs::create_hard_link(Path("old"), Path("link"));
    for (const auto& [call, error] : table) {
      scratch_.Write("old", "0123456789abcdef");
      Watch(call, error);
      EXPECT_EQ(0, WriteError(Path("old"), "01234567")) << call << error;
      EXPECT_EQ("01234567", Contents("old")) << call << error;
    }
  }
}

TEST_F(Posix_Disk, FlushesInTheOrderThatAPowerCutAsksFor) {
  const std::string here = fs::path(scratch_.Path()).filename().string();
  const auto calls_of = [](const std::function<void()>& action) {
    Watch();
    action();
    return calls.log;
  };
  using Log = std::vector<std::string>;
  const Log replaced = {"pwrite old.neuf", "fsync old.neuf", "rename old", "fsync " + here};
  EXPECT_EQ(calls_of([&] { disk_.WriteAll(Path("old"), "0123456789abcdef"); }), replaced);
  EXPECT_EQ(calls_of([&] { disk_.Copy(Path("old"), Path("copy")); }),
            (Log{"pwrite copy.neuf", "fsync copy.neuf", "rename copy", "fsync " + here}));
  EXPECT_EQ(calls_of([&] { disk_.Append(Path("copy"), "line"); }), Log{"fsync copy"});
  EXPECT_EQ(calls_of([&] { disk_.AppendLine(Path("copy"), "line"); }), Log{"fsync copy"});
  EXPECT_EQ(calls_of([&] { disk_.Append(Path("newer"), "line"); }), (Log{"fsync newer", "fsync " + here}));
  // In place a length that got to the device before its contents would leave zeros.
  fs::create_hard_link(Path("old"), Path("link"));
  EXPECT_EQ(calls_of([&] { disk_.WriteAll(Path("old"), "0123456789abcdefgh"); }),
            (Log{"fallocate old", "pwrite old", "pwrite old", "fsync old"}));
  EXPECT_EQ(calls_of([&] { disk_.WriteAll(Path("old"), "short"); }),
            (Log{"fallocate old", "pwrite old", "fsync old", "ftruncate old", "fsync old"}));
}

TEST_F(Posix_Disk, FindsFilesByTheirAccentsAndInFoldersOutsideTheCharacterSet) {
  disk_.WriteAll(Path("d\xE9partement \x80"), "a");
  EXPECT_EQ("a", Contents("département €"));
  EXPECT_EQ(53, ReadError(Path("\xE9t\xE9")));

  const std::string real = Path("Журнал");
  fs::create_directory(real);
  fs::create_directory(real + "2");
  PosixDisk rooted("/home/?", real);
  rooted.WriteAll("/home/?/\xE9t\xE9.log", "b");
  EXPECT_EQ("b", Contents("Журнал/été.log"));
  EXPECT_EQ("b", rooted.ReadAll("/home/?/\xE9t\xE9.log"));
  EXPECT_EQ(53, Error("/home/?/x", [&] { rooted.ReadAll("/home/?/x"); }));
  // A neighbour whose name only begins alike is another folder.
  EXPECT_EQ(76, Error("/home/?2/x", [&] { rooted.WriteAll("/home/?2/x", "c"); }));
  EXPECT_EQ("0123456789", rooted.ReadAll(Path("old")));
}

}  // namespace
}  // namespace vorelio::tests
