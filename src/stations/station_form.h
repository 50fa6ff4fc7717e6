#pragma once

#include <string>

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// Chooses one of the known stations or makes a new one, and switches the main window over to it.
class Station : public Form {
 public:
  explicit Station(Programme& programme);

  void Form_Load() override;

  ListBox Liste_Indicatifs{*this, "Liste_Indicatifs"};  ///< Callsign in 12 columns, a blank, locator; a new one last.
  TextField New_Indicatif{*this, "New_Indicatif"};
  TextField New_Locator{*this, "New_Locator"};
  Label Label3{*this, "Label3", "Indicatif"};
  Label Label4{*this, "Label4", "Locator"};
  Label Label5;  ///< What becomes of a "/".
  Button Validation{*this, "Validation", "Validez"};
  Button Quitter{*this, "Quitter", "Quitter"};
  Button Autre_Logiciel{*this, "Autre_Logiciel", "Venir d'un autre logiciel ?"};  ///< The manual's chapter on it.

 private:
  void Liste_Indicatifs_KeyPress(int& touche);
  void New_Indicatif_KeyPress(int& touche);
  void New_Locator_KeyPress(int& touche);
  void Validation_Click();
  void Quitter_Click();

  /// False, with the box, if the text isn't a callsign that files can be named after.
  bool Indicatif_Bon(const std::string& indicatif);
  bool Locator_Bon(const std::string& locator);
  bool Nouvel_Indicatif_Choisi() const;

  void Ajoute_A_La_Liste(const std::string& indicatif, const std::string& locator);
  void Cree_Station(const std::string& indicatif, const std::string& locator);
  void Adopte_Station(const std::string& indicatif, const std::string& locator);
  void Enregistre_Choix(const std::string& indicatif, const std::string& locator);
  void Relit_Choix();
  void Montre_Station();
};

}  // namespace vorelio
