#pragma once

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// Brings the activity list of the last backup back into the settings. Without such a file the program ends.
class Restoration_Activite : public Form {
 public:
  explicit Restoration_Activite(Programme& programme);

  void Form_Load() override;

  ListBox Liste_Fichiers{*this, "Liste_Fichiers"};
  Button Ecriture_BDR{*this, "Ecriture_BDR", "Ecriture de la BDR"};

 private:
  void Charge_Liste();
  void Ecriture_BDR_Click();
};

}  // namespace vorelio
