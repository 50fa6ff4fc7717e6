#include "doubles/scratch_folder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

namespace vorelio::doubles {

namespace fs = std::filesystem;

namespace {

std::string MakeFolder() {
  std::string pattern = (fs::temp_directory_path() / "vorelio-XXXXXX").string();
  if (!mkdtemp(pattern.data()))
    throw fs::filesystem_error("no scratch folder", pattern, std::make_error_code(std::errc::io_error));
  return pattern;
}

}  // namespace

ScratchFolder::ScratchFolder() : path_(MakeFolder()) {}

ScratchFolder::~ScratchFolder() {
  // A test may have taken the rights away from a folder to see what happens.
  std::error_code ignored;
  for (const auto& entry : fs::recursive_directory_iterator(path_, ignored))
    if (entry.is_directory(ignored)) fs::permissions(entry, fs::perms::owner_all, fs::perm_options::add, ignored);
  fs::remove_all(path_, ignored);
}

std::string ScratchFolder::File(std::string_view name) const { return path_ + "/" + std::string(name); }

bool ScratchFolder::Exists(std::string_view name) const { return fs::exists(File(name)); }

std::string ScratchFolder::Read(std::string_view name) const {
  std::ifstream file(File(name), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void ScratchFolder::Write(std::string_view name, std::string_view bytes) const {
  const fs::path path = File(name);
  fs::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.flush();
  if (!file) throw fs::filesystem_error("cannot write", path, std::make_error_code(std::errc::io_error));
}

void ScratchFolder::Remove(std::string_view name) const { fs::remove(File(name)); }

void CopyTemplates(const fs::path& folder) {
  for (const auto& entry : fs::directory_iterator(VORELIO_DATA_DIR)) {
    const std::string extension = entry.path().extension().string();
    if (entry.is_regular_file() && (extension == ".txt" || extension == ".log" || extension == ".wav"))
      fs::copy_file(entry, folder / entry.path().filename(), fs::copy_options::overwrite_existing);
  }
}

}  // namespace vorelio::doubles
