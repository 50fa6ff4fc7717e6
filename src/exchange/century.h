#pragma once

#include <string>
#include <string_view>

namespace vorelio {

/// The first short year that belongs to the last century. The imports don't agree on it, and the place of a block of
/// contacts in the log follows from that: each keeps its own.
enum class Siecle : int { Depuis_50 = 50, Depuis_51 = 51 };

/// A year of two digits with its century, "19" or "20"; what isn't one of 0 to 99 stays as it is.
std::string Annee_Complete(std::string_view deux_chiffres, Siecle siecle);

/// The date "jj/mm/aaaa" of the columns 1 to 8 of a log line.
std::string Date_Complete(std::string_view ligne, Siecle siecle);

}  // namespace vorelio
