#pragma once

#include <string>
#include <vector>

#include "forms/programme.h"

/// The activities of a station. Their numbers stand in the log, their names in the settings, and for other programs in
/// a file.
namespace vorelio::Sous_Programmes {

/// The settings key of an activity's name; 0 is the plain "QSO".
std::string Cle_Activite(int numero);

/// The names of the current station's activities from number 1 on, without the plain "QSO" of number 0: the name at
/// `i` has the number `i + 1`. `defaut` stands for a name that the settings lack.
std::vector<std::string> Noms_Activites(Programme& programme, const std::string& defaut);

/// Writes `<station>_Activite.txt` from the settings, one activity a line, and sets `Nb_Activite` (2 if the settings
/// don't tell).
void Ecrit_Fichier_Activites(Programme& programme);

}  // namespace vorelio::Sous_Programmes
