#pragma once

#include <string>

#include "core/programme.h"

namespace vorelio::Sous_Programmes {

/// The settings key of an activity's name; 0 is the plain "QSO".
std::string Cle_Activite(int numero);

/// Writes `<station>_Activite.txt` from the settings, one activity a line, and sets `Nb_Activite` (2 if the settings
/// don't tell).
void Ecrit_Fichier_Activites(Programme& programme);

}  // namespace vorelio::Sous_Programmes
