#pragma once

#include <string>
#include <string_view>

#include "forms/programme.h"

/// The departments worked, `<station>_Departement.txt`: a line per department, by 1-based column: 1-2 key ("01" to
/// "95", "96" and "97" for Corsica), 4-20 one code per band, from 22 on the name. Codes: "0" not worked, "1" worked,
/// "2" QSL sent, "3" received, "4" both.
namespace vorelio::Sous_Programmes {

/// Corsica: the operator and the log see "2a" and "2b", the tallies and the directory "96" and "97". All other
/// departments are the same in both forms.
std::string Forme_Pointage(const std::string& departement);
std::string Forme_Affichee(const std::string& departement);

/// Column of the code of `bande`, 4 to 20; 0 for a band that isn't in the band table.
int Colonne_Departement(std::string_view bande);

/// Looks `departement` up; the first line with that key counts. Outputs stay as they were if nothing is found, and
/// `code` also for a band outside the table. A missing file is run-time error 53.
void Cherche_Departement(Programme& programme, std::string_view departement, std::string& code, std::string& nom,
                         std::string_view bande, std::string& ligne);

/// Writes the one-character `code` into the column of `bande`, on every line with that key, whatever stood there; by
/// way of `Temporaire2.txt`. A missing file is run-time error 53.
void Maj_Departement(Programme& programme, std::string_view departement, std::string_view code, std::string_view bande);

}  // namespace vorelio::Sous_Programmes
