#pragma once

#include <string>
#include <string_view>

#include "exchange/journal.h"

/// The log as ADIF 3.1 for other programs, in UTF-8: every column in the standard's own fields and values. What these
/// don't hold to the byte stands in APP_VORELIO_ fields besides, so that `Lit_Journal` gives the same lines back.
namespace vorelio {

/// From "<CALL:" to "<EOR>", without a line end. The line may be of any length.
std::string Enregistrement_ADIF3(std::string_view ligne, const Contexte_Journal& contexte);

/// The whole file. `moment` is "aaaammjj hhmmss" in UTC, for the header.
std::string Fichier_ADIF3(std::string_view log, const Contexte_Journal& contexte, std::string_view moment,
                          const Avancement& avancement = {});

}  // namespace vorelio
