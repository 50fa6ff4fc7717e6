#pragma once

#include <string_view>
#include <vector>

#include "exchange/import_line.h"

/// ADIF as the program reads it: one record a line, a value being what stands between the ">" of a tag and the next
/// "<". Neither the lengths in the tags nor <EOR> count.
namespace vorelio {

/// Moment of the first record after the header; without a line that begins with "<EOH>" both texts are empty. A file
/// that ends with its header is run-time error 62, a first record without date or time is error 5.
Premier_Moment Premier_ADIF(std::string_view texte);

/// The lines after the header that aren't empty. They look into `texte`.
std::vector<std::string_view> Enregistrements_ADIF(std::string_view texte);

/// Makes a log line of a record. `etat_QSL` is the state of the record before, and becomes that of this one: a pair of
/// QSL fields that means nothing leaves it. Errors: 5 for a tag without a "<" after it, an empty <STATE, a value that
/// has no room in its columns.
Ligne_Importee Ligne_ADIF(std::string_view enregistrement, char& etat_QSL);

/// State of an import's first record, should its QSL fields mean nothing.
inline constexpr char kEtat_QSL_Inconnu = '0';

/// The band text of the log for a value of <BAND or <FREQ, already in capitals; the empty text if it means none.
std::string_view Bande_Importee(std::string_view valeur);

}  // namespace vorelio
