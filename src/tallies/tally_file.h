#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/main_window.h"
#include "platform/controls.h"
#include "platform/disk.h"

namespace vorelio {

/// Cells by tally code, "1" to "4".
inline constexpr Couleur kDpt_Contacte = 0xC0C0FF;
inline constexpr Couleur kDpt_QSL_Envoyee = 0x00FFFF;
inline constexpr Couleur kDpt_QSL_Recue = 0xFFFF80;
inline constexpr Couleur kDpt_Confirme = 0x80FF80;

}  // namespace vorelio

/// What the tallies have in common: lines with one code character per band, rewritten through a temporary file.
namespace vorelio::Sous_Programmes {

/// Whether a tally line reaches `colonne`. One that ends before it, truncated or empty, has no code there.
bool A_Un_Code(std::string_view ligne, int colonne);

/// The line with the one-character `code` in `colonne`, all other columns as they were. A line that ends before it is
/// filled up, with "0" from the first code column `premiere` on: the bands between have not been worked.
std::string Avec_Code(std::string_view ligne, int colonne, std::string_view code, int premiere);

/// The colour of a cell with `code` "1" to "4"; false, and `couleur` as it was, for any other code.
bool Couleur_Code(std::string_view code, Couleur& couleur);

void Efface_Cellules(const Cellules& cellules, Couleur fond);

/// What a line of a file becomes; both without their ends.
using Change_Ligne = std::function<std::string(std::string_view ligne)>;

/// Reads the file at `chemin` and writes what its lines become, each ended by CR LF, to the file at `temporaire`.
void Ecrit_Temporaire(Disk& disque, const std::string& chemin, const std::string& temporaire,
                      const Change_Ligne& change);

/// Puts the temporary file in place of the one at `chemin`: deletes that one, copies, deletes the temporary file.
void Prend_Temporaire(Disk& disque, const std::string& chemin, const std::string& temporaire);

}  // namespace vorelio::Sous_Programmes
