#pragma once

#include <string>
#include <string_view>

/// What the ADIF standard enumerates, as far as the log knows it. Source: ADIF 3.1.4, "Band Enumeration" (limits in
/// MHz), "Mode Enumeration", "Submode Enumeration" (adif.org/314).
namespace vorelio {

/// A band of the standard.
struct Bande_ADIF3 {
  std::string_view nom;    ///< "20M".
  double de, a;            ///< Limits in MHz, both included.
  std::string_view bande;  ///< The log's text; empty for a band that it doesn't have.
};

/// The band of a name in any case, or of a frequency in MHz; nothing if the standard has none.
const Bande_ADIF3* Bande_De_Nom(std::string_view nom);
const Bande_ADIF3* Bande_De_Frequence(double mhz);

/// The band that has this text in the log, in any case; nothing for a text outside the band table.
const Bande_ADIF3* Bande_Du_Log(std::string_view bande);

/// A mode of the standard and, where there is one, its submode.
struct Mode_ADIF3 {
  std::string mode, sous_mode;
  bool operator==(const Mode_ADIF3&) const = default;
};

/// The standard's mode for a mode of the log ("PSK31" is PSK, PSK31); a mode that it doesn't know stands for itself.
Mode_ADIF3 Mode_Vers_ADIF3(std::string_view mode);

/// The log's mode: the submode where it is the finer one and has room, else the mode. `perte` becomes true if a submode
/// had no room.
std::string Mode_Du_Log(const Mode_ADIF3& mode, bool& perte);

}  // namespace vorelio
