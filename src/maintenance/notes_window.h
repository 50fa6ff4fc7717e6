#pragma once

#include <string>

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// A notepad with files of its own, apart from the log.
class Notes : public Form {
 public:
  explicit Notes(Programme& programme);

  void Form_Load() override;
  void Form_Unload() override;

  TextField Text1{*this, "Text1", "", true};
  Button Couper{*this, "Couper", "COUPER"};
  Button Copier{*this, "Copier", "COPIER"};
  Button Coller{*this, "Coller", "COLLER"};
  Button Effacer{*this, "Effacer", "EFFACER"};
  MenuItem Mnu_Charger{*this, "Mnu_Charger", "Charger un bloc-note"};
  MenuItem Mnu_Enregistrer{*this, "Mnu_Enregistrer", "Enregistrer un bloc-note"};

 private:
  /// False if nothing is selected.
  bool Copie_Selection();
  void Effacer_Click();
  void Charge();
  /// Asks for a name; without one nothing is saved.
  void Enregistre();
};

}  // namespace vorelio
