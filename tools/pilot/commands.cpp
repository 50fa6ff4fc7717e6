#include "pilot/commands.h"

#include <charconv>
#include <fstream>
#include <iterator>

#include "core/text.h"

namespace vorelio::pilot {

void Perform(Run& run, const Command& command) {
  const std::string& name = command.words.front().text;
  for (const auto find : {FindPreparing, FindActing, FindExpecting, FindDeviceCommand})
    if (const CommandFunction act = find(name)) {
      Args args(run, command);
      return act(run, args);
    }
  throw Failure{"unknown command " + name};
}

std::optional<int> WholeNumber(std::string_view word) {
  int number = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc{} || end != word.data() + word.size()) return std::nullopt;
  return number;
}

std::string ToProgram(const std::string& utf8) {
  if (auto text = De_Utf8_Exact(utf8)) return *text;
  throw Failure{InQuotes(utf8) + " has a character that the program's files can't hold"};
}

std::optional<std::string> FileBytes(const std::string& path) {
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(path, ignored)) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

// --- Args -----------------------------------------------------------------------------------------------------------

Args::Args(const Run& run, const Command& command) : run_(run), command_(command) {}

std::string Args::Word(std::string_view what) {
  if (!More()) throw Failure{"the command lacks its " + std::string(what)};
  return run_.Expand(command_.words[next_++].text);
}

std::string Args::Text(std::string_view what) { return ToProgram(Word(what)); }

int Args::Number(std::string_view what) {
  const std::string word = Word(what);
  if (const auto number = WholeNumber(word)) return *number;
  throw Failure{"the " + std::string(what) + " must be a number, not " + InQuotes(word)};
}

bool Args::Take(std::string_view word) {
  if (!More() || Quoted() || command_.words[next_].text != word) return false;
  ++next_;
  return true;
}

void Args::End() const {
  if (More()) throw Failure{"one word too many: " + InQuotes(command_.words[next_].text)};
  if (!command_.block.empty()) throw Failure{"the command takes no | lines"};
}

std::vector<std::string> Args::Block() const {
  if (More()) End();
  std::vector<std::string> lines;
  for (const std::string& line : command_.block) lines.push_back(ToProgram(run_.Expand(line)));
  return lines;
}

}  // namespace vorelio::pilot
