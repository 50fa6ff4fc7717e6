#pragma once

#include <string>
#include <string_view>

#include "forms/programme.h"

/// Where a contact is, seen from the station: what the entry chain leaves for the line.
namespace vorelio::Sous_Programmes {

/// Sets `Distance_Texte`, whole kilometres. `locator_2` is cut to its trimmed first six characters; shorter than six,
/// nothing else happens.
void Calcule_Distance(Programme& programme, std::string_view locator_1, std::string& locator_2);

/// Sets `Azimut`, whole degrees (0 to 360) from `locator_1` to `locator_2`.
void Calcule_Azimut(Programme& programme, std::string_view locator_1, std::string_view locator_2);

}  // namespace vorelio::Sous_Programmes
