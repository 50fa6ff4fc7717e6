#pragma once

#include <string>
#include <string_view>

#include "core/rows.h"
#include "forms/programme.h"

/// The callsign directory `Nomenclature.txt`, common to all stations: by 1-based column 1-10 callsign, 12-13 department
/// in tally form, 15-20 locator.
namespace vorelio::Sous_Programmes {

/// The fields of a directory line, trimmed; they look into it.
struct Fiche_Nomenclature {
  std::string_view indicatif, departement, locator;
};
Fiche_Nomenclature Lit_Nomenclature(std::string_view ligne);

/// What the directory knows of a callsign; both outputs are empty if it doesn't. A callsign of more than ten characters
/// is never found. A missing file is run-time error 53.
void Cherche_Nomenclature(Programme& programme, std::string_view indicatif, std::string& departement,
                          std::string& locator);

/// Puts a callsign's department and locator in place of what the directory has, or at its end; by way of
/// `Temporaire5.txt`. A callsign of more than 11 characters, or a department of more than three, is run-time error 5.
void Maj_Nomenclature(Programme& programme, std::string_view indicatif, std::string_view departement,
                      std::string_view locator);

/// Fills the list of the window `Fichier_Nomenclature`, and forgets `Locator_Repertoire`. A missing file is run-time
/// error 53.
void Charge_Nomenclature(Programme& programme);

/// Writes the whole directory.
void Ecrit_Nomenclature(Programme& programme, const Rows& lignes);

/// The line of a directory entry up to the locator: callsign in eleven columns, department in three.
std::string Debut_Nomenclature(std::string_view indicatif, std::string_view departement);

}  // namespace vorelio::Sous_Programmes
