#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What the statistics count in a log: from its text to values.
namespace vorelio {

// --- Distances ------------------------------------------------------------------------------------------------------

inline constexpr int kClasses_Distance = 11;

/// The bands of the distance table in the order of its cells, which isn't that of the screen.
inline constexpr std::array<std::string_view, 8> kBandes_Distance = {"144 Mhz", "432 Mhz", "1.3 Ghz", "2.3 Ghz",
                                                                     "5.7 Ghz", "10 Ghz",  "24 Ghz",  "50 Mhz"};

/// Class 1 to 11 of a distance in km: the first hundred with 100 itself, one for each hundred up to its 99, and one for
/// all above 1000. A distance that is in none of them, such as 1000, keeps the class `precedente`.
int Classe_Distance(double km, int precedente);

struct Comptes_Distance {
  /// By band of `kBandes_Distance`, then class less 1.
  std::array<std::array<int, kClasses_Distance>, kBandes_Distance.size()> cellules{};
  /// Band of the last line of the log, whatever it is; none if the log is empty.
  std::optional<std::string> derniere_bande;
};

/// Counts the contacts of a log by band and distance.
Comptes_Distance Compte_Distances(std::string_view log);

// --- Contacts and their cards ---------------------------------------------------------------------------------------

struct Compte_Activite {
  int qso = 0;
  int envoyees = 0;  ///< QSL sent.
  int recues = 0;    ///< QSL received.
};

struct Comptes_QSO {
  /// The table has places for the activities 0 to 30; another number is run-time error 9.
  Compte_Activite& Activite(int numero);

  std::array<Compte_Activite, 31> activites{};
  int total = 0;
  int francais = 0;  ///< With French stations, by their prefix.
};

/// Counts the contacts of a log by activity. An activity that is no number counts as 0.
Comptes_QSO Compte_QSO(std::string_view log);

/// The whole percentage of `part` in `total`, two characters wide below 100; 0 of 0 is 0.
std::string Pourcentage(int part, int total);

/// Name and counts in columns. A name of more than 7 characters or a count of more than 5 is run-time error 5.
std::string Ligne_Activite(std::string_view nom, const Compte_Activite& compte);

// --- Activations ----------------------------------------------------------------------------------------------------

inline constexpr std::string_view kBandes_HF_Ensemble = "Bandes HF";
inline constexpr std::string_view kBandes_VHF_Ensemble = "Bandes VHF";

/// Whether a band of the log is the one chosen, or one of the group chosen.
bool Bande_Choisie(std::string_view bande, std::string_view choix);

/// The contacts of a log with the activity `indice`, a number text without blanks, on the band or group `choix`: place,
/// name of the activation, date, callsign, band and QSL letter in columns, in the order of their texts.
std::vector<std::string> Lignes_Activation(std::string_view log, std::string_view indice, std::string_view choix);

}  // namespace vorelio
