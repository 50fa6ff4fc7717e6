#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "core/programme.h"

/// What the printed listings have in common. They have no pages of their own: text runs on, and the printer breaks it.
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

/// A listing on its way to the printer, in bold Courier New. With its end the printer has its former font back.
class Impression {
 public:
  /// What becomes of the font's weight afterwards.
  enum class Gras { Rendu, Leve };

  /// Sets the font, of `taille` points, and shows the printer dialog. A dialog that is cancelled doesn't stop the
  /// listing: it goes to the printer last chosen.
  Impression(Programme& programme, double taille, Gras gras);
  ~Impression();
  Impression(const Impression&) = delete;
  Impression& operator=(const Impression&) = delete;

  void Ligne(const std::string& texte) { imprimante_.PrintLine(texte); }
  /// An empty line and the imprint; then the job goes to the printer.
  void Termine();

 private:
  PrinterService& imprimante_;
  PrinterFont ancienne_;
};

}  // namespace vorelio
