#pragma once

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// The prefixes worked on one band, with their countries.
class Statistique_Prefixe : public Form {
 public:
  explicit Statistique_Prefixe(Programme& programme);

  void Form_Load() override;

  ListBox Liste_Prefixes{*this, "Liste_Prefixes", ListBox::Kind::Sorted};
  ComboBox Bande_E{*this, "Bande_E", ComboBox::Kind::Choice};

 private:
  void Bande_E_Click();
};

}  // namespace vorelio
