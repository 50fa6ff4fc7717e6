#include "maintenance/activity_file.h"

#include <string>

#include "core/text.h"

namespace vorelio::Sous_Programmes {

std::string Cle_Activite(int numero) { return "Activite" + std::to_string(numero); }

void Ecrit_Fichier_Activites(Programme& programme) {
  auto& nombre = programme.contexte.Nb_Activite;
  nombre = programme.reglages.Nombre_Activites(2);
  std::string texte;
  for (int n = 0; n < nombre; ++n)
    texte.append(programme.reglages.Station(Cle_Activite(n), "XXX")).append(kFin_De_Ligne);
  programme.Disque().WriteAll(programme.Chemin_Station("_Activite.txt"), texte);
}

}  // namespace vorelio::Sous_Programmes
