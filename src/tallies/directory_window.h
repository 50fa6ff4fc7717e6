#pragma once

#include <string>

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// Edits the callsign directory by hand. The list is a working copy: the file changes when the window closes.
class Fichier_Nomenclature : public Form {
 public:
  explicit Fichier_Nomenclature(Programme& programme);

  void Form_Load() override;
  void Form_Unload() override;

  ListBox Liste_Nomenclature{*this, "Liste_Nomenclature", ListBox::Kind::Sorted};
  TextField Ind_Edit{*this, "Ind_Edit"};
  TextField Dep_Edit{*this, "Dep_Edit"};
  TextField Loc_Edit{*this, "Loc_Edit"};
  Button Ajouter{*this, "Ajouter", "Ajouter"};
  Button Editer{*this, "Editer", "Editer"};
  Button Supprimer{*this, "Supprimer", "Supprimer"};

 private:
  void Liste_Nomenclature_Click();
  void Ajouter_Click();
  void Editer_Click();
  void Supprimer_Click();

  /// The line of what the fields hold. What doesn't fit its columns is run-time error 5.
  std::string Ligne_Saisie() const;
  void Vide_Champs();
};

}  // namespace vorelio
