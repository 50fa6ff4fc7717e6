#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "core/log_line.h"
#include "forms/programme.h"

/// The QSL state of a contact and what it does to the tallies. Both procedures act on `Ligne_Selection` and
/// `Etat_QSL_Courant`: they change the log line, raise the department's code and set the square's. There is no way
/// back.
namespace vorelio::Sous_Programmes {

/// Log lines to be put in place of others. A single card replaces its line at once; a batch gathers them, so that a
/// long log is rewritten once.
class Lignes_Remplacees {
 public:
  /// All lines that equal `ancienne` become `nouvelle`; lengths as a `Ligne_Log`.
  void Note(std::string_view ancienne, std::string_view nouvelle) { lignes_.emplace(ancienne, nouvelle); }

  /// Rewrites the log of the station through `Temporaire4.txt` and forgets what was noted; does nothing if nothing was.
  /// The rows of `Liste_QSO` follow.
  /// A missing log is run-time error 53.
  void Applique(Programme& programme);

 private:
  /// A contact's date, callsign and time tell it from nearly all others.
  struct Hachage {
    using is_transparent = void;
    std::size_t operator()(std::string_view ligne) const {
      return std::hash<std::string_view>{}(Coupe(ligne, 1, champs::Debut_A.colonne + champs::Debut_A.largeur));
    }
  };

  std::unordered_map<std::string, std::string, Hachage, std::equal_to<>> lignes_;
};

/// A card was sent: state 1 becomes 2, 3 becomes 4, with today's date; 2 and 4 stay.
void Maj_QSL_Envoyee(Programme& programme, Lignes_Remplacees& remplacees);

/// A card was received: state 1 becomes 3, 2 becomes 4, with today's date; 3 and 4 stay.
void Maj_QSL_Recue(Programme& programme, Lignes_Remplacees& remplacees);

}  // namespace vorelio::Sous_Programmes
