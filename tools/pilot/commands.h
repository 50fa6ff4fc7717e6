#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "pilot/run.h"

/// What the commands of a scenario do. A new command is one function and its line in a table.
namespace vorelio::pilot {

/// Carries a command out; raises `Failure`.
void Perform(Run& run, const Command& command);

/// The words after a command's name, taken from left to right; a missing one or one too many is a `Failure`.
class Args {
 public:
  Args(const Run& run, const Command& command);

  bool More() const { return next_ < command_.words.size(); }
  /// The next word, in UTF-8.
  std::string Word(std::string_view what);
  /// The next word as a text of the program; what its character set can't hold is a `Failure`.
  std::string Text(std::string_view what);
  int Number(std::string_view what);
  /// Takes the next word if it is this one, unquoted.
  bool Take(std::string_view word);
  /// Whether the next word has been written in quotes.
  bool Quoted() const { return More() && command_.words[next_].quoted; }
  /// Nothing follows, no "| " lines either.
  void End() const;
  /// The "| " lines, as texts of the program; nothing else follows.
  std::vector<std::string> Block() const;

 private:
  const Run& run_;
  const Command& command_;
  std::size_t next_ = 1;
};

using CommandFunction = void (*)(Run& run, Args& args);

struct NamedCommand {
  std::string_view name;
  CommandFunction act;
};

/// The commands, by chapter; each gives null for a name that isn't its own.
CommandFunction FindPreparing(std::string_view name);
CommandFunction FindActing(std::string_view name);
CommandFunction FindExpecting(std::string_view name);
CommandFunction FindDeviceCommand(std::string_view name);

/// What is expected of printer, transceiver, web, sounds and clipboard, by the word after "expect".
CommandFunction FindDeviceExpectation(std::string_view subject);

template <std::size_t N>
CommandFunction FindIn(const NamedCommand (&table)[N], std::string_view name) {
  for (const NamedCommand& command : table)
    if (command.name == name) return command.act;
  return nullptr;
}

/// A whole number, or nothing.
std::optional<int> WholeNumber(std::string_view word);

/// A text of the program, or a `Failure` if one of its characters doesn't fit.
std::string ToProgram(const std::string& utf8);

/// The bytes of a file; nothing if it is missing. `path` is absolute.
std::optional<std::string> FileBytes(const std::string& path);

/// A property of a control, as the pilot writes it: texts in UTF-8, yes or no, numbers, colours. Raises `Failure` for
/// a property that is unknown, or that such a control doesn't have.
std::string PropertyOf(const Control& control, const std::string& property);
/// Whether the values of a property are texts.
bool IsText(std::string_view property);

}  // namespace vorelio::pilot
