#include "maps/locator_maps.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "core/bands.h"
#include "core/text.h"
#include "maps/map_cells.h"
#include "maps/tally_painting.h"

namespace vorelio {

using namespace Sous_Programmes;

namespace {

constexpr int kChamp_Au_Depart = 4;  // "JN"
constexpr int kBande_Au_Depart = 1;  // "144 Mhz"

std::string Image_Du_Champ(std::string_view champ) {
  std::string nom;
  for (const char lettre : champ) nom += static_cast<char>(lettre - 'A' + 'a');
  return "maps/" + nom + ".jpg";
}

using Ouvreur = Carte_Champ& (*)(Programme& programme);

template <std::size_t... N>
constexpr std::array<Ouvreur, sizeof...(N)> Ouvreurs(std::index_sequence<N...>) {
  return {[](Programme& programme) -> Carte_Champ& { return programme.Fenetre<Carte_Du_Champ_N<N>>(); }...};
}

}  // namespace

Carte_Champ::Carte_Champ(Programme& programme, std::string_view champ)
    : Form(programme, std::string("Carte_").append(champ), "Carré "_t.append(champ)),
      Label4(*this, "Label4", "Carrés moyens du carré "_t.append(champ) + " contactés bande : "_t),
      Picture1(*this, "Picture1", Image_Du_Champ(champ), kLargeur_Champ, kHauteur_Champ) {
  Pose_Cellules(Picture1, Dep, Deux_Chiffres, [champ](int n) { return Place_Carre(champ, n); });
}

Carte_Champ* Carte_Du_Champ(Programme& programme, std::string_view champ) {
  static constexpr auto kOuvreurs = Ouvreurs(std::make_index_sequence<std::size(kChamps_Cartes)>());
  const auto* trouve = std::find(std::begin(kChamps_Cartes), std::end(kChamps_Cartes), champ);
  if (trouve == std::end(kChamps_Cartes)) return nullptr;
  return &kOuvreurs[static_cast<std::size_t>(trouve - std::begin(kChamps_Cartes))](programme);
}

Select_Locator::Select_Locator(Programme& programme) : Form(programme, "Select_Locator", "Selection Locator") {
  Command1.Click = [this] { Command1_Click(); };
}

void Select_Locator::Form_Load() {
  Centre();
  for (const auto champ : kChamps_Cartes) Liste_Locator.AddItem(champ);
  for (const auto bande : kBandes)
    if (Bande_VHF(bande)) Bande_T.AddItem(bande);
  Liste_Locator.SetListIndex(kChamp_Au_Depart);
  Bande_T.SetListIndex(kBande_Au_Depart);
}

void Select_Locator::Command1_Click() {
  Affiche_Locators(programme_, Bande_T.Text(), Liste_Locator.Text(), programme_.contexte.Nb_Contactes);
  if (Carte_Champ* carte = Carte_Du_Champ(programme_, Liste_Locator.Text())) carte->Show();
}

}  // namespace vorelio
