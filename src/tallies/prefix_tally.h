#pragma once

#include <string>
#include <string_view>

#include "forms/programme.h"

/// The prefixes worked, `<station>_Prefixe.txt`: a line per prefix, by 1-based column: 1-7 prefix (of these 1-5 are
/// compared), 8-24 one code per band ("0" not worked, else worked), from 27 on the country. The first line that a
/// callsign begins with wins, so longer prefixes stand above shorter ones.
namespace vorelio::Sous_Programmes {

/// Column of the code of `bande`, 8 to 24; 0 for a band that isn't in the band table.
int Colonne_Prefixe(std::string_view bande);

/// The prefix of a tally line: its first five characters, trimmed. The result looks into `ligne`.
std::string_view Prefixe_De(std::string_view ligne);

/// The country of a tally line, with the blanks that it has; looks into `ligne`.
std::string_view Pays_De(std::string_view ligne);

/// Finds the prefix of a callsign; tells the operator of a prefix that is new on `bande`, and of an unknown one, whose
/// outputs stay as they were. A missing file opens `Gestion_Erreur`, and the procedure never returns.
void Cherche_Prefixe(Programme& programme, std::string_view indicatif, std::string_view bande, std::string& code,
                     std::string& pays, std::string& prefixe);

/// The same, and marks the prefix as worked on `bande`, by way of `Temporaire1.txt`. `code` is the one before.
void Maj_Prefixe(Programme& programme, std::string_view indicatif, std::string_view bande, std::string& code,
                 std::string& pays, std::string& prefixe);

/// One of the eleven prefixes that count as France, compared whole.
bool Prefixe_Francais(std::string_view prefixe);

/// Whether a callsign begins with one of them: by its first letter, or by its first two.
bool Indicatif_Francais(std::string_view indicatif);

}  // namespace vorelio::Sous_Programmes
