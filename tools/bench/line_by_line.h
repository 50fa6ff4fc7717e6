#pragma once

#include <optional>
#include <sstream>
#include <string>
#include <utility>

#include "core/bands.h"
#include "core/log_line.h"
#include "core/text.h"

namespace vorelio::bench {

/// The rebuilds as they would be with a rewriting of the whole tally for every line of the log: slow, and the judge.
class LineByLine {
 public:
  enum class Kind { Prefix, Department, Locator };

  LineByLine(Kind kind, std::string tally, std::string current_band)
      : kind_(kind), tally_(std::move(tally)), current_band_(std::move(current_band)) {}

  /// False if the rebuild fails at this line.
  bool Take(const std::string& line) {
    const std::string call(Lit_Log(line, champs::Indicatif_A));
    const std::string band = Majuscules(Lit_Log(line, champs::Bande_A));
    const std::string state(Lit_Log(line, champs::Etat_QSL));
    if (kind_ == Kind::Prefix) {
      if (!Rewrite(Band(band), 8, state, [&](const std::string& row) {
            const std::string prefix(Rogne(std::string_view(row).substr(0, 5)));
            return call.substr(0, prefix.size()) == prefix;
          }))
        absent += call + "\r\n";
      return true;
    }
    if (kind_ == Kind::Department) {
      const std::string department = Majuscules(Rogne(Coupe(line, 37, 2)));
      Rewrite(Band(band), 4, state,
              [&](const std::string& row) { return Rogne(std::string_view(row).substr(0, 2)) == department; });
      return !failed_;
    }
    const std::string square(Rogne(Coupe(line, 42, 4)));
    const int index = Band(band);
    if (square.empty() || !((index >= 9 && index <= 15) || current_band_ == "24 Ghz")) return true;
    Rewrite(index < 9 ? -1 : index - 9, 6, state,
            [&](const std::string& row) { return Rogne(std::string_view(row).substr(0, 4)) == square; });
    return true;
  }

  const std::string& Tally() const { return tally_; }
  std::string absent;
  std::optional<std::string> left_over;  ///< `Temporaire.txt` after a failure.

 private:
  static int Band(const std::string& upper) {
    for (std::size_t i = 0; i < kBandes.size(); ++i)
      if (Majuscules(kBandes[i]) == upper) return static_cast<int>(i);
    return -1;
  }

  template <typename Match>
  bool Rewrite(int band, int first, const std::string& state, Match match) {
    std::istringstream in(tally_);
    std::string out, row;
    bool found = false;
    while (std::getline(in, row)) {
      if (row.ends_with('\r')) row.pop_back();
      if (!found && match(row)) {
        found = true;
        if (band < 0 && kind_ == Kind::Department) {
          failed_ = true;
          left_over = out;
          return true;
        }
        if (band < 0 && kind_ == Kind::Locator) break;
        if (band >= 0 && !state.empty()) {
          char& code = row[static_cast<std::size_t>(first) - 1 + static_cast<std::size_t>(band)];
          if (Valeur(std::string(1, code)) <= Valeur(state)) code = state[0];
        }
      }
      out += row + "\r\n";
    }
    tally_ = out;
    return found;
  }

  Kind kind_;
  std::string tally_;
  std::string current_band_;
  bool failed_ = false;
};

}  // namespace vorelio::bench
