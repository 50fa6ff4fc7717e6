#pragma once

#include <compare>
#include <string_view>

namespace vorelio {

/// A moment of the calendar, to order contacts by.
struct Moment {
  int annee = 0, mois = 0, jour = 0, heure = 0, minute = 0;
  auto operator<=>(const Moment&) const = default;
};

/// The moment of a log line's date "jj/mm/aa" and start time "hh:mm". Years 50 to 99 are of the last century, 00 to 49
/// of this one. A date or a time that doesn't exist is run-time error 13.
Moment Moment_QSO(std::string_view date, std::string_view heure);

/// The same of a date whose year is complete, "jj/mm/aaaa".
Moment Moment_Complet(std::string_view date, std::string_view heure);

}  // namespace vorelio
