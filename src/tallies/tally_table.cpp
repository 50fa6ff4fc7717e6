#include "tallies/tally_table.h"

#include <algorithm>

#include "core/text.h"
#include "tallies/tally_file.h"

namespace vorelio {

Table_Pointage::Table_Pointage(std::string_view texte, Cle_De cle_de) {
  for (Lecteur_Lignes lignes(texte); !lignes.Fini();) {
    const std::string_view ligne = lignes.Suivante();
    premiere_.emplace(cle_de(ligne), static_cast<int>(lignes_.size()));
    lignes_.emplace_back(ligne);
  }
}

int Table_Pointage::Cherche(std::string_view cle) const {
  const auto place = premiere_.find(cle);
  return place == premiere_.end() ? -1 : place->second;
}

int Table_Pointage::Cherche_Debut(std::string_view texte) const {
  constexpr std::size_t kCle_La_Plus_Longue = 5;
  int premiere = -1;
  for (std::size_t longueur = 0; longueur <= std::min(kCle_La_Plus_Longue, texte.size()); ++longueur) {
    const int indice = Cherche(texte.substr(0, longueur));
    if (indice >= 0 && (premiere < 0 || indice < premiere)) premiere = indice;
  }
  return premiere;
}

void Table_Pointage::Monte_Code(int indice, int colonne, std::string_view etat, int premiere) {
  std::string& ligne = lignes_[static_cast<std::size_t>(indice)];
  if (etat.empty() || Valeur(Coupe(ligne, colonne, 1)) > Valeur(etat)) return;
  ligne = Sous_Programmes::Avec_Code(ligne, colonne, etat, premiere);
}

void Table_Pointage::Coupe_A_Partir(int indice) {
  lignes_.resize(static_cast<std::size_t>(indice));
  std::erase_if(premiere_, [indice](const auto& entree) { return entree.second >= indice; });
}

std::string Table_Pointage::Texte_Avant(int fin) const {
  std::string texte;
  for (int i = 0; i < fin; ++i) texte.append(lignes_[static_cast<std::size_t>(i)]).append(kFin_De_Ligne);
  return texte;
}

}  // namespace vorelio
