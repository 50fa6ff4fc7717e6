#pragma once

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// Adds an activity to the station's list. The list file is written anew when the window goes, whether or not one was
/// added.
class Ajout_Activite : public Form {
 public:
  explicit Ajout_Activite(Programme& programme);

  void Form_Load() override;
  void Form_Unload() override;

  ListBox Activ_Exist{*this, "Activ_Exist"};  ///< From activity 1 on: the plain "QSO" isn't shown.
  TextField Nom_Activ{*this, "Nom_Activ"};
  Button Command1{*this, "Command1", "Ajouter"};

 private:
  void Nom_Activ_KeyPress(int& touche);
  void Command1_Click();
};

}  // namespace vorelio
