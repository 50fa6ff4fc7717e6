#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

namespace vorelio::tests {

namespace {

namespace fs = std::filesystem;

const fs::path kRoot = VORELIO_SOURCE_DIR;

/// The folders of the sources from top to bottom, as the table of docs/architecture.md has them.
std::vector<std::string> Folders() {
  std::vector<std::string> folders;
  const std::regex row("^\\| `(\\w+)` \\|.*");
  std::ifstream page(kRoot / "docs" / "architecture.md");
  std::smatch match;
  for (std::string line; std::getline(page, line);)
    if (std::regex_match(line, match, row) && fs::is_directory(kRoot / "src" / match[1].str()))
      folders.push_back(match[1]);
  return folders;
}

}  // namespace

// Whoever reads a folder need only know those below it.
TEST(ArchitectureTest, IncludesGoDown) {
  const std::vector<std::string> folders = Folders();
  const auto floor = [&](const std::string& folder) { return std::find(folders.begin(), folders.end(), folder); };
  const std::regex include("^#include \"(\\w+)/.*\"");
  int arrows = 0;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(kRoot / "src")) {
    const fs::path file = fs::relative(entry.path(), kRoot / "src");
    if (file.extension() != ".h" && file.extension() != ".cpp") continue;
    // The start stands above them all.
    const std::string from = file.has_parent_path() ? file.begin()->string() : "";
    EXPECT_TRUE(from.empty() || floor(from) != folders.end()) << from << " isn't in docs/architecture.md";
    std::ifstream source(entry.path());
    std::smatch match;
    for (std::string line; std::getline(source, line);) {
      if (!std::regex_search(line, match, include) || match[1] == from) continue;
      ++arrows;
      EXPECT_NE(floor(match[1]), folders.end()) << file << " includes " << match[1];
      EXPECT_TRUE(from.empty() || floor(from) < floor(match[1])) << file << " includes upwards: " << line;
    }
  }
  EXPECT_GT(arrows, 100);
}

}  // namespace vorelio::tests
