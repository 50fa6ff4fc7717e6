#pragma once

#include <string_view>

#include "core/text.h"
#include "forms/controls.h"
#include "forms/programme.h"
#include "maps/tally_painting.h"

namespace vorelio {

/// The map of the departments worked on one band.
class Carte : public Form {
 public:
  explicit Carte(Programme& programme);

  void Form_Load() override;

  ComboBox Bande_S{*this, "Bande_S", ComboBox::Kind::Choice};
  Label Label4{*this, "Label4", "Departements contactés bande : "_t};
  Label Bande_Carte{*this, "Bande_Carte"};
  Label Nb_Carte{*this, "Nb_Carte"};  ///< " 12 Départements sur 144 Mhz".
  Label Label2{*this, "Label2", "REF"};
  Picture Picture1;
  ControlArray<TextField> Dep{*this, "Dep", 0, 100};

  // --- Legend: colour, words, count ---
  TextField Text1{*this, "Text1"};
  TextField Text2{*this, "Text2"};
  TextField Text3{*this, "Text3"};
  TextField Text4{*this, "Text4"};
  Label Label8{*this, "Label8", "Sans QSL"};
  Label Label11{*this, "Label11", "QSL Envoyée non R"_t};
  Label Label10{*this, "Label10", "QSL Reçue non E"_t};
  Label Label9{*this, "Label9", "Dpt Confirmé"_t};
  Label SQ{*this, "SQ"};
  Label QE{*this, "QE"};
  Label QR{*this, "QR"};
  Label DC{*this, "DC"};

 private:
  void Bande_S_Click();
};

namespace Sous_Programmes {

/// Paints `Carte` with the department tally of `bande` and empties the grid of the main window; `total` becomes the
/// number of departments worked. A missing tally is run-time error 53; a key that is no number, or that no cell has,
/// error 13 or 9.
Compte_Departements Dessine_Carte_Dpt(Programme& programme, std::string_view bande, int& total);

}  // namespace Sous_Programmes

}  // namespace vorelio
