#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/text.h"
#include "exchange/import_plan.h"
#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// The log of another program, read and shown before anything of it comes into the log of the station. The window is
/// modal: the station can't change while it is open.
class Import_Journal : public Form {
 public:
  explicit Import_Journal(Programme& programme);

  void Form_Load() override { Centre(); }

  /// Reads the file, shows what it would bring, and waits until the window is closed. What keeps the file from being
  /// read is told instead, as a sentence; empty if nothing did.
  std::string Ouvre(const std::string& fichier);

  Label Format{*this, "Format"};  ///< What the file is, and which program has written it.
  Label Nb_Lus{*this, "Nb_Lus"};
  Label Nb_Nouveaux{*this, "Nb_Nouveaux"};
  Label Nb_Doubles{*this, "Nb_Doubles"};
  Label Nb_Refuses{*this, "Nb_Refuses"};
  Label Nb_Confirmes{*this, "Nb_Confirmes"};  ///< Contacts of the log that get a received QSL.
  Label Nb_Coupes{*this, "Nb_Coupes"};        ///< New contacts of which something was cut.
  ListBox Liste_Apercu{*this, "Liste_Apercu"};
  ListBox Liste_Refus{*this, "Liste_Refus"};
  CheckBox Doubles{*this, "Doubles", "Importer aussi les doubles"};
  CheckBox Confirmations{*this, "Confirmations", "Reporter les QSL reçues sur les QSO déjà au carnet"_t};
  Gauge Avance{*this, "Avance"};  ///< How far the reading is.
  Button Importer{*this, "Importer", "Importer"};
  Button Quitter{*this, "Quitter", "Quitter"};

 private:
  /// Reads the file and sets its records against the log. Gives the sentence of a failure.
  std::string Lit();
  void Montre_Avance(std::size_t fait, std::size_t total);
  void Montre_Fichier(const Journal_Lu& journal);
  void Compare(std::vector<QSO_Lu> qso);
  void Montre_Apercu();
  void Importer_Click();
  void Relit();
  /// True, with the box, if the log would be longer than its list can number.
  bool Trop_De_QSO(std::string_view log);
  /// Gives the path of the copy that was kept.
  std::string Remplace(std::string_view log);
  void Termine_Import(const std::string& garde, std::size_t ajoutes);

  std::string fichier_;
  std::optional<Plan_Import> plan_;
  std::size_t nb_refuses_ = 0;
  std::string refuses_;        ///< The file of the refused records.
  std::size_t empreinte_ = 0;  ///< Of the log that the records were set against.
};

namespace Sous_Programmes {

/// Asks for a file and opens the window on it.
void Importe_Journal(Programme& programme);

}  // namespace Sous_Programmes

}  // namespace vorelio
