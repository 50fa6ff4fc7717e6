#include "core/station_files.h"

#include <string>

namespace vorelio::Sous_Programmes {

void Cree_Fichiers_Station(Programme& programme, std::string_view indicatif) {
  Disk& disque = programme.Disque();
  const std::string modele = programme.Chemin(kStation_Modele);
  const std::string station = programme.Chemin(indicatif);

  disque.Copy(programme.Chemin_Log(kStation_Modele), programme.Chemin_Log(indicatif));
  for (const char* suite : {"_Departement.txt", "_Locator.txt", "_Prefixe.txt"})
    disque.Copy(modele + suite, station + suite);
  // The template log is empty, and so is a list of missing prefixes that has only begun.
  disque.Copy(programme.Chemin_Log(kStation_Modele), station + "_Absent.txt");
}

}  // namespace vorelio::Sous_Programmes
