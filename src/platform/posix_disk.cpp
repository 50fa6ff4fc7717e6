#include "platform/posix_disk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <memory>
#include <utility>

#include "core/errors.h"
#include "core/text.h"
#include "platform/platform.h"

namespace vorelio {

namespace {

// The largest file that the program reads into memory. A log of 99,999 contacts has 20 MB.
constexpr std::uint64_t kLargest = std::numeric_limits<std::int32_t>::max();

// --- Calls ----------------------------------------------------------------------------------------------------------

template <typename Call>
auto Retry(Call call) {
  decltype(call()) result;
  do {
    result = call();
  } while (result < 0 && errno == EINTR);
  return result;
}

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() { Close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }

  explicit operator bool() const { return number_ >= 0; }
  int Number() const { return number_; }

 private:
  void Close() const {
    const int error = errno;
    if (number_ >= 0) close(number_);
    errno = error;
  }

  int number_;
};

// Not blocking: a pipe found in a file's place must not stop the program.
Descriptor Open(const std::string& name, int flags) {
  return Descriptor(Retry([&] { return open(name.c_str(), flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0666); }));
}

std::string FolderOf(const std::string& name) {
  const auto slash = name.find_last_of('/');
  return slash == std::string::npos ? "." : name.substr(0, slash + 1);
}

bool IsFolder(const std::string& name) {
  struct stat status {};
  return stat(name.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// --- Errors ---------------------------------------------------------------------------------------------------------

/// What a missing folder means to the operation: another error, or the same as a missing file.
enum class Folder { Told, AsFile };

[[noreturn]] void Fail(int error, const std::string& path, const std::string& name, Folder folder) {
  switch (error) {
    case ENOENT:
      throw Erreur_Execution(folder == Folder::AsFile || IsFolder(FolderOf(name)) ? Erreur::Fichier_Introuvable
                                                                                  : Erreur::Chemin_Introuvable,
                             path);
    case EACCES:
    case EPERM:
    case EROFS: throw Erreur_Execution(Erreur::Permission_Refusee, path);
    case ENOSPC:
    case EDQUOT:
    case EFBIG: throw Erreur_Execution(Erreur::Disque_Plein, path);
    case EIO:
    case ENXIO: throw Erreur_Execution(Erreur::Disque_Non_Pret, path);
    default: throw Erreur_Execution(Erreur::Acces_Chemin, path);
  }
}

// --- Writing --------------------------------------------------------------------------------------------------------
// Each returns 0, or the system's error.

int Error(int result) { return result < 0 ? errno : 0; }

int WriteAt(const Descriptor& file, std::string_view data, std::size_t offset) {
  while (!data.empty()) {
    const auto written =
        Retry([&] { return pwrite(file.Number(), data.data(), data.size(), static_cast<off_t>(offset)); });
    if (written <= 0) return written < 0 ? errno : EIO;
    data.remove_prefix(static_cast<std::size_t>(written));
    offset += static_cast<std::size_t>(written);
  }
  return 0;
}

int WriteAtEnd(const Descriptor& file, std::string_view data) {
  while (!data.empty()) {
    const auto written = Retry([&] { return write(file.Number(), data.data(), data.size()); });
    if (written <= 0) return written < 0 ? errno : EIO;
    data.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

// Some file systems can't take room beforehand; they tell when the growth is written.
int TakeRoom(const Descriptor& file, std::size_t size) {
  if (size == 0) return 0;
  const int error =
      Error(Retry([&] { return fallocate(file.Number(), FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(size)); }));
  return error == EOPNOTSUPP || error == ENOSYS || error == EINVAL ? 0 : error;
}

int CutTo(const Descriptor& file, std::size_t size) {
  return Error(Retry([&] { return ftruncate(file.Number(), static_cast<off_t>(size)); }));
}

// Devices, and some file systems, have nothing to flush and say EINVAL.
int Flush(const Descriptor& file) {
  const int error = Error(Retry([&] { return fsync(file.Number()); }));
  return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP ? 0 : error;
}

// A new name is safe once its folder is. A folder that may be used but not read can't be flushed.
int FlushFolder(const std::string& name) {
  const Descriptor folder = Open(FolderOf(name), O_RDONLY | O_DIRECTORY);
  return folder ? Flush(folder) : 0;
}

// --- Replacing ------------------------------------------------------------------------------------------------------

/// What a replacement came to.
enum class Replaced { Yes, Impossible };

/// A file beside the one that it is to replace. Until it has taken that one's name, it goes again when this ends.
class Beside {
 public:
  explicit Beside(const std::string& name) : final_(name), name_(name + ".neuf") {
    unlink(name_.c_str());
    file_ = Descriptor(
        Retry([&] { return open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666); }));
    error_ = file_ ? 0 : errno;
    made_ = error_ == 0;
  }
  ~Beside() {
    if (made_) unlink(name_.c_str());
  }
  Beside(const Beside&) = delete;
  Beside& operator=(const Beside&) = delete;

  /// Why it couldn't be made, 0 if it has been.
  int MakingError() const { return error_; }

  /// Takes over mode and owner of the old file; false if that can't be done.
  bool TakeAfter(const struct stat& old) const {
    struct stat mine {};
    if (fstat(file_.Number(), &mine) < 0) return false;
    const bool own = mine.st_uid == old.st_uid && mine.st_gid == old.st_gid;
    return (own || fchown(file_.Number(), old.st_uid, old.st_gid) == 0) &&
           fchmod(file_.Number(), old.st_mode & 07777) == 0;
  }

  int Write(std::string_view data) const {
    if (const int error = WriteAt(file_, data, 0)) return error;
    return Flush(file_);
  }

  int TakeName() {
    const int error = Error(rename(name_.c_str(), final_.c_str()));
    made_ = error != 0;
    return error;
  }

 private:
  std::string final_;
  std::string name_;
  Descriptor file_{-1};
  int error_ = 0;
  bool made_ = false;
};

/// Whether a failure to make or name a file says something of the device; else it says that the place doesn't allow it.
bool OfTheDevice(int error) { return error == ENOSPC || error == EDQUOT || error == EIO; }

/// The file that a name leads to over its links; the name itself where it leads nowhere yet.
std::string BehindLinks(const std::string& name) {
  const std::unique_ptr<char, decltype(&std::free)> real(realpath(name.c_str(), nullptr), &std::free);
  return real ? real.get() : name;
}

/// Puts a new file in the place of `name`. Impossible, with nothing done, for what is no plain file of one name in a
/// folder that can be written. An error is raised with the old file as it was.
Replaced Replace(const std::string& path, const std::string& name, std::string_view data) {
  const std::string file = BehindLinks(name);
  struct stat old {};
  const bool exists = lstat(file.c_str(), &old) == 0;
  if (!exists && errno != ENOENT) Fail(errno, path, name, Folder::Told);
  if (exists) {
    if (!S_ISREG(old.st_mode) || old.st_nlink != 1) return Replaced::Impossible;
    // Who may not write the file may not replace it either.
    if (faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) < 0) Fail(errno, path, name, Folder::Told);
  }
  const auto check = [&](int error) {
    if (error != 0) Fail(error, path, name, Folder::Told);
  };
  Beside fresh(file);
  if (OfTheDevice(fresh.MakingError())) check(fresh.MakingError());
  if (fresh.MakingError() != 0 || (exists && !fresh.TakeAfter(old))) return Replaced::Impossible;
  check(fresh.Write(data));
  const int naming = fresh.TakeName();
  if (naming != 0 && !OfTheDevice(naming)) return Replaced::Impossible;
  check(naming);
  check(FlushFolder(file));
  return Replaced::Yes;
}

// --- Changing in place ----------------------------------------------------------------------------------------------

/// A file that is open for a change, and what is needed to leave it as it was.
class Target {
 public:
  Target(const std::string& path, std::string name, int flags) : path_(path), name_(std::move(name)), file_(-1) {
    file_ = Open(name_, flags);
    if (!file_ && errno == ENOENT) {
      file_ = Open(name_, O_CREAT | flags);
      created_ = static_cast<bool>(file_);
    }
    if (!file_) Fail(errno, path_, name_, Folder::Told);
    struct stat status {};
    Check(Error(fstat(file_.Number(), &status)));
    regular_ = S_ISREG(status.st_mode);
    if (regular_) size_ = static_cast<std::size_t>(status.st_size);
  }

  const Descriptor& File() const { return file_; }
  bool Regular() const { return regular_; }
  std::size_t OldSize() const { return size_; }

  /// Raises an error. A file that this change has made goes again.
  void Check(int error) const {
    if (error == 0) return;
    if (created_) unlink(name_.c_str());
    Fail(error, path_, name_, Folder::Told);
  }

  /// The same, for a step before which the old contents still stand.
  void CheckOrRestore(int error) const {
    if (error != 0 && regular_ && !created_) CutTo(file_, size_);
    Check(error);
  }

  void FlushName() const {
    if (created_) Check(FlushFolder(name_));
  }

 private:
  const std::string& path_;
  std::string name_;
  Descriptor file_;
  bool created_ = false;
  bool regular_ = false;
  std::size_t size_ = 0;
};

struct stat StatusOf(const std::string& path, const std::string& name) {
  struct stat status {};
  if (stat(name.c_str(), &status) < 0) Fail(errno, path, name, Folder::AsFile);
  if (S_ISDIR(status.st_mode)) throw Erreur_Execution(Erreur::Acces_Chemin, path);
  return status;
}

}  // namespace

// --- PosixDisk ------------------------------------------------------------------------------------------------------

PosixDisk::PosixDisk(std::string root_text, std::string root_bytes)
    : root_text_(std::move(root_text)), root_bytes_(std::move(root_bytes)) {}

std::string PosixDisk::SystemPath(const std::string& path) const {
  // The system would take the path up to the zero for another file.
  if (path.find('\0') != std::string::npos) throw Erreur_Execution(Erreur::Acces_Chemin, path);
  const std::size_t root = root_text_.size();
  if (root == 0 || !path.starts_with(root_text_) || (path.size() > root && path[root] != '/')) return Vers_Utf8(path);
  return root_bytes_ + Vers_Utf8(std::string_view(path).substr(root));
}

std::string PosixDisk::ReadAll(const std::string& path) {
  const std::string name = SystemPath(path);
  const Descriptor file = Open(name, O_RDONLY);
  if (!file) Fail(errno, path, name, Folder::AsFile);
  struct stat status {};
  if (fstat(file.Number(), &status) < 0) Fail(errno, path, name, Folder::AsFile);
  if (!S_ISREG(status.st_mode) || static_cast<std::uint64_t>(status.st_size) > kLargest)
    throw Erreur_Execution(Erreur::Acces_Chemin, path);

  std::string data;
  data.reserve(static_cast<std::size_t>(status.st_size));
  std::array<char, 65536> piece;
  while (const auto count = Retry([&] { return read(file.Number(), piece.data(), piece.size()); })) {
    if (count < 0) Fail(errno, path, name, Folder::AsFile);
    data.append(piece.data(), static_cast<std::size_t>(count));
    if (data.size() > kLargest) throw Erreur_Execution(Erreur::Acces_Chemin, path);
  }
  return data;
}

namespace {

// A shorter file is cut once its contents are on the device: a length that gets there first would leave zeros.
void WriteInPlace(const std::string& path, const std::string& name, std::string_view data) {
  const Target target(path, name, O_WRONLY);
  if (target.Regular()) target.CheckOrRestore(TakeRoom(target.File(), data.size()));
  // The growth first: until it stands, the old contents can be had back by cutting it off.
  const std::size_t overlap = std::min(target.OldSize(), data.size());
  target.CheckOrRestore(WriteAt(target.File(), data.substr(overlap), overlap));
  target.Check(WriteAt(target.File(), data.substr(0, overlap), 0));
  target.Check(Flush(target.File()));
  if (target.Regular() && target.OldSize() > data.size()) {
    target.Check(CutTo(target.File(), data.size()));
    target.Check(Flush(target.File()));
  }
  target.FlushName();
}

/// How long a file is without the zero bytes at its end, and what that end lacks of a line's.
struct Tail {
  std::size_t size;
  std::string_view missing;
};

/// Errors of the system are raised as those of `target`.
Tail TailOf(const Target& target) {
  char block[4096];
  std::size_t end = target.OldSize();
  while (end > 0) {
    const std::size_t start = (end - 1) / sizeof block * sizeof block;
    const auto count =
        Retry([&] { return pread(target.File().Number(), block, end - start, static_cast<off_t>(start)); });
    target.Check(Error(static_cast<int>(count)));
    std::size_t kept = static_cast<std::size_t>(count);
    while (kept > 0 && block[kept - 1] == '\0') --kept;
    if (kept > 0) {
      const char last = block[kept - 1];
      return {start + kept, last == '\n' ? "" : last == '\r' ? kFin_De_Ligne.substr(1) : kFin_De_Ligne};
    }
    end = start;
  }
  return {0, ""};
}

}  // namespace

void PosixDisk::WriteAll(const std::string& path, std::string_view data) {
  const std::string name = SystemPath(path);
  if (Replace(path, name, data) == Replaced::Impossible) WriteInPlace(path, name, data);
}

void PosixDisk::Append(const std::string& path, std::string_view data) {
  const Target target(path, SystemPath(path), O_WRONLY | O_APPEND);
  target.CheckOrRestore(WriteAtEnd(target.File(), data));
  target.CheckOrRestore(Flush(target.File()));
  target.FlushName();
}

void PosixDisk::AppendLine(const std::string& path, std::string_view line) {
  const Target target(path, SystemPath(path), O_RDWR | O_APPEND);
  const Tail tail = target.Regular() ? TailOf(target) : Tail{0, ""};
  if (target.Regular() && tail.size < target.OldSize()) target.Check(CutTo(target.File(), tail.size));
  const std::string text = std::string(tail.missing).append(line).append(kFin_De_Ligne);
  target.CheckOrRestore(WriteAtEnd(target.File(), text));
  target.CheckOrRestore(Flush(target.File()));
  target.FlushName();
}

void PosixDisk::Copy(const std::string& from, const std::string& to) { WriteAll(to, ReadAll(from)); }

void PosixDisk::Delete(const std::string& path) {
  const std::string name = SystemPath(path);
  // The system says EPERM or EISDIR for a folder, depending on its kind.
  if (IsFolder(name)) throw Erreur_Execution(Erreur::Acces_Chemin, path);
  if (unlink(name.c_str()) < 0) Fail(errno, path, name, Folder::AsFile);
}

bool PosixDisk::Exists(const std::string& path) {
  const std::string name = SystemPath(path);
  struct stat status {};
  if (stat(name.c_str(), &status) == 0) return !S_ISDIR(status.st_mode);
  if (errno != ENOENT && errno != ENOTDIR) Fail(errno, path, name, Folder::AsFile);
  return false;
}

std::uint64_t PosixDisk::Size(const std::string& path) {
  return static_cast<std::uint64_t>(StatusOf(path, SystemPath(path)).st_size);
}

Instant PosixDisk::Written(const std::string& path) {
  const time_t seconds = StatusOf(path, SystemPath(path)).st_mtime;
  struct tm local {};
  if (localtime_r(&seconds, &local) == nullptr) throw Erreur_Execution(Erreur::Acces_Chemin, path);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

std::optional<FileStamp> PosixDisk::Stamp(const std::string& path) {
  const std::string name = SystemPath(path);
  struct stat status {};
  if (stat(name.c_str(), &status) < 0) {
    if (errno != ENOENT && errno != ENOTDIR) Fail(errno, path, name, Folder::AsFile);
    return std::nullopt;
  }
  constexpr std::int64_t kNanoseconds = 1'000'000'000;
  return FileStamp{status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
                   status.st_mtim.tv_sec * kNanoseconds + status.st_mtim.tv_nsec};
}

}  // namespace vorelio
