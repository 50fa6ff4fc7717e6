#pragma once

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// Adds a prefix at the end of the station's prefix tally.
class Ajout_Prefixe : public Form {
 public:
  explicit Ajout_Prefixe(Programme& programme);

  void Form_Load() override;

  TextField N_Prefixe{*this, "N_Prefixe"};
  TextField N_Pays{*this, "N_Pays"};
  Button Ajouter{*this, "Ajouter", "Ajouter"};

 private:
  void Ajouter_Click();
};

}  // namespace vorelio
