#pragma once

#include <array>
#include <string>
#include <vector>

#include "printing/label_lines.h"

/// Sheets of sixteen labels, two across and eight down. The printer is a text cursor: where a row of labels stands on
/// its sheet comes from the font sizes of its lines and of the empty lines between them.
namespace vorelio {

/// A line for the printer; sizes are in points.
struct Ligne_Papier {
  std::string texte;
  int corps;
  bool gras = false;
};

/// The recipe of a sheet, in font sizes of empty lines; 0 stands for no line.
struct Feuille {
  Titre_Etiquette titre;
  std::array<int, 3> haut;  ///< Above the first row.
  int sous_titre;           ///< Between the first line and the second one.
  int milieu;               ///< Between the third and the fourth.
  int entre_rangees;
  int blancs_question;  ///< In front of the question for the next page.
};

/// In the order of the sheets' option buttons: AVERY L7162, DECADRY OLW 4732, AVERY DP 167, DECADRY DLW 1799.
inline constexpr std::array<Feuille, 4> kFeuilles = {{{{31, 11, 1}, {10, 10, 8}, 9, 10, 11, 0},
                                                      {{31, 11, 1}, {10, 10, 8}, 9, 10, 11, 0},
                                                      {{31, 11, 2}, {0, 0, 0}, 5, 5, 27, 15},
                                                      {{30, 9, 2}, {10, 10, 0}, 9, 10, 13, 15}}};

inline constexpr int kRangees = 8;

/// The lines of a row of two labels. `en_haut`: it is the first one of its sheet.
std::vector<Ligne_Papier> Compose_Rangee(const Feuille& feuille, bool en_haut, const Lignes_Etiquette& gauche,
                                         const Lignes_Etiquette& droite);

/// The empty line between two rows.
Ligne_Papier Entre_Rangees(const Feuille& feuille);

}  // namespace vorelio
