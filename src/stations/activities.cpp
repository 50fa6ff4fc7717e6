#include "stations/activities.h"

#include "core/text.h"
#include "stations/station_files.h"

namespace vorelio::Sous_Programmes {

std::string Cle_Activite(int numero) { return "Activite" + std::to_string(numero); }

std::vector<std::string> Noms_Activites(Programme& programme, const std::string& defaut) {
  const int nombre = programme.reglages.Nombre_Activites(2);
  std::vector<std::string> noms;
  for (int n = 1; n < nombre; ++n) noms.push_back(programme.reglages.Station(Cle_Activite(n), defaut));
  return noms;
}

void Ecrit_Fichier_Activites(Programme& programme) {
  auto& nombre = programme.contexte.Nb_Activite;
  nombre = programme.reglages.Nombre_Activites(2);
  std::string texte;
  for (int n = 0; n < nombre; ++n)
    texte.append(programme.reglages.Station(Cle_Activite(n), "XXX")).append(kFin_De_Ligne);
  programme.Disque().WriteAll(programme.Chemin_Station(kSuite_Activite), texte);
}

}  // namespace vorelio::Sous_Programmes
