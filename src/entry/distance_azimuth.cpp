#include "entry/distance_azimuth.h"

#include "core/text.h"
#include "geo/locator.h"

namespace vorelio::Sous_Programmes {

void Calcule_Distance(Programme& programme, std::string_view locator_1, std::string& locator_2) {
  locator_2 = std::string(Rogne(Coupe(locator_2, 1, static_cast<int>(kLongueur_Locator))));
  if (locator_2.size() < kLongueur_Locator) return;
  programme.saisie.Distance_Texte = std::to_string(Kilometres(locator_1, locator_2));
}

void Calcule_Azimut(Programme& programme, std::string_view locator_1, std::string_view locator_2) {
  programme.saisie.Azimut = static_cast<float>(Degres(locator_1, locator_2));
}

}  // namespace vorelio::Sous_Programmes
