#include "verdict.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string_view>

#include "core/text.h"

namespace vorelio::reliability {

namespace {

std::multiset<std::string_view> Lines(const std::string& text) {
  std::multiset<std::string_view> lines;
  for (Lecteur_Lignes reader(text); !reader.Fini();) lines.insert(reader.Suivante());
  return lines;
}

/// How many lines that stand both before and after are missing.
int Lost(const std::string& before, const std::string& after, const std::string& found) {
  const auto old_lines = Lines(before), new_lines = Lines(after), there = Lines(found);
  std::multiset<std::string_view> kept;
  std::set_intersection(old_lines.begin(), old_lines.end(), new_lines.begin(), new_lines.end(),
                        std::inserter(kept, kept.end()));
  std::multiset<std::string_view> missing;
  std::set_difference(kept.begin(), kept.end(), there.begin(), there.end(), std::inserter(missing, missing.end()));
  return static_cast<int>(missing.size());
}

const std::string* Find(const Files& files, const std::string& name) {
  const auto file = files.find(name);
  return file == files.end() ? nullptr : &file->second;
}

bool Same(const std::string* a, const std::string* b) { return a && b ? *a == *b : a == b; }

}  // namespace

Files ReadFolder(const std::string& folder) {
  Files files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    std::ifstream file(entry.path(), std::ios::binary);
    files[entry.path().lexically_relative(folder).string()] =
        std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return files;
}

std::map<std::string, std::string> Judge(const Files& before, const Files& after, const Files& found) {
  std::set<std::string> names;
  for (const Files* files : {&before, &after, &found})
    for (const auto& [name, bytes] : *files) names.insert(name);

  std::map<std::string, std::string> verdicts;
  for (const std::string& name : names) {
    const std::string *then = Find(before, name), *meant = Find(after, name), *now = Find(found, name);
    if (Same(then, meant) && Same(then, now)) continue;
    std::string& verdict = verdicts[name];
    if (Same(now, then)) {
      verdict = "as before";
    } else if (Same(now, meant)) {
      verdict = "as after";
    } else if (!now) {
      verdict = "absent";
    } else if (!then && !meant) {
      verdict = "left over";
    } else {
      const int lost = Lost(then ? *then : *meant, meant ? *meant : *then, *now);
      verdict = now->empty() ? "empty" : lost == 0 ? "in between, nothing lost" : "in between, lines lost";
    }
  }
  return verdicts;
}

}  // namespace vorelio::reliability
