#pragma once

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// The cards of one contact: what is known, and what is to be entered.
class QSL : public Form {
 public:
  explicit QSL(Programme& programme);

  void Form_Load() override;
  void Form_Unload() override;

  /// Shows the contact of a `Ligne_Liste` in the labels.
  void Montre_QSO(const std::string& ligne);

  Label Label4{*this, "Label4"};  ///< Date of the contact, after "QSO du".
  Label Label7{*this, "Label7"};  ///< Callsign, after "avec ".
  Label Label6{*this, "Label6"};  ///< "Dpt " and the department.
  CheckBox Check_Envoye;
  Label Label9{*this, "Label9"};  ///< " : non", or " le : " and the date.
  CheckBox Check_Recu;
  Label Label11{*this, "Label11"};  ///< The same for the card received.
  Button Enregistre{*this, "Enregistre", "Enregistrer"};
  Button Multiple{*this, "Multiple", "QSL Multiples"};

 private:
  void Enregistre_Click();
  void Multiple_Click();
  void Remet_Cases();
};

}  // namespace vorelio
