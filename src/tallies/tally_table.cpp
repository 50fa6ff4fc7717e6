#include "tallies/tally_table.h"

#include <numeric>

#include "core/text.h"
#include "tallies/tally_file.h"

namespace vorelio {

namespace {

constexpr std::size_t kCle_La_Plus_Longue = 5;

/// The number of a key that is `caractere` longer than the one of `cle`: a key is looked up as one number.
std::uint64_t Prolonge(std::uint64_t cle, char caractere) { return cle << 8 | static_cast<unsigned char>(caractere); }

std::uint64_t Nombre_De(std::string_view cle) {
  return std::accumulate(cle.begin(), cle.end(), std::uint64_t{0}, Prolonge);
}

}  // namespace

Table_Pointage::Table_Pointage(std::string_view texte, Cle_De cle_de) {
  for (Lecteur_Lignes lignes(texte); !lignes.Fini();) {
    const std::string_view ligne = lignes.Suivante();
    premiere_.emplace(Nombre_De(cle_de(ligne)), static_cast<int>(lignes_.size()));
    lignes_.emplace_back(ligne);
  }
}

int Table_Pointage::Cherche(std::string_view cle) const {
  if (cle.size() > kCle_La_Plus_Longue) return -1;
  const auto place = premiere_.find(Nombre_De(cle));
  return place == premiere_.end() ? -1 : place->second;
}

int Table_Pointage::Cherche_Debut(std::string_view texte) const {
  int premiere = Cherche({});
  std::uint64_t debut = 0;
  for (const char caractere : texte.substr(0, kCle_La_Plus_Longue)) {
    debut = Prolonge(debut, caractere);
    const auto place = premiere_.find(debut);
    if (place != premiere_.end() && (premiere < 0 || place->second < premiere)) premiere = place->second;
  }
  return premiere;
}

void Table_Pointage::Monte_Code(int indice, int colonne, std::string_view etat, int premiere) {
  std::string& ligne = lignes_[static_cast<std::size_t>(indice)];
  const std::string_view ancien = Coupe(ligne, colonne, 1);
  if (etat.empty() || ancien == etat || Valeur(ancien) > Valeur(etat)) return;
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
