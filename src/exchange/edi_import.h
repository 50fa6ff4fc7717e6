#pragma once

#include "forms/programme.h"

namespace vorelio::Sous_Programmes {

/// Takes the contacts of an EDI contest log into the log of the station. The tallies stay as they are. Errors, besides
/// those of `Import_Log::Insere`: 62 for a file that ends with its "[QSORecords" line.
void Importe_EDI(Programme& programme);

}  // namespace vorelio::Sous_Programmes
