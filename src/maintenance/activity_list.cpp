#include "maintenance/activity_list.h"

#include "maintenance/activity_file.h"

namespace vorelio::Sous_Programmes {

std::vector<std::string> Noms_Activites(Programme& programme, const std::string& defaut) {
  const int nombre = programme.reglages.Nombre_Activites(2);
  std::vector<std::string> noms;
  for (int n = 1; n < nombre; ++n) noms.push_back(programme.reglages.Station(Cle_Activite(n), defaut));
  return noms;
}

}  // namespace vorelio::Sous_Programmes
