#pragma once

#include <cstdint>

namespace vorelio {

/// A colour as a blue-green-red word, 0xBBGGRR, or one of the system's.
using Couleur = std::uint32_t;

inline constexpr Couleur kFond_Fenetre = 0x80000005;  ///< The system's window background.
inline constexpr Couleur kFace_Bouton = 0x8000000F;   ///< The system's button face.
inline constexpr Couleur kSaisie = 0xC0FFC0;          ///< Light green: the field being entered.
inline constexpr Couleur kFait = 0xC0FFFF;            ///< Light yellow: a field that is done.

/// Cells by tally code, "1" to "4".
inline constexpr Couleur kDpt_Contacte = 0xC0C0FF;
inline constexpr Couleur kDpt_QSL_Envoyee = 0x00FFFF;
inline constexpr Couleur kDpt_QSL_Recue = 0xFFFF80;
inline constexpr Couleur kDpt_Confirme = 0x80FF80;

}  // namespace vorelio
