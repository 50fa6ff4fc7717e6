#pragma once

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// All contacts with one department.
class Affiche_Dpt : public Form {
 public:
  explicit Affiche_Dpt(Programme& programme);

  void Form_Load() override;

  /// Fills the window for a cell of the grid, 0 to 99; 96 and 97 are Corsica.
  void Montre_Departement(int cellule);

  Label Label2{*this, "Label2"};  ///< The department.
  Label Label1{*this, "Label1"};  ///< Titles of the list.
  ListBox QSO_DU_Dep{*this, "QSO_DU_Dep"};
};

}  // namespace vorelio
