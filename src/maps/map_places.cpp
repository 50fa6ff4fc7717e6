#include "maps/map_places.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace vorelio {

namespace {

/// The places were first laid out in twips, and the tables stay in them.
constexpr int kTwips_Par_Pixel = 15;

constexpr Place_Case Pixels(int gauche, int haut) { return {gauche / kTwips_Par_Pixel, haut / kTwips_Par_Pixel}; }

/// Left and top of the cells, ten departments a row. Paris and the departments around it stand at the upper left, cell
/// 0 at the upper right.
constexpr std::array<Place_Case, 100> kDepartements = {{
    {6120, 240},  {5280, 3960}, {4320, 1200}, {4080, 3720}, {5880, 5640}, {6000, 5040}, {6360, 5640}, {4800, 5160},
    {4800, 1320}, {3240, 6480}, {4560, 2280}, {3720, 6360}, {3840, 5400}, {5160, 6000}, {2280, 1680}, {3840, 4800},
    {2520, 4200}, {2040, 4200}, {3720, 3240}, {3360, 4560}, {0, 0},       {4920, 3000}, {960, 2160},  {3480, 3960},
    {2760, 4800}, {5760, 3120}, {5280, 5040}, {2880, 1680}, {3120, 2280}, {360, 2160},  {4800, 5640}, {3120, 6000},
    {2640, 5880}, {2040, 5040}, {4320, 6000}, {1560, 2400}, {3240, 3480}, {2760, 3120}, {5400, 4560}, {5520, 3480},
    {1920, 5760}, {3240, 2880}, {4560, 4320}, {4440, 4680}, {1560, 3000}, {3720, 2520}, {3360, 5160}, {2640, 5400},
    {4320, 5280}, {2160, 3000}, {1800, 1560}, {4560, 1800}, {5160, 2520}, {2040, 2400}, {5640, 1920}, {5160, 1560},
    {960, 2640},  {5760, 1560}, {4320, 3120}, {4200, 720},  {3720, 1440}, {2640, 2040}, {3480, 480},  {4080, 4320},
    {1920, 6240}, {2520, 6480}, {3840, 6720}, {6360, 1920}, {6240, 2520}, {4920, 4080}, {5640, 2760}, {4800, 3600},
    {2520, 2520}, {6000, 4440}, {5880, 3960}, {360, 480},   {3000, 1200}, {4080, 1920}, {3480, 2040}, {2280, 3600},
    {3600, 960},  {3600, 5880}, {3000, 5640}, {5880, 6120}, {5280, 5520}, {1680, 3480}, {2760, 3720}, {3120, 4200},
    {5760, 2280}, {4320, 2640}, {6240, 2880}, {3840, 2160}, {0, 600},     {720, 240},   {720, 720},   {3720, 1800},
    {6240, 7080}, {6720, 6720}, {0, 0},       {0, 0},
}};

/// Top of cell 55 on the map of the activities.
constexpr int kHaut_55_Activites = 1680;

/// Left of the ten columns of a field: they follow the lines of its image.
struct Colonnes {
  std::string_view champ;
  std::array<int, 10> gauche;
};

constexpr Colonnes kColonnes[] = {
    {"IM", {480, 1200, 1800, 2520, 3240, 3960, 4680, 5280, 6000, 6720}},
    {"IN", {480, 1200, 1800, 2520, 3240, 3960, 4680, 5400, 6000, 6720}},
    {"IO", {480, 1200, 1800, 2520, 3240, 3960, 4680, 5280, 6000, 6720}},
    {"JM", {480, 1080, 1800, 2520, 3240, 3960, 4560, 5280, 6000, 6720}},
    {"JN", {480, 1080, 1800, 2520, 3240, 3960, 4560, 5280, 6000, 6720}},
    {"JO", {480, 1080, 1800, 2520, 3240, 3960, 4560, 5280, 6000, 6720}},
    {"KM", {480, 1080, 1800, 2520, 3120, 3840, 4560, 5280, 5880, 6600}},
    {"KN", {480, 1200, 1800, 2520, 3240, 3840, 4560, 5280, 5880, 6600}},
    {"KO", {480, 1080, 1800, 2520, 3120, 3840, 4560, 5280, 5880, 6600}},
};

/// Cells that stand apart from their column, on the map of JM.
struct Ecart {
  int numero;
  int gauche;
};

constexpr Ecart kEcarts_JM[] = {{22, 1920}, {56, 3840}, {57, 3840}, {58, 3840}, {59, 3840}};

}  // namespace

Place_Case Place_Departement(Carte_France carte, int numero) {
  const auto [gauche, haut] = kDepartements[static_cast<std::size_t>(numero)];
  const bool a_part = carte == Carte_France::Activites && numero == 55;
  return Pixels(gauche, a_part ? kHaut_55_Activites : haut);
}

Place_Case Place_Carre(std::string_view champ, int numero) {
  const auto colonnes = std::ranges::find(kColonnes, champ, &Colonnes::champ);
  int gauche = colonnes->gauche[static_cast<std::size_t>(numero / 10)];
  if (champ == "JM")
    for (const Ecart& ecart : kEcarts_JM)
      if (ecart.numero == numero) gauche = ecart.gauche;
  return Pixels(gauche, 480 * (10 - numero % 10));
}

}  // namespace vorelio
