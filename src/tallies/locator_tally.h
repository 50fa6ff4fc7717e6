#pragma once

#include <string>
#include <string_view>

#include "forms/programme.h"

/// The locator squares worked from 50 MHz up, `<station>_Locator.txt`: a line per square, by 1-based column: 1-2 field,
/// 3-4 digits, 6-13 one code per band, the rest carried along. Codes as in the department tally.
namespace vorelio::Sous_Programmes {

/// Column of the code of `bande`, 6 to 13; 0 for a band below 50 MHz or outside the band table.
int Colonne_Locator(std::string_view bande);

/// Looks the square of `locator` (its first four characters) up. Outputs stay as they were if nothing is found; for a
/// band without a column `code` comes back empty. A missing file opens `Gestion_Erreur`, and the procedure never
/// returns.
void Cherche_Locator(Programme& programme, std::string_view locator, std::string& code, std::string_view bande,
                     std::string& ligne);

/// Writes the one-character `code` into the column of `bande` on every line of the square `carre`, by way of
/// `Temporaire3.txt`; a band without a column changes nothing. A missing file is run-time error 53.
void Maj_Locator(Programme& programme, std::string_view carre, std::string_view code, std::string_view bande);

}  // namespace vorelio::Sous_Programmes
