#pragma once

#include "core/programme.h"
#include "platform/controls.h"

namespace vorelio {

/// Many cards at once: lists the contacts of a callsign that still lack a card, and enters it for those that are
/// ticked.
class Multi_QSL : public Form {
 public:
  explicit Multi_QSL(Programme& programme);

  void Form_Load() override;
  void Form_Unload() override;

  TextField Indicatif{*this, "Indicatif"};
  OptionButton Option1;  ///< Cards not sent.
  OptionButton Option2;  ///< Cards not received.
  Button Recherche{*this, "Recherche", "Rechercher"};
  ListBox Liste_QSO{*this, "Liste_QSO", ListBox::Kind::Checked};
  Label Label4;  ///< "envoyées" or "reçues" in the instruction.
  Button Enregistre{*this, "Enregistre", "Enregistrer"};

 private:
  void Option1_Click();
  void Option2_Click();
  void Recherche_Click();
  void Enregistre_Click();
  /// False if no row is ticked.
  bool Enregistre_Coches();
};

}  // namespace vorelio
