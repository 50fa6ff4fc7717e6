#pragma once

#include <string>
#include <string_view>

/// How the pilot writes what it found.
namespace vorelio::pilot {

/// What a command raises when it can't hold or can't be done; the scenario ends with it.
struct Failure {
  std::string text;
};

/// Raises a `Failure` that reads "expected ..., found ...".
[[noreturn]] void Differs(std::string_view expected, std::string_view found);

/// A UTF-8 text in double quotes, written as a scenario would write it.
std::string InQuotes(std::string_view utf8);

/// A text of the program in double quotes.
std::string Shown(std::string_view text);

inline std::string YesNo(bool yes) { return yes ? "yes" : "no"; }

}  // namespace vorelio::pilot
