#pragma once

#include <array>
#include <string_view>

/// Bands and modes, in the order of the lists that offer them.
namespace vorelio {

/// The text of a band as the log holds it, and its index is that of the setting "bande Utilisee".
inline constexpr std::array<std::string_view, 17> kBandes = {
    "1.8 Mhz", "3.5 Mhz", "7.0 Mhz", "10 Mhz",  "14 Mhz",  "18 Mhz",  "21 Mhz", "24 Mhz", "28 Mhz",
    "50 Mhz",  "144 Mhz", "432 Mhz", "1.3 Ghz", "2.3 Ghz", "5.7 Ghz", "10 Ghz", "24 Ghz"};

/// The first nine bands are HF: no locator is kept for them, and no square is tallied.
inline constexpr int kBandes_HF = 9;

inline constexpr std::array<std::string_view, 16> kModes = {"SSB",   "CW",     "FM",   "AM",   "RELAIS", "SSTV",
                                                            "PSK31", "HELL",   "MFSK", "RTTY", "THROB",  "MT63",
                                                            "JT44",  "PACKET", "SAT",  "AUTRE"};

/// The fields of the locator grid that are tallied and have a map.
inline constexpr std::array<std::string_view, 9> kChamps_Locator = {"IO", "IN", "IM", "JO", "JN",
                                                                    "JM", "KO", "KN", "KM"};

/// Index of a band text, -1 if it is none of the table.
constexpr int Indice_Bande(std::string_view bande) {
  for (int i = 0; i < static_cast<int>(kBandes.size()); ++i)
    if (kBandes[static_cast<std::size_t>(i)] == bande) return i;
  return -1;
}

/// The same, whatever the case: for bands read back from a log.
int Indice_Bande_Lue(std::string_view bande);

/// One of the nine bands from "1.8 Mhz" to "28 Mhz".
constexpr bool Bande_HF(std::string_view bande) {
  const int indice = Indice_Bande(bande);
  return indice >= 0 && indice < kBandes_HF;
}

/// One of the eight bands from "50 Mhz" to "24 Ghz", those with squares.
constexpr bool Bande_VHF(std::string_view bande) { return Indice_Bande(bande) >= kBandes_HF; }

}  // namespace vorelio
