#pragma once

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// The activations of one activity that were worked on a band or a group of bands, by their references.
class Statistique_DFCF : public Form {
 public:
  explicit Statistique_DFCF(Programme& programme);

  void Form_Load() override;

  ComboBox Bande_E{*this, "Bande_E", ComboBox::Kind::Choice};
  /// Row n is activity n + 1: the plain "QSO" isn't offered.
  ComboBox Activite_A{*this, "Activite_A", ComboBox::Kind::Choice};
  Button Affiche_Contact{*this, "Affiche_Contact", "Afficher"};
  Button Enregistrement{*this, "Enregistrement", "Enregistrer"};
  Label TotActiv{*this, "TotActiv"};    ///< Count of the list,
  Label TypActiv{*this, "TypActiv"};    ///< of this activity,
  Label BandActiv{*this, "BandActiv"};  ///< on this band.
  ListBox Liste_Chateaux{*this, "Liste_Chateaux", ListBox::Kind::Sorted};

 private:
  void Affiche_Contact_Click();
  /// Saves the list as a text file of the program's folder, over whatever stands there.
  void Enregistrement_Click();
};

}  // namespace vorelio
