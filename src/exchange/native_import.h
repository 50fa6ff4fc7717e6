#pragma once

#include "forms/programme.h"

namespace vorelio::Sous_Programmes {

/// Takes the lines of a `.ctf` file, a log of this program's own form, into the log of the station as they stand, then
/// rebuilds the prefixes, locators and departments from the log. Errors, besides those of `Import_Log::Insere` and of
/// the rebuilds: 62 for an empty file.
void Importe_CTF(Programme& programme);

}  // namespace vorelio::Sous_Programmes
