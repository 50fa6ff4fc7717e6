#pragma once

#include "forms/controls.h"
#include "forms/programme.h"
#include "printing/label_sheet.h"

namespace vorelio {

/// Prints the labels of the contacts that `Select_QSO` holds. Each sheet is a job of its own, so that the next one can
/// be fed in between.
class Etiquettes : public Form {
 public:
  explicit Etiquettes(Programme& programme);

  void Form_Load() override;
  void Form_Unload() override;

  OptionButton Type_1, Type_2;
  OptionButton Etiqu_1, Etiqu_2, Etiqu_3, Etiqu_4;
  TextField RxTx{*this, "RxTx"};
  TextField Antenne{*this, "Antenne"};
  // The words beside the fields and what is checked aren't quite the same; operators know both.
  Label Label20{*this, "Label20", "16 caracteres maxi"};
  Label Label21{*this, "Label21", "13 catacteres maxi"};
  CheckBox Arret_Imp;
  Button Imprime{*this, "Imprime", "Imprimer"};
  Frame Frame3;                                                 ///< A label of the first type,
  Frame Frame4;                                                 ///< and one of the second.
  ControlArray<Label> Exemple_1{*this, "Exemple_1", 0, 5, ""};  ///< Their lines.
  ControlArray<Label> Exemple_2{*this, "Exemple_2", 0, 5, ""};

 private:
  void Imprime_Click();
  void Imprime_Selection();
  void Imprime_Lignes(const std::vector<Ligne_Papier>& lignes) const;
  const Feuille& Feuille_Choisie() const;
};

}  // namespace vorelio
