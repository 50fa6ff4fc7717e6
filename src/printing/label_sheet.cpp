#include "printing/label_sheet.h"

namespace vorelio {

namespace {
constexpr int kCorps_Titre = 15;
constexpr int kCorps = 11;
}  // namespace

std::vector<Ligne_Papier> Compose_Rangee(const Feuille& feuille, bool en_haut, const Lignes_Etiquette& gauche,
                                         const Lignes_Etiquette& droite) {
  std::vector<Ligne_Papier> lignes;
  if (en_haut)
    for (const int corps : feuille.haut)
      if (corps > 0) lignes.push_back({{}, corps});
  for (std::size_t i = 0; i < gauche.size(); ++i) {
    if (i == 1) lignes.push_back({{}, feuille.sous_titre});
    if (i == 3) lignes.push_back({{}, feuille.milieu});
    lignes.push_back({gauche[i] + droite[i], i == 0 ? kCorps_Titre : kCorps, i == 0});
  }
  return lignes;
}

Ligne_Papier Entre_Rangees(const Feuille& feuille) { return {{}, feuille.entre_rangees}; }

}  // namespace vorelio
