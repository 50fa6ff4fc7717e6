#pragma once

#include <random>
#include <string>

#include "core/bands.h"
#include "core/log_line.h"

namespace vorelio::tests {

/// Log lines as they may stand in an old log: all bands in either case, unknown ones, empty squares, Corsica, unknown
/// prefixes, odd QSL states, lines cut short.
class RandomLog {
 public:
  explicit RandomLog(unsigned seed) : random_(seed) {}

  /// Whether bands outside the band table may come.
  bool unknown_bands = true;

  std::string Line() {
    Champs_QSO qso;
    qso.Date_A = "12/05/03";
    qso.Debut_A = "10:" + Deux_Chiffres(Below(60));
    qso.Indicatif_A = Pick({"F6ABC", "DL1XYZ", "TK5AAA", "1ZZZ", "KH6AA", "EA8BB", "JA1CC", "ON4DD/P", "", "F"});
    qso.Depart_A = Pick({"06", "2a", "2B", "96", "", "33", "00", "1", "ab"});
    qso.Locator_A = Pick({"JN33BB", "", "JN18", "IO91AA", "HM12AA", "jn33bb", "KO99ZZ"});
    qso.Bande_A = std::string(kBandes[static_cast<std::size_t>(Below(static_cast<int>(kBandes.size())))]);
    if (Below(3) == 0) qso.Bande_A = Majuscules(qso.Bande_A);
    if (unknown_bands && Below(20) == 0) qso.Bande_A = Pick({"27 Mhz", "", "XX"});
    qso.Bloc_QSL = Pick({"1", "2", "3", "4", "1", "0", "9", " ", "a"}) + Blancs(19);
    std::string line = Construit_Ligne(qso);
    if (Below(40) == 0) line.resize(static_cast<std::size_t>(Below(static_cast<int>(line.size()))));
    return line;
  }

  std::string Text(int lines) {
    std::string text;
    for (int i = 0; i < lines; ++i) text += Line() + (Below(10) == 0 ? "\n" : "\r\n");
    return text;
  }

  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  std::string Pick(std::initializer_list<const char*> words) {
    return *(words.begin() + Below(static_cast<int>(words.size())));
  }

 private:
  std::mt19937 random_;
};

}  // namespace vorelio::tests
