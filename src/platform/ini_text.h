#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorelio {

/// The text of an INI file of settings, line by line. What a line holds is its own affair: one that makes no sense
/// stays where it is and costs no other line, as do remarks. Sections, keys and values are in the program's character
/// set, whatever characters they have; the file is in UTF-8, with a byte order mark or without.
class IniText {
 public:
  explicit IniText(std::string_view bytes);

  /// The last line of that name holds. Nothing if there is none, or if it holds a list or another character set.
  std::optional<std::string> Value(const std::string& section, const std::string& key) const;
  void SetValue(const std::string& section, const std::string& key, const std::string& value);

  std::string Bytes() const;

 private:
  /// Index of the line that holds the value, -1 if there is none; `end` is where one would be added to the section, -1
  /// if there is no such section.
  int Find(const std::string& section, const std::string& key, int& end) const;

  std::vector<std::string> lines_;
};

}  // namespace vorelio
