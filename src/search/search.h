#pragma once

#include <string>
#include <string_view>

/// What the search looks at in an item of the log's list, by its option 1 to 5: callsign, date, department, locator,
/// reference.
namespace vorelio {

/// Whether an item answers to a text that has passed through `Texte_Cherche`. Callsign and reference need only contain
/// it.
bool Repond(std::string_view element, int option, std::string_view cherche);

/// The text as it is compared: in capitals, but for department and locator, which are taken as they stand.
std::string Texte_Cherche(std::string_view texte, int option);

/// The refusal of an empty text.
const char* Message_Texte_Vide(int option);

/// An item as it is shown: its columns up to the first name, and the letter of its QSL state.
std::string Ligne_Trouvee(std::string_view element, std::string_view lettre);

/// An item as the search by callsign prints it: number to end of contact, band and mode, place, remarks and the letter.
std::string Ligne_Courte(std::string_view element, std::string_view lettre);

}  // namespace vorelio
