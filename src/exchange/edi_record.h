#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "exchange/import_line.h"

/// EDI, the form in which contest logs are sent in: fields between ";", one contact a line.
namespace vorelio {

/// What an import takes of a whole file. The records look into the file's text.
struct Fichier_EDI {
  Premier_Moment premier;  ///< Both texts are empty in a file without "[QSORecords".
  std::string bande;       ///< The value of "PBand=", twice over.
  std::vector<std::string_view> enregistrements;
};

/// Reads up to the first empty line after "[QSORecords". A file that ends with that line is run-time error 62.
Fichier_EDI Lit_Fichier_EDI(std::string_view texte);

/// Makes a log line of a record. Errors: 5 for a field that is missing or has no room in its columns.
Ligne_Importee Ligne_EDI(std::string_view enregistrement, std::string_view bande);

/// The mode of a code; a code beyond the table stands for itself.
std::string Mode_EDI(std::string_view code);

}  // namespace vorelio
