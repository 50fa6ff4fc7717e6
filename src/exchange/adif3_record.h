#pragma once

#include <string>

#include "exchange/adif3_reader.h"
#include "exchange/journal.h"
#include "exchange/received_text.h"

/// From the fields of an ADIF record to a log line.
namespace vorelio {

/// What a record has become: a line, or a reason why none.
struct Ligne_Etrangere {
  std::string ligne;
  std::string refus;  ///< Empty if the record comes in.
  bool coupe = false;
};

Ligne_Etrangere Ligne_ADIF3(const Enregistrement_ADIF& champs, const Texte_Etranger& texte,
                            const Contexte_Journal& contexte);

}  // namespace vorelio
