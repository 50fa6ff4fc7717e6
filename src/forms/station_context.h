#pragma once

#include <map>
#include <string>

#include "platform/disk.h"

namespace vorelio {

/// The station whose log is open, and what goes with it. The station isn't a constant of the run: it changes in the
/// window `Station`.
struct Contexte_Station {
  std::string Station_Indicatif;  ///< Callsign with "_" for "/"; the stem of the station's file names.
  std::string Station_Locator;    ///< Six characters, "------" when none is known.
  std::string Bande_Courante;     ///< Band of the contact, as last confirmed with Enter.
  int Bande_Index = 0;            ///< Its index in the band table.
  std::string Bande_Grille;       ///< Band that the department grid shows.
  int Nb_QSO = 0;                 ///< Contacts in the log.
  int Nb_Activite = 0;            ///< Activities of the station.
  int Nb_Contactes = 0;           ///< Departments or squares that the last painting of the grid counted.
  std::string Chemin_Sauvegarde;  ///< Base path of the backups; file name endings are joined to it as it stands.
  double Numero_Sauvegarde = 0;   ///< `Nb_QSO` at the last automatic backup.
  std::string Delta_Sauvegarde;   ///< Contacts between two automatic backups, as number text.
  std::map<std::string, FileStamp> Empreintes_Logs;  ///< By path, the logs as this run last loaded or wrote them.
  std::string Log_Non_Lu;  ///< Path of the log whose load has failed: the list holds a part of it at best.
};

inline constexpr const char* kStation_Modele = "FXXXX";       ///< The template station, before the first run.
inline constexpr const char* kSans_Locator = "------";        ///< The locator of a station that has none.
inline constexpr const char* Revision_Programme = " 5.6.9d";  ///< Leading blank included.

/// The revision history, oldest first, a CR LF after each line.
std::string Historique_Revisions();

}  // namespace vorelio
