#pragma once

#include <string_view>

/// Where the cells of the maps stand on their images. The images are drawn for these places (tools/maps).
namespace vorelio {

/// The upper left corner of a cell, in pixels of the image at its plain size.
struct Place_Case {
  int gauche = 0;
  int haut = 0;
};

inline constexpr int kLargeur_Case = 25, kHauteur_Case = 20;
inline constexpr int kLargeur_France = 475, kHauteur_France = 510;
inline constexpr std::string_view kImage_France = "maps/france.jpg";
inline constexpr int kLargeur_Champ = 500, kHauteur_Champ = 372;

/// The two images of France differ in one cell, that of the department 55.
enum class Carte_France { Departements, Activites };

/// Cell `numero`, 0 to 99, on an image of France. The cells 20, 98 and 99 have no department and no place of their own.
Place_Case Place_Departement(Carte_France carte, int numero);

/// Whether cell `numero` has a department: those that haven't are hidden.
constexpr bool Case_De_Departement(int numero) { return numero != 20 && numero < 98; }

/// Cell `numero`, 0 to 99, on the image of a locator field: its tens digit counts to the east, its units to the north.
Place_Case Place_Carre(std::string_view champ, int numero);

}  // namespace vorelio
