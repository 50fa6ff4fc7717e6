#include "core/station_files.h"

#include <string>

namespace vorelio::Sous_Programmes {

void Cree_Fichiers_Station(Programme& programme, std::string_view indicatif) {
  Disk& disque = programme.Disque();
  const std::string station = programme.Chemin(indicatif);
  disque.Copy(programme.Chemin_Modele(".log"), programme.Chemin_Log(indicatif));
  for (const char* suite : {kSuite_Departement, kSuite_Locator, kSuite_Prefixe})
    disque.Copy(programme.Chemin_Modele(suite), station + suite);
  // The template log is empty, and so is a list of missing prefixes that has only begun.
  disque.Copy(programme.Chemin_Modele(".log"), station + kSuite_Absent);
}

}  // namespace vorelio::Sous_Programmes
