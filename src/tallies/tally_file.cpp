#include "tallies/tally_file.h"

#include <algorithm>

#include "core/text.h"

namespace vorelio::Sous_Programmes {

bool A_Un_Code(std::string_view ligne, int colonne) { return static_cast<int>(ligne.size()) >= colonne; }

std::string Avec_Code(std::string_view ligne, int colonne, std::string_view code, int premiere) {
  std::string neuve(Coupe(ligne, 1, colonne - 1));
  const auto remplit = [&](int jusque, char signe) {
    neuve.resize(std::max(neuve.size(), static_cast<std::size_t>(jusque - 1)), signe);
  };
  remplit(premiere, ' ');
  remplit(colonne, '0');
  return neuve.append(Complete(code, 1)).append(Coupe(ligne, colonne + 1));
}

void Ecrit_Temporaire(Disk& disque, const std::string& chemin, const std::string& temporaire,
                      const Change_Ligne& change) {
  const std::string texte = disque.ReadAll(chemin);
  std::string neuf;
  // A little more than it was, for lines that had LF alone.
  neuf.reserve(texte.size() + texte.size() / 16);
  for (Lecteur_Lignes lignes(texte); !lignes.Fini();) {
    const std::string_view ligne = lignes.Suivante();
    const auto changee = change(ligne);
    neuf.append(changee ? *changee : ligne).append(kFin_De_Ligne);
  }
  disque.WriteAll(temporaire, neuf);
}

void Prend_Temporaire(Disk& disque, const std::string& chemin, const std::string& temporaire) {
  disque.Delete(chemin);
  disque.Copy(temporaire, chemin);
  disque.Delete(temporaire);
}

}  // namespace vorelio::Sous_Programmes
