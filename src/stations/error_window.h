#pragma once

#include <functional>
#include <string_view>

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// What stops the program when a tally file of the station is missing. Both buttons end it, and so does closing the
/// window: what was interrupted can't go on.
class Gestion_Erreur : public Form {
 public:
  explicit Gestion_Erreur(Programme& programme);

  /// It opens wherever a tally is missed, and its buttons are the only way on.
  bool AboveModal() const override { return true; }
  void Form_Load() override;
  void Form_Unload() override;

  Label Ind_Station{*this, "Ind_Station"};
  Label Ind_Station1{*this, "Ind_Station1"};
  Label Err_Departement{*this, "Err_Departement", "_Locator.txt"};  ///< Ending of the missing file's name.
  Button Initialisation{*this, "Initialisation", "Initialiser"};
  Button Quitter{*this, "Quitter", "Quitter"};

 private:
  void Initialisation_Click();
  void Quitter_Click();
};

namespace Sous_Programmes {

/// Runs what works on the tally file of the station with the ending `suite`. If the file is missing, `Gestion_Erreur`
/// opens and this never returns; any other run-time error ends the program as error 13, whatever the caller traps.
void Piege_Fichier_Station(Programme& programme, std::string_view suite, const std::function<void()>& travail);

}  // namespace Sous_Programmes

}  // namespace vorelio
