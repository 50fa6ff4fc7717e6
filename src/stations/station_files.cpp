#include "stations/station_files.h"

#include <string>

#include "stations/log_guard.h"

namespace vorelio::Sous_Programmes {

void Cree_Fichiers_Station(Programme& programme, std::string_view indicatif) {
  Disk& disque = programme.Disque();
  const std::string log = programme.Nouveau_Log(indicatif);
  Protege_Log(programme, log);
  disque.Copy(programme.Chemin_Modele(".log"), log);
  for (const char* suite : {kSuite_Departement, kSuite_Locator, kSuite_Prefixe})
    disque.Copy(programme.Chemin_Modele(suite), programme.Chemin_De(indicatif, suite));
  // The template log is empty, and so is a list of missing prefixes that has only begun.
  disque.Copy(programme.Chemin_Modele(".log"), programme.Chemin_De(indicatif, kSuite_Absent));
}

}  // namespace vorelio::Sous_Programmes
