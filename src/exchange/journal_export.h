#pragma once

#include "forms/programme.h"

namespace vorelio::Sous_Programmes {

/// Asks for a name and writes the whole log of the station there, as ADIF that loses nothing.
void Exporte_Journal(Programme& programme);

}  // namespace vorelio::Sous_Programmes
