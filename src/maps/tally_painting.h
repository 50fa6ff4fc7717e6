#pragma once

#include <string_view>

#include "forms/colours.h"
#include "forms/main_window.h"
#include "forms/programme.h"

/// The tallies as colours, in the grid of the main window and on the maps.
namespace vorelio::Sous_Programmes {

/// The colour of a cell with `code` "1" to "4"; false, and `couleur` as it was, for any other code.
bool Couleur_Code(std::string_view code, Couleur& couleur);

void Efface_Cellules(const Cellules& cellules, Couleur fond);

/// What a painting of the departments has counted.
struct Compte_Departements {
  int sans = 0;        ///< Worked, no QSL.
  int envoyees = 0;    ///< QSL sent.
  int recues = 0;      ///< QSL received.
  int confirmees = 0;  ///< Both.
};

/// The cell of a department's key, 0 to 99: its number, with Corsica ("2a", "2A", "2b", "2B") at 96 and 97. A key that
/// is no number is run-time error 13.
int Cellule_Departement(std::string_view cle);

/// Paints 100 cells with the codes of `bande` and sets `total` to the departments worked. A missing file is run-time
/// error 53, a key that no cell has error 9.
void Peint_Cellules(Programme& programme, std::string_view bande, const Cellules& cellules, int& total);

/// Counts the cells of each colour.
Compte_Departements Compte_Cellules(const Cellules& cellules);

/// Paints the cells `Dpt` of the main window with the codes of `bande`, sets `total` to the departments worked, and
/// counts what the cells of the map `Carte` show, if it is open, else those of the grid. A missing file opens
/// `Gestion_Erreur`, and the procedure never returns; any other error ends the program.
Compte_Departements Affiche_Departements(Programme& programme, std::string_view bande, int& total);

/// Paints the cells `Dpt` of the main window, and those of the field's map if it is one of the nine, with the squares
/// of the field `champ`, and sets `total` to the squares worked. The map is loaded for it, but not shown. A missing
/// file is run-time error 53.
void Affiche_Locators(Programme& programme, std::string_view bande, std::string_view champ, int& total);

}  // namespace vorelio::Sous_Programmes
