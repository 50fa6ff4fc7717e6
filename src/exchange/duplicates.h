#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_map>

/// Contacts that stand twice: in a log, in a file that is imported, or once in each.
namespace vorelio {

/// Same callsign, band, date and mode, and start times less than ten minutes apart; case and blanks around don't count.
/// Of the same date only: two minutes before and after midnight aren't compared. A start that is no time equals but the
/// same text.
bool Est_Double(std::string_view ligne_a, std::string_view ligne_b);

/// Finds doubles among many lines in the time of a few look-ups, however many there are.
class Index_Doubles {
 public:
  /// The line must outlive the index. Lines are numbered from 0 in the order in which they are added.
  void Ajoute(std::string_view ligne);

  /// Number of the double of `ligne` that is nearest in time, the first of those of its minute.
  std::optional<std::size_t> Cherche(std::string_view ligne) const;

  void Reserve(std::size_t lignes) { lignes_.reserve(lignes); }

 private:
  /// A line by what makes it a double of another, its start to the minute.
  struct Cle {
    std::string_view ligne;
    std::size_t empreinte;  ///< Of what must be the same.
    int minute;             ///< Of the day; -1: the text of the start counts.
    bool operator==(const Cle& autre) const;
  };
  struct Empreinte {
    std::size_t operator()(const Cle& cle) const { return cle.empreinte + static_cast<std::size_t>(cle.minute); }
  };

  std::unordered_map<Cle, std::size_t, Empreinte> lignes_;
  std::size_t nombre_ = 0;
};

}  // namespace vorelio
