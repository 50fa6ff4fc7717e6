#pragma once

#include <cstddef>
#include <string_view>

#include "forms/controls.h"
#include "forms/programme.h"

namespace vorelio {

/// The map of one locator field with its hundred squares. Each of the nine fields has a window of its own.
class Carte_Champ : public Form {
 public:
  Carte_Champ(Programme& programme, std::string_view champ);

  void Form_Load() override { Centre(); }

  Label Label4;
  Label Bande_Carre{*this, "Bande_Carre"};
  Picture Picture1;
  ControlArray<TextField> Dep{*this, "Dep", 0, 100};
};

/// The fields in the order in which they are offered, and that of their windows.
inline constexpr std::string_view kChamps_Cartes[] = {"IM", "IN", "IO", "JM", "JN", "JO", "KM", "KN", "KO"};

template <std::size_t N>
class Carte_Du_Champ_N : public Carte_Champ {
 public:
  explicit Carte_Du_Champ_N(Programme& programme) : Carte_Champ(programme, kChamps_Cartes[N]) {}
};

using Carte_IM = Carte_Du_Champ_N<0>;
using Carte_IN = Carte_Du_Champ_N<1>;
using Carte_IO = Carte_Du_Champ_N<2>;
using Carte_JM = Carte_Du_Champ_N<3>;
using Carte_JN = Carte_Du_Champ_N<4>;
using Carte_JO = Carte_Du_Champ_N<5>;
using Carte_KM = Carte_Du_Champ_N<6>;
using Carte_KN = Carte_Du_Champ_N<7>;
using Carte_KO = Carte_Du_Champ_N<8>;

/// The window of a field, loaded if it wasn't; null for a field without a map.
Carte_Champ* Carte_Du_Champ(Programme& programme, std::string_view champ);

/// Chooses band and field of a locator map, and stays open for the next one.
class Select_Locator : public Form {
 public:
  explicit Select_Locator(Programme& programme);

  void Form_Load() override;

  ComboBox Liste_Locator{*this, "Liste_Locator", ComboBox::Kind::Choice};
  ComboBox Bande_T{*this, "Bande_T", ComboBox::Kind::Choice};
  Button Command1{*this, "Command1", "Afficher"};

 private:
  void Command1_Click();
};

}  // namespace vorelio
