#pragma once

#include <array>
#include <string>
#include <string_view>

/// Contacts with award activations go on to the companion programs of their operators: one line in a file of the
/// companion's own. Its columns are the companion's.
namespace vorelio {

/// A companion program and its data file.
struct Compagnon {
  std::string_view sigle;        ///< What a reference of this award begins with.
  std::string_view nom;          ///< Name of the companion.
  std::string_view application;  ///< Its application in the settings.
  std::string_view suite;        ///< What follows the station in the file's name, before the year if there is one.
  std::string_view fin;          ///< The end of the file's name.
  bool tournoi;                  ///< A yearly file with lines of date, reference, kind of site, callsign.
  int colonne_item;              ///< Where the reference stands in a `Ligne_Liste`.
  int largeur;                   ///< Width of the reference, in the list and in the file.
  int colonne_reference;         ///< Where the reference stands in a line of the file.
  int colonne_date;              ///< Where the date stands, eight wide.
  std::string_view site;         ///< Kind of site in a tournament's line.
  int blancs;                    ///< Blanks that end the other lines.
  std::string_view zone_neuve;   ///< What is said of an area seen first; empty where areas don't count.
};

/// In the order of the type numbers, from 1.
inline constexpr std::array<Compagnon, 5> kCompagnons = {{
    {"DFCF", "ZOR_Tournoi_DFCF", "Tournoi_DFCF", "_Tournoi_DFCF_", ".txt", true, 100, 5, 11, 1,
     "Chateau Contacte      ", 0, ""},
    {"DMF", "ZOR_Tournoi_DMF", "Tournoi_DMF", "_Tournoi_DMF_", ".txt", true, 99, 5, 11, 1, "Moulin Contacte       ", 0,
     ""},
    {"DCI", "ZOR_DCI", "DCI", "_DCI", ".log", false, 99, 5, 35, 41, "", 67, " Nouvelle Province"},
    {"DAI", "ZOR_DAI", "DAI", "_DAI", ".log", false, 99, 6, 35, 42, "", 61, " Nouvelle Region"},
    {"DPLF", "ZOR_DPLF", "DPLF", "_DPLF", ".log", false, 100, 5, 35, 41, "", 32, ""},
}};

/// Whether a save of this activity offers the export.
bool Activite_Exportable(std::string_view activite);

/// The reference of the activation in a `Ligne_Liste`, trimmed for a tournament.
std::string Reference_Activation(const Compagnon& compagnon, std::string_view ligne_liste);

/// What the companion's file gets for a `Ligne_Liste`, without a line end. A list line cut short gives short fields.
std::string Ligne_Compagnon(const Compagnon& compagnon, std::string_view ligne_liste);

/// What a companion's file already knows of a reference.
struct Deja_Contacte {
  bool trouve = false;
  std::string date;       ///< Of the last line with the reference.
  bool zone_vue = false;  ///< Whether the first two characters of the reference occur.
};

/// Looks a reference up in the text of a companion's file.
Deja_Contacte Cherche_Reference(const Compagnon& compagnon, std::string_view texte, std::string_view reference);

}  // namespace vorelio
