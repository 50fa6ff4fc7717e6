#pragma once

#include <optional>
#include <string>
#include <string_view>

/// What the log becomes in an ADIF file. Every contact is one line, so that the import, which takes a line for a
/// record, can read the file back.
namespace vorelio {

/// Numbers of the first and the last contact to write, both included; the first line of the log is number 1.
struct Tranche {
  double premier;
  double dernier;
};

/// The ADIF name of a band text of the log, in any case: "144 Mhz" is "2m"; "XX.m" for a text outside the band table.
std::string_view Bande_Adif(std::string_view bande);

/// One record from "<call:" to "<eor>", without a line end. A field that the line doesn't reach is empty.
std::string Enregistrement_Adif(std::string_view ligne_log);

/// The whole file: header, and a record for each line of `log` that lies in `tranche` (all without one), empty lines
/// included. `affichage` is the station as it is shown, with "/".
std::string Fichier_Adif(std::string_view affichage, std::string_view log, const std::optional<Tranche>& tranche);

/// Lines in the text of a log.
int Nombre_De_Lignes(std::string_view log);

}  // namespace vorelio
