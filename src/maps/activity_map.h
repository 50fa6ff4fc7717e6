#pragma once

#include <string_view>

#include "core/text.h"
#include "forms/controls.h"
#include "forms/programme.h"
#include "maps/tally_painting.h"

namespace vorelio {

/// The map of the departments in which contacts of one activity were made.
class Carte_Acti : public Form {
 public:
  explicit Carte_Acti(Programme& programme);

  void Form_Load() override;

  ComboBox Bande_A{*this, "Bande_A", ComboBox::Kind::Choice};
  ComboBox Activite_A{*this, "Activite_A", ComboBox::Kind::Choice};
  Button Aff_Carte{*this, "Aff_Carte", "Afficher"};
  Label NB_Activ{*this, "NB_Activ"};  ///< Contacts of the activity.
  Label Label4{*this, "Label4", "Activations"};
  Label Label6{*this, "Label6"};  ///< Name of the activity.
  Label Label5{*this, "Label5", "Contactées sur"_t};
  Label Bande_Carte{*this, "Bande_Carte"};
  Label TotDep{*this, "TotDep"};  ///< Departments on the map.
  Label Label16{*this, "Label16", "Departements  contactés"_t};
  Label Label2{*this, "Label2", "REF"};
  Picture Picture1;
  ControlArray<TextField> Dep{*this, "Dep", 0, 100};

  // --- Legend: colour, words, count ---
  TextField Text1{*this, "Text1"};
  TextField Text5{*this, "Text5"};
  TextField Text4{*this, "Text4"};
  TextField Text3{*this, "Text3"};
  Label Label8{*this, "Label8", "Sans QSL"};
  Label Label11{*this, "Label11", "QSL Envoyée non R"_t};
  Label Label10{*this, "Label10", "QSL Reçue non E"_t};
  Label Label9{*this, "Label9", "Dpt Confirmé"_t};
  Label Label15{*this, "Label15"};
  Label Label14{*this, "Label14"};
  Label Label13{*this, "Label13"};
  Label Label12{*this, "Label12"};

 private:
  void Aff_Carte_Click();
};

/// The choice of all bands.
inline constexpr std::string_view kToutes_Bandes = "Toutes QRG";

namespace Sous_Programmes {

/// Paints `Carte_Acti` with the contacts of the log whose activity is `activite`, a number as the log holds it, on
/// `bande` or on all bands; `total` becomes the number of these contacts, with a department or without. A department
/// takes the highest QSL state of its contacts: a card sent for one and a card received for another don't confirm it.
/// A missing log is run-time error 53; a department that is no number, or that no cell has, error 13 or 9.
Compte_Departements Dessine_Carte_Activite(Programme& programme, std::string_view bande, std::string_view activite,
                                           int& total);

}  // namespace Sous_Programmes

}  // namespace vorelio
