#pragma once

#include <string>
#include <vector>

#include "core/programme.h"

namespace vorelio::Sous_Programmes {

/// The names of the current station's activities from number 1 on, without the plain "QSO" of number 0: the name at
/// `i` has the number `i + 1`. `defaut` stands for a name that the settings lack.
std::vector<std::string> Noms_Activites(Programme& programme, const std::string& defaut);

}  // namespace vorelio::Sous_Programmes
