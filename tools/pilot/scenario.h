#pragma once

#include <string>
#include <string_view>
#include <vector>

/// A scenario as it is written: commands, one a line, of words and texts. Nothing here knows what a command means.
namespace vorelio::pilot {

struct Word {
  std::string text;     ///< UTF-8, escapes resolved, placeholders still in it.
  bool quoted = false;  ///< It had a text in double quotes.
};

struct Command {
  int line = 0;  ///< From 1.
  std::vector<Word> words;
  std::vector<std::string> block;  ///< The texts of the "| " lines that follow it.
};

struct Scenario {
  std::string name;  ///< As the caller named it.
  std::vector<Command> commands;
};

/// A scenario that can't be read.
struct ParseError {
  int line;
  std::string text;
};

/// Splits a line into words: bare ones end at a blank, a part in double quotes may hold blanks and escapes (the quote,
/// the back-slash, r and n after a back-slash). Raises `ParseError` with line 0.
std::vector<Word> SplitWords(std::string_view line);

/// Reads a whole scenario; raises `ParseError`.
Scenario ParseScenario(std::string name, std::string_view text);

}  // namespace vorelio::pilot
