#pragma once

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// Prints the contacts with one activity on one band. Nothing has to be chosen: the listing is then empty.
class Print_Activite : public Form {
 public:
  explicit Print_Activite(Programme& programme);

  void Form_Load() override;

  /// Row n is activity n + 1: the plain "QSO" isn't offered.
  ComboBox Imp_Activite{*this, "Imp_Activite", ComboBox::Kind::Choice};
  ComboBox Bande_Z{*this, "Bande_Z", ComboBox::Kind::Choice};
  Button Impression{*this, "Impression", "Impression"};

 private:
  void Impression_Click();
};

}  // namespace vorelio
