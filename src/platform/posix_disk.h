#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/disk.h"

namespace vorelio {

/// The disk on the calls of a POSIX system. A path is text in the program's character set and is known to the system
/// by its UTF-8 form.
///
/// Error numbers, by what the system says: no such file 53, no such folder 76, not permitted or read-only 70, no room
/// (quota and size limits included) 61, the device failed 71, all else 75.
class PosixDisk : public Disk {
 public:
  PosixDisk() = default;

  /// A path that begins with the folder `root_text` gets `root_bytes` in its place. With this the program can live in
  /// a folder whose real name the character set can't hold: `root_text` is what is shown and stored of it.
  PosixDisk(std::string root_text, std::string root_bytes);

  /// A regular file of at most 2 GB; anything else is 75.
  std::string ReadAll(const std::string& path) override;

  /// Writes a new file beside the old one, under its name and ".neuf", flushes it and renames it over the old one,
  /// whose links, mode and owner it takes over; then the folder is flushed. What a cut has left under that name goes.
  /// In place only what can't be replaced: a device, a file of several names, one of another owner or in a folder that
  /// can't be written.
  void WriteAll(const std::string& path, std::string_view data) override;

  void Append(const std::string& path, std::string_view data) override;
  void AppendLine(const std::string& path, std::string_view line) override;
  void Copy(const std::string& from, const std::string& to) override;

  /// Isn't flushed by itself: a deletion that a power cut undoes has lost nothing.
  void Delete(const std::string& path) override;

  /// A folder is no file.
  bool Exists(const std::string& path) override;
  std::uint64_t Size(const std::string& path) override;
  std::optional<FileStamp> Stamp(const std::string& path) override;
  Instant Written(const std::string& path) override;

 private:
  std::string SystemPath(const std::string& path) const;

  std::string root_text_;
  std::string root_bytes_;
};

}  // namespace vorelio
