#pragma once

#include <string>

#include "forms/programme.h"

/// What the printed listings have in common. They have no pages of their own: text runs on, and the printer breaks it.
namespace vorelio {

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
