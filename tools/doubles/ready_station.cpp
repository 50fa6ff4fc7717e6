#include "doubles/ready_station.h"

#include <utility>

#include "core/text.h"

namespace vorelio::doubles {

void SeedStationSettings(SettingsStore& settings, const std::string& directory, char separator, const std::string& call,
                         const std::string& locator) {
  const auto common = [&](const std::string& key, const std::string& value) {
    settings.Write("DDFM", "Setup", key, value);
  };
  const int number = Nombre_Entier(settings.Read("DDFM", "Setup", "Nombre Indicatif").value_or("0")) + 1;
  common("Nombre Indicatif", std::to_string(number));
  common("Indicatif" + std::to_string(number), Complete(call, 12, 1) + locator);
  common("Indicatif Station", call);
  common("Locator Station", locator);

  const std::pair<const char*, std::string> own[] = {{"Indicatif Station", call},
                                                     {"Locator Station", locator},
                                                     {"Date Automatique", Texte_Booleen(true)},
                                                     {"Heure UTC", Texte_Booleen(true)},
                                                     {"Activite0", "QSO"},
                                                     {"Activite1", "DFCF"},
                                                     {"Activite2", "DMF"},
                                                     {"Activite3", "DIFI"},
                                                     {"Activite4", "DIFM"},
                                                     {"NB Activite", "5"},
                                                     {"bande Utilisee", "0"},
                                                     {"Mode Utilise", "0"},
                                                     {"Activite", "0"},
                                                     {"Chemin Sauvegarde", directory + separator + call},
                                                     {"Delta Sauvegarde", "10"}};
  for (const auto& [key, value] : own) settings.Write("DDFM", "Setup " + call, key, value);
}

}  // namespace vorelio::doubles
