#pragma once

#include <string_view>

#include "forms/programme.h"

namespace vorelio {

/// Columns of a `Ligne_Liste` that a found contact is shown with: number, and the log line up to the first name.
inline constexpr int kColonnes_Trouvees = 134;

/// Leads back to the log: selects in the main window each contact whose shown columns are those of `ligne`, one after
/// another, so that of equal ones the last stays selected. A `ligne` that is empty selects nothing.
void Selectionne_Dans_Log(Programme& programme, std::string_view ligne);

}  // namespace vorelio
