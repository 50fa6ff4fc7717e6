#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "cluster/cluster_page.h"

/// What goes to a transceiver: frequencies out of spot lines, and the bytes that its family takes.
namespace vorelio {

// --- Models ---------------------------------------------------------------------------------------------------------

enum class Famille_CAT { Yaesu, FT1000, Icom };

struct Modele_Transceiver {
  std::string_view nom;
  Famille_CAT famille;
  std::string_view adresse;  ///< CI-V address as "&H68"; empty but for Icom.
};

/// All models that are known; of these the operator is offered the first `kModeles_Offerts`.
inline constexpr std::array<Modele_Transceiver, 12> kModeles = {{{"FT-736", Famille_CAT::Yaesu, ""},
                                                                 {"FT-817", Famille_CAT::Yaesu, ""},
                                                                 {"FT-847", Famille_CAT::Yaesu, ""},
                                                                 {"FT-897", Famille_CAT::Yaesu, ""},
                                                                 {"FT-1000", Famille_CAT::FT1000, ""},
                                                                 {"IC-703", Famille_CAT::Icom, "&H68"},
                                                                 {"IC-706 MKIIG", Famille_CAT::Icom, "&H58"},
                                                                 {"IC-718", Famille_CAT::Icom, "&H5E"},
                                                                 {"IC-756 PRO", Famille_CAT::Icom, "&H5C"},
                                                                 {"IC-756 PRO II", Famille_CAT::Icom, "&H64"},
                                                                 {"IC-756 PRO III", Famille_CAT::Icom, "&H6E"},
                                                                 {"IC-7800", Famille_CAT::Icom, "&H6A"}}};
inline constexpr std::size_t kModeles_Offerts = 4;

/// The model of that name, null if there is none.
const Modele_Transceiver* Cherche_Modele(std::string_view nom);

// --- Frequencies ----------------------------------------------------------------------------------------------------

/// The column at which a family cuts the frequency out of a spot line. The two that no operator is offered have one of
/// their own, which fits none of the sort orders.
int Colonne_Qrg(Famille_CAT famille, Tri tri);

/// The frequency as text, in units of 10 Hz, from nine characters of a spot line on: the first seven, the last, and
/// "0". The point of the frequency stands in the eighth place and falls away.
std::string Texte_Qrg(std::string_view ligne, int colonne);

/// The four parameter bytes of a block.
using Parametres_CAT = std::array<std::uint8_t, 4>;

/// Eight decimal digits as bytes of two, the high pair first. `frequence` is in units of 10 Hz.
Parametres_CAT Qrg_Bcd(int frequence);

/// The digits of the text `frequence` in reverse order, filled with "0" at the end, and their bytes; the text becomes
/// what was packed. Text that is no number is run-time error 13.
Parametres_CAT Qrg_Bcd_Inverse(std::string& frequence);

/// The frequency in Hz as ten digits, two to a byte, each byte written as "&H" and its value in decimal. Only the first
/// five places are filled.
std::array<std::string, 7> Qrg_Bcd_Icom(std::string_view frequence);

/// How many characters the number has that a text reads as; the two families that set a mode choose it by that.
int Chiffres_Du_Nombre(std::string_view texte);

// --- Frames ---------------------------------------------------------------------------------------------------------

/// The two CI-V frames of a tuning, frequency and mode. `adresse` is a model's; `frequence` in units of 10 Hz.
std::array<std::string, 2> Trames_Icom(std::string_view adresse, std::string_view frequence);

}  // namespace vorelio
