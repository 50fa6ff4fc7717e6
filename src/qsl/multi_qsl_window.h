#pragma once

#include <string>
#include <vector>

#include "forms/controls.h"
#include "forms/programme.h"
#include "qsl/qsl_state.h"

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
  std::vector<std::string> Coches() const;
  /// Enters the card of a row's contact: at once in the tallies, its log line with `remplacees`.
  void Enregistre_Carte(const std::string& element, Sous_Programmes::Lignes_Remplacees& remplacees);
  void Enregistre_Cartes(const std::vector<std::string>& elements);
};

}  // namespace vorelio
