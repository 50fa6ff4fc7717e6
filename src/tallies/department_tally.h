#pragma once

#include <string>
#include <string_view>

#include "core/programme.h"

/// The departments worked, `<station>_Departement.txt`: a line per department, by 1-based column: 1-2 key ("01" to
/// "95", "96" and "97" for Corsica), 4-20 one code per band, from 22 on the name. Codes: "0" not worked, "1" worked,
/// "2" QSL sent, "3" received, "4" both.
namespace vorelio::Sous_Programmes {

/// Column of the code of `bande`, 4 to 20; 0 for a band that isn't in the band table.
int Colonne_Departement(std::string_view bande);

/// Looks `departement` up; the first line with that key counts. Outputs stay as they were if nothing is found, and
/// `code` also for a band outside the table. A missing file is run-time error 53.
void Cherche_Departement(Programme& programme, std::string_view departement, std::string& code, std::string& nom,
                         std::string_view bande, std::string& ligne);

/// Writes the one-character `code` into the column of `bande`, on every line with that key, whatever stood there; by
/// way of `Temporaire2.txt`. A missing file is run-time error 53.
void Maj_Departement(Programme& programme, std::string_view departement, std::string_view code, std::string_view bande);

/// What a painting of the grid has counted.
struct Compte_Departements {
  int sans = 0;        ///< Worked, no QSL.
  int envoyees = 0;    ///< QSL sent.
  int recues = 0;      ///< QSL received.
  int confirmees = 0;  ///< Both.
};

/// Paints the cells `Dpt` of the main window with the codes of `bande` and sets `total` to the departments worked.
/// A missing file opens `Gestion_Erreur`, and the procedure never returns; any other error ends the program.
Compte_Departements Affiche_Departements(Programme& programme, std::string_view bande, int& total);

}  // namespace vorelio::Sous_Programmes
