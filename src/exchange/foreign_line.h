#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/log_line.h"
#include "exchange/journal.h"

namespace vorelio {

/// Thrown where a record can't become a log line.
struct Refus {
  std::string raison;  ///< For the operator.
};

/// A log line in the making from a record of another program. What a column can't hold is cut, and noted.
class Ligne_En_Cours {
 public:
  Champs_QSO qso;
  bool coupe = false;

  void Pose(std::string Champs_QSO::*champ, const Champ& place, std::string valeur);

  /// The locator, distance and azimuth. A locator of four characters stands for the middle of its square, a wrong one
  /// counts as cut. HF keeps none once the rest is computed. `ici` may be unknown.
  void Pose_Locator(std::string_view locator, std::string_view ici, bool HF);

  /// The callsign, or `Refus`.
  void Pose_Indicatif(std::string valeur);
};

/// "jj/mm/aa" of "aaaammjj", or `Refus`: a date that is none, or of a year that two digits don't tell.
std::string Date_Du_Log(std::string_view date);

/// "hh:mm" of "hhmm" or "hhmmss", or `Refus`, which begins with `quoi`.
std::string Heure_Du_Log(std::string_view heure, std::string_view quoi);

/// Six characters in capitals from a locator of at least four, "LL" behind one of four; empty for what is none.
std::string Locator_Six(std::string_view locator);

/// The number at the head of a text, a comma being a point; nothing without a finite one.
std::optional<double> Nombre_Lu(std::string texte);

/// A report and the number behind it, which has three digits at least: "59" and "1" are "59001".
std::string Rapport_Et_Numero(std::string rapport, std::string numero);

/// The department that a text begins with, as the log writes it ("06", "2a"); empty if it names none, or if the
/// callsign isn't French.
std::string Departement_Francais(std::string_view texte, std::string_view indicatif, const Contexte_Journal& contexte);

}  // namespace vorelio
