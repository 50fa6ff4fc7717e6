#pragma once

#include <array>
#include <string>
#include <string_view>

#include "exchange/adif3_reader.h"
#include "exchange/received_text.h"

/// What of a log line the ADIF standard can't tell to the byte, in fields of this program's own: APP_VORELIO_ and the
/// name of a stretch of the line, blanks behind the field included.
namespace vorelio {

/// A stretch of the log line. Together they are the whole line, whatever its length.
struct Tranche_Ligne {
  std::string_view nom;
  int colonne, largeur;
  /// The standard's field that is read by what the station at home knows: where it stands, so must this.
  std::string_view selon_station = {};

  std::string_view De(std::string_view ligne) const;
};

inline constexpr std::array<Tranche_Ligne, 20> kTranches = {{
    {"DATE", 1, 10},
    {"INDICATIF", 11, 12},
    {"DEBUT", 23, 7},
    {"FIN", 30, 7},
    {"DEPARTEMENT", 37, 5, "STATE"},
    {"LOCATOR", 42, 8},
    {"BANDE", 50, 10},
    {"MODE", 60, 9},
    {"RSTE", 69, 10},
    {"RSTR", 79, 10},
    {"QTH", 89, 22},
    {"PRENOM", 111, 17},
    {"QSL", 128, 9},
    {"QSLE", 137, 9},
    {"QSLR", 146, 9},
    {"DISTANCE", 155, 6, "GRIDSQUARE"},
    {"AZIMUT", 161, 4, "GRIDSQUARE"},
    {"ACTIVITE", 165, 4, "SIG"},
    {"REMARQUES", 169, 30},
    {"SUITE", 199, 1 << 30},
}};

/// The line, with those stretches replaced that have a field of their own in the record.
std::string Impose_Champs_Propres(std::string ligne, const Enregistrement_ADIF& champs, const Texte_Etranger& texte);

}  // namespace vorelio
