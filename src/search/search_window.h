#pragma once

#include <functional>
#include <string>

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// Finds contacts of the log by callsign, date, department, locator or reference, leads back to them and prints them.
class Recherche_Indicatif : public Form {
 public:
  explicit Recherche_Indicatif(Programme& programme);

  void Form_Load() override;

  ControlArray<OptionButton> Option1;  ///< 1 to 5: what is searched for, in the order of the fields.
  TextField Indica{*this, "Indica"};
  TextField Data{*this, "Data"};
  TextField Depa{*this, "Depa"};
  TextField Loca{*this, "Loca"};
  TextField Refa{*this, "Refa"};
  ListBox QSO_Effectues{*this, "QSO_Effectues"};
  Button Imprimer{*this, "Imprimer", "Imprimer"};
  Button Command1{*this, "Command1", "Quitter"};

 private:
  /// Takes an item of the log and the letter of its QSL state.
  using Preneur = std::function<void(std::string_view element, const std::string& lettre)>;

  void Relie_Champ(int option, bool majuscules, bool (Recherche_Indicatif::*refuse)());
  TextField& Champ(int option);
  int Option_Choisie() const;

  // What Enter in a field checks first: true, with the message, if the search is refused.
  bool Refuse(const std::string& message, TextField* vide = nullptr);
  bool Refuse_Indicatif();
  bool Refuse_Date();
  bool Refuse_Departement();
  bool Refuse_Locator();
  bool Refuse_Reference();

  void Cherche();
  /// Hands the contacts that answer to `texte` to `prend`. False, with the message, if there is no text.
  bool Parcourt(int option, std::string& texte, const Preneur& prend);
  void Imprimer_Click();

  // The texts of the last search, for the printing, which passes by the department's.
  std::string Dernier_Indicatif, Derniere_Date, Dernier_Dpt, Dernier_Locator;
};

}  // namespace vorelio
