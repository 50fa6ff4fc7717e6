#pragma once

#include <string>
#include <string_view>

namespace vorelio {

/// Whether the bytes are valid UTF-8; mere ASCII is.
bool Utf8_Valide(std::string_view octets);

/// Turns values of a file of another program into the program's text: from UTF-8 if the whole file is valid UTF-8, else
/// from Windows-1252.
class Texte_Etranger {
 public:
  explicit Texte_Etranger(bool utf8) : utf8_(utf8) {}

  bool Utf8() const { return utf8_; }

  /// The value as it is; `perte` becomes true if a character isn't in the set and stands as "?".
  std::string Exact(std::string_view octets, bool& perte) const;

  /// The same on one line: white space and control characters are blanks, none at the ends.
  std::string Ligne(std::string_view octets, bool& perte) const;

 private:
  bool utf8_;
};

}  // namespace vorelio
