#include "pilot/scenario.h"

#include <algorithm>

namespace vorelio::pilot {

namespace {

bool Blank(char c) { return c == ' ' || c == '\t'; }

std::string_view NextLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

/// Reads what stands between double quotes; `place` is past the first one, and ends past the second.
std::string Quoted(std::string_view line, std::size_t& place) {
  std::string text;
  while (place < line.size()) {
    const char c = line[place++];
    if (c == '"') return text;
    if (c != '\\') {
      text += c;
      continue;
    }
    const char escaped = place < line.size() ? line[place++] : ' ';
    switch (escaped) {
      case '"':
      case '\\': text += escaped; break;
      case 'r': text += '\r'; break;
      case 'n': text += '\n'; break;
      default: throw ParseError{0, std::string("unknown escape \\") + escaped};
    }
  }
  throw ParseError{0, "a text without its closing quote"};
}

}  // namespace

std::vector<Word> SplitWords(std::string_view line) {
  std::vector<Word> words;
  std::size_t place = 0;
  while (place < line.size()) {
    if (Blank(line[place])) {
      ++place;
      continue;
    }
    Word word;
    while (place < line.size() && !Blank(line[place])) {
      if (line[place] == '"') {
        word.quoted = true;
        word.text += Quoted(line, ++place);
      } else {
        word.text += line[place++];
      }
    }
    words.push_back(std::move(word));
  }
  return words;
}

Scenario ParseScenario(std::string name, std::string_view text) {
  Scenario scenario{std::move(name), {}};
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  for (int number = 1; !text.empty(); ++number) {
    std::string_view line = NextLine(text);
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    if (line.empty() || line.starts_with('#')) continue;
    if (line.starts_with('|')) {
      if (scenario.commands.empty()) throw ParseError{number, "a line of a file without its command"};
      scenario.commands.back().block.emplace_back(line.substr(line.starts_with("| ") ? 2 : 1));
      continue;
    }
    try {
      scenario.commands.push_back({number, SplitWords(line), {}});
    } catch (const ParseError& error) {
      throw ParseError{number, error.text};
    }
  }
  return scenario;
}

}  // namespace vorelio::pilot
