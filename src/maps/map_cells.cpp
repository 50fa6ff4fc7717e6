#include "maps/map_cells.h"

#include "core/text.h"
#include "tallies/department_tally.h"

namespace vorelio {

namespace {

std::string Texte_Departement(int numero) {
  return Case_De_Departement(numero) ? Sous_Programmes::Forme_Affichee(Deux_Chiffres(numero)) : "X";
}

}  // namespace

void Pose_Cellules(Picture& image, const Cellules& cellules, const std::function<std::string(int)>& texte,
                   const std::function<Place_Case(int)>& place) {
  for (int n = 0; n < cellules.Count(); ++n) {
    cellules(n).SetText(texte(n));
    cellules(n).SetReadOnly(true);
    const Place_Case coin = place(n);
    image.Lay(cellules(n), {coin.gauche, coin.haut, kLargeur_Case, kHauteur_Case});
  }
}

void Pose_Departements(Picture& image, const Cellules& cellules, Carte_France carte) {
  Pose_Cellules(image, cellules, Texte_Departement, [carte](int n) { return Place_Departement(carte, n); });
  for (int n = 0; n < cellules.Count(); ++n)
    if (!Case_De_Departement(n)) cellules(n).SetVisible(false);
}

void Pose_Legende(TextField& champ, Couleur couleur) {
  champ.SetColour(couleur);
  champ.SetReadOnly(true);
}

}  // namespace vorelio
