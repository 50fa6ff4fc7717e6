#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace vorelio {

/// Says the QSL state of one line after another. A state other than "1" to "4" gets the word of the line before, and
/// on the first line none.
class Mot_QSL {
 public:
  /// The words of the states "1" to "4".
  explicit Mot_QSL(std::array<std::string, 4> mots) : mots_(std::move(mots)) {}

  const std::string& De(std::string_view etat);

 private:
  std::array<std::string, 4> mots_;
  std::string mot_;
};

/// S, E, R, C.
Mot_QSL Lettre_QSL();

/// Sans, Envoyée, Reçue, Confirmée.
Mot_QSL Parole_QSL();

}  // namespace vorelio
