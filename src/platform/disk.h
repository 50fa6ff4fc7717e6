#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vorelio {

struct Instant;

/// The disk. Every operation either has done what it says, or raises the run-time error named with it, the path in its
/// text: 53 no such file, 76 no such folder, 70 not permitted, 75 not a file, 61 disk full, 71 the device failed.
/// What writes flushes to the device before it returns.
class Disk {
 public:
  virtual ~Disk() = default;

  /// The whole file. A missing file is 53, a missing folder too.
  virtual std::string ReadAll(const std::string& path) = 0;

  /// Makes `data` the file's whole contents, in one go. The room is taken first, so that a full disk leaves what stood
  /// there before.
  virtual void WriteAll(const std::string& path, std::string_view data) = 0;

  /// Adds `data` at the end; the file is made if it is missing. A write that fails leaves the file as it was.
  virtual void Append(const std::string& path, std::string_view data) = 0;

  /// Copies a file over whatever stands at `to`. A missing source is 53.
  virtual void Copy(const std::string& from, const std::string& to) = 0;

  /// A missing file is 53.
  virtual void Delete(const std::string& path) = 0;

  virtual bool Exists(const std::string& path) = 0;

  /// In bytes; a missing file is 53.
  virtual std::uint64_t Size(const std::string& path) = 0;

  /// When the file was last written, by the local clock; a missing file is 53.
  virtual Instant Written(const std::string& path) = 0;
};

}  // namespace vorelio
