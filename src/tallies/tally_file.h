#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/disk.h"

/// What the tallies have in common: lines with one code character per band, rewritten through a temporary file.
namespace vorelio::Sous_Programmes {

/// Whether a tally line reaches `colonne`. One that ends before it, truncated or empty, has no code there.
bool A_Un_Code(std::string_view ligne, int colonne);

/// The line with the one-character `code` in `colonne`, all other columns as they were. A line that ends before it is
/// filled up, with "0" from the first code column `premiere` on: the bands between have not been worked.
std::string Avec_Code(std::string_view ligne, int colonne, std::string_view code, int premiere);

/// What a line of a file becomes, nothing if it stays as it is; both without their ends.
using Change_Ligne = std::function<std::optional<std::string>(std::string_view ligne)>;

/// Reads the file at `chemin` and writes what its lines become, each ended by CR LF, to the file at `temporaire`.
void Ecrit_Temporaire(Disk& disque, const std::string& chemin, const std::string& temporaire,
                      const Change_Ligne& change);

/// Puts the temporary file in place of the one at `chemin`: deletes that one, copies, deletes the temporary file.
void Prend_Temporaire(Disk& disque, const std::string& chemin, const std::string& temporaire);

}  // namespace vorelio::Sous_Programmes
