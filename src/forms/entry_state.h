#pragma once

#include <string>

namespace vorelio {

/// What the entry chain finds out about the contact being typed, until the save uses it. Most of it isn't cleared
/// between two contacts: a value stays until the field that sets it is passed again, and the tallies in operators'
/// folders are kept with it.
struct Etat_Saisie {
  std::string Indicatif_Saisi;       ///< Callsign, upper case.
  std::string Prefixe_Nouveau;       ///< "O" if the prefix is new on the band, else "N".
  std::string Prefixe_Courant;       ///< The prefix found.
  std::string Depart_Saisi;          ///< Department; in tally form ("96", "97") once its field has been passed.
  std::string Locator_Repertoire;    ///< Locator that the directory gave.
  std::string Depart_Nomenclature;   ///< The directory's department, in tally form.
  std::string Locator_Nomenclature;  ///< The directory's locator.
  std::string Code_Dpt;              ///< Tally code of the department on the band.
  std::string Carre_Nouveau;         ///< The square, when it is new on the band.
  float Azimut = 0;                  ///< Whole degrees.
  std::string Distance_Texte;        ///< Whole kilometres.

  int Etat_QSL_Courant = 0;  ///< QSL state of the selected contact: 1 none, 2 sent, 3 received, 4 both.

  bool QSO_Edition = false;     ///< The form edits a logged contact.
  std::string Ligne_Selection;  ///< The list line of the last click or double click.
  int Numero_Selection = 0;     ///< Number of the contact shown by the last double click.
};

}  // namespace vorelio
