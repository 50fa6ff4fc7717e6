#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/errors.h"

namespace vorelio {

/// What a record of another program's file has become.
struct Ligne_Importee {
  std::string ligne;                  ///< A `Ligne_Log`; empty after an error.
  std::vector<std::string> messages;  ///< What the operator is told about it, in order; it doesn't stop the import.
  std::optional<Erreur> erreur = {};  ///< What stops the import at this record.
};

/// Date "jj/mm/aaaa" and time "hh:mm" of the first record of a file, as texts: whether they are real shows when the log
/// is compared with them.
struct Premier_Moment {
  std::string date;
  std::string heure;
};

}  // namespace vorelio
