#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace vorelio::doubles {

/// A folder of its own under the system's temporary one, gone with the object. File names are UTF-8, as the system's.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  /// Absolute, without a separator at its end.
  const std::string& Path() const { return path_; }
  /// Absolute path of a file in it; `name` may go through folders.
  std::string File(std::string_view name) const;

  bool Exists(std::string_view name) const;
  /// The bytes of a file; a missing one gives the empty text.
  std::string Read(std::string_view name) const;
  /// Writes the bytes as they are, making folders on the way.
  void Write(std::string_view name, std::string_view bytes) const;
  void Remove(std::string_view name) const;

 private:
  std::string path_;
};

/// Copies what the program is delivered with (the template station's files, the directory) into a folder.
void CopyTemplates(const std::filesystem::path& folder);

}  // namespace vorelio::doubles
