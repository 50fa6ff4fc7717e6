#pragma once

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// Picks the contacts that get a label: a click moves a line from the log to the selection, or back.
class Select_QSO : public Form {
 public:
  explicit Select_QSO(Programme& programme);

  void Form_Load() override;

  ListBox Liste_QSO{*this, "Liste_QSO", ListBox::Kind::Sorted};
  ListBox Liste_Imprime{*this, "Liste_Imprime", ListBox::Kind::Sorted};
  Button Impression{*this, "Impression", "Impression"};
};

}  // namespace vorelio
