#pragma once

#include <string>
#include <string_view>

#include "forms/station_context.h"
#include "platform/platform.h"

namespace vorelio {

/// The settings of application "DDFM": section "Setup" is common to all stations, "Setup " and the callsign belongs to
/// the current one. A key can have another default at each reader; those differ on purpose.
class Reglages {
 public:
  Reglages(SettingsStore& magasin, const Contexte_Station& contexte) : magasin_(magasin), contexte_(contexte) {}

  std::string Commun(std::string_view cle, std::string_view defaut) const;
  void Ecrit_Commun(std::string_view cle, std::string_view valeur) const;

  std::string Station(std::string_view cle, std::string_view defaut) const;
  void Ecrit_Station(std::string_view cle, std::string_view valeur) const;

  /// A whole number of the current station; text that is none is run-time error 13.
  int Nombre_Station(std::string_view cle, int defaut) const;
  /// "NB Activite"; more than a list can hold is run-time error 6.
  int Nombre_Activites(int defaut) const;
  /// A Boolean of the current station; an unknown text is not true.
  bool Booleen_Station(std::string_view cle, bool defaut) const;

 private:
  std::string Section_Station() const;

  SettingsStore& magasin_;
  const Contexte_Station& contexte_;
};

}  // namespace vorelio
