#pragma once

#include <string>
#include <string_view>

#include "forms/programme.h"

/// The log on paper and as a text. All read `<station>.log` and raise error 53 where it is missing; `station` has "_"
/// for "/", in the titles too.
namespace vorelio::Sous_Programmes {

/// Prints the whole log, each line with its number.
void Imprime_Log(Programme& programme, const std::string& station);

/// Prints the lines from number `premier` to number `dernier`, as the operator has typed them.
void Imprime_Log_Partiel(Programme& programme, const std::string& station, std::string_view premier,
                         std::string_view dernier);

/// Writes the log as `Log_<station>.txt`, over whatever stands there.
void Enregistre_Log_Texte(Programme& programme, const std::string& station);

/// Prints the contacts with the activity `indice`, named `nom`, on `bande`, numbered from 1.
void Imprime_Activite(Programme& programme, int indice, const std::string& nom, std::string_view bande);

}  // namespace vorelio::Sous_Programmes
