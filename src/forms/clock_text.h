#pragma once

#include <string>
#include <string_view>

#include "forms/programme.h"

/// Dates and times as the log writes them, from the system's two clocks, and the check of their shape.
namespace vorelio::Sous_Programmes {

/// dd/mm/yy.
std::string Date_UTC(Programme& programme);
std::string Date_Locale(Programme& programme);

/// Today by the local clock with the year in full, dd/mm/yyyy: for the titles of listings.
std::string Date_Du_Jour(Programme& programme);

/// dd/mm/yyyy.
std::string Date_Longue(const Instant& instant);

/// yyyymmdd-hhmmss by the local clock: for the names of files.
std::string Horodatage(Programme& programme);

/// hh:mm:ss.
std::string Heure_UTC(Programme& programme);
std::string Heure_Locale(Programme& programme);

/// Sets `erreur` to 1 if the first eight characters aren't digits and "/" in the places of "jj/mm/aa", else leaves it;
/// 99/99/99 passes. A text shorter than eight is run-time error 5.
void Verifie_Date(std::string_view texte, int& erreur);

/// The same for the first five characters and "hh:mm".
void Verifie_Heure(std::string_view texte, int& erreur);

}  // namespace vorelio::Sous_Programmes
