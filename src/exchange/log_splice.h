#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/century.h"
#include "exchange/import_line.h"
#include "forms/programme.h"

/// What the imports have in common: the marker record, the file dialog, the block of new lines that goes into the log
/// at one place, and the end.
namespace vorelio {

/// What sets one kind of import apart.
struct Genre_Import {
  std::string_view nom;            ///< As the status line says it.
  std::string_view filtre;         ///< Of the file dialog.
  std::string_view temporaire;     ///< Name of the work file.
  std::string_view heures_repere;  ///< Start and end of the marker record.
  Siecle siecle_log;               ///< Century border for the lines of the log.
  bool lignes_vides;               ///< Whether the log may hold empty lines, which then have no date of their own.
};

/// The marker record: it stands in the log from before the file is chosen until the import has gone well, so a log that
/// an import was cancelled or stopped on shows it as a contact with "XXXXXX".
std::string Ligne_Repere(std::string_view heures);

/// Any import's marker is known by the line's first 16 characters.
bool Est_Repere(std::string_view ligne);

/// One import into the log of the station. As long as it lives no other import can be started.
class Import_Log {
 public:
  Import_Log(Programme& programme, const Genre_Import& genre);
  ~Import_Log();
  Import_Log(const Import_Log&) = delete;
  Import_Log& operator=(const Import_Log&) = delete;

  /// Appends the marker record, then asks for the file; false, with the message, if none was chosen.
  bool Choisit_Fichier();
  /// Path of the chosen file.
  const std::string& Fichier() const { return fichier_; }

  /// Puts the records into the log, together and in their own order, ahead of the first log line at or after `premier`;
  /// without such a line the log stays without them. The markers go. Events are served meanwhile.
  ///
  /// Errors: 13 if `premier` or a line of the log has no real date; that of a record which can't be converted. The work
  /// file then holds what was merged up to there, and the log its marker.
  void Insere(const Premier_Moment& premier, const std::vector<std::string_view>& enregistrements,
              const std::function<Ligne_Importee(std::string_view enregistrement)>& convertit);

  /// Reads the log anew, selects its last line, and says in the status line what has come in.
  void Recharge();

 private:
  void Prend(const Ligne_Importee& lue, std::string& lignes);
  void Annonce_Avance();
  void Active_Menus(bool actif);

  Programme& programme_;
  const Genre_Import& genre_;
  std::string log_;  ///< Path of the log: the station may be changed while the import runs.
  std::string fichier_;
  std::size_t lues_ = 0;
  std::size_t ajoutees_ = 0;
  std::string garde_;  ///< What is to be said of a log that was kept.
};

}  // namespace vorelio
