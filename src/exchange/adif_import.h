#pragma once

#include "forms/programme.h"

namespace vorelio::Sous_Programmes {

/// Takes the contacts of an ADIF file into the log of the station, then rebuilds the prefixes, locators and
/// departments from the log. What a record lacks is told in a box, and replaced. Errors, besides those of
/// `Import_Log::Insere` and of the rebuilds: 62 for a file that ends with its header, 5 for a first record without date
/// or time.
void Importe_ADIF(Programme& programme);

}  // namespace vorelio::Sous_Programmes
