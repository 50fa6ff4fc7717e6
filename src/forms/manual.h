#pragma once

#include <string>

#include "forms/programme.h"

namespace vorelio::Sous_Programmes {

/// Opens the manual, at the chapter of that name if one is given; where nothing can show it, a box tells where it lies.
void Ouvre_Mode_Emploi(Programme& programme, const std::string& chapitre = {});

}  // namespace vorelio::Sous_Programmes
