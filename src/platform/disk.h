#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vorelio {

struct Instant;

/// What tells whether a file is still the one that it was: a write by whomever changes it.
struct FileStamp {
  std::uint64_t device = 0;
  std::uint64_t node = 0;
  std::uint64_t size = 0;        ///< Bytes.
  std::int64_t modified_ns = 0;  ///< Since the system's epoch.

  bool operator==(const FileStamp&) const = default;
};

/// The disk. Every operation either has done what it says, or raises the run-time error named with it, the path in its
/// text: 53 no such file, 76 no such folder, 70 not permitted, 75 not a file, 61 disk full, 71 the device failed.
/// What writes flushes to the device before it returns.
class Disk {
 public:
  virtual ~Disk() = default;

  /// The whole file. A missing file is 53, a missing folder too.
  virtual std::string ReadAll(const std::string& path) = 0;

  /// Makes `data` the file's whole contents. At each moment, also after a power cut, the name leads to the old contents
  /// or to the new ones; a write that fails leaves the old ones.
  virtual void WriteAll(const std::string& path, std::string_view data) = 0;

  /// Adds `data` at the end; the file is made if it is missing. A write that fails leaves the file as it was.
  virtual void Append(const std::string& path, std::string_view data) = 0;

  /// Adds `line` and its CR LF at the end as a line of its own: what a cut has left there without an end gets one, and
  /// zero bytes, room that was taken for a line which never came, go. Else as `Append`.
  virtual void AppendLine(const std::string& path, std::string_view line) = 0;

  /// Copies a file over whatever stands at `to`, as `WriteAll` writes. A missing source is 53.
  virtual void Copy(const std::string& from, const std::string& to) = 0;

  /// A missing file is 53.
  virtual void Delete(const std::string& path) = 0;

  /// A file isn't there only if the system says so; whatever else keeps from finding out is an error.
  virtual bool Exists(const std::string& path) = 0;

  /// In bytes; a missing file is 53.
  virtual std::uint64_t Size(const std::string& path) = 0;

  /// When the file was last written, by the local clock; a missing file is 53.
  virtual Instant Written(const std::string& path) = 0;

  /// The file's stamp; none if there is no such file.
  virtual std::optional<FileStamp> Stamp(const std::string& path) = 0;
};

}  // namespace vorelio
