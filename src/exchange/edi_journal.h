#pragma once

#include "exchange/journal.h"

/// EDI (REG1TEST): logs of VHF contests, one band or several one after another in a file.
namespace vorelio {

/// Whether a line of the file begins an EDI log.
bool Est_EDI(std::string_view octets);

/// Reads all records of all parts into `journal`, and what the file is.
void Lit_EDI(std::string_view octets, const Contexte_Journal& contexte, const Avancement& avancement,
             Journal_Lu& journal);

}  // namespace vorelio
