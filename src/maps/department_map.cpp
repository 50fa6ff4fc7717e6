#include "maps/department_map.h"

#include <string>

#include "core/bands.h"
#include "core/text.h"
#include "forms/main_window.h"
#include "maps/map_cells.h"

namespace vorelio {

using namespace Sous_Programmes;

namespace {

constexpr int kBande_Au_Depart = 2;  // "7.0 Mhz"

}  // namespace

Carte::Carte(Programme& programme)
    : Form(programme, "Carte", "Départements contactés"_t),
      Picture1(*this, "Picture1", kImage_France, kLargeur_France, kHauteur_France) {
  Pose_Departements(Picture1, Dep, Carte_France::Departements);
  Pose_Legende(Text1, kDpt_Contacte);
  Pose_Legende(Text2, kDpt_QSL_Envoyee);
  Pose_Legende(Text3, kDpt_QSL_Recue);
  Pose_Legende(Text4, kDpt_Confirme);
  Bande_S.Click = [this] { Bande_S_Click(); };
}

void Carte::Form_Load() {
  Centre();
  for (const auto bande : kBandes) Bande_S.AddItem(bande);
  Bande_S.SetListIndex(kBande_Au_Depart);
}

void Carte::Bande_S_Click() {
  auto& contexte = programme_.contexte;
  auto& principale = programme_.Principale();
  contexte.Bande_Grille = Bande_S.Text();
  const Compte_Departements compte = Dessine_Carte_Dpt(programme_, Bande_S.Text(), contexte.Nb_Contactes);
  Nb_Carte.SetCaption(Texte_Nombre_Blanc(contexte.Nb_Contactes) + " Départements sur "_t + Bande_S.Text());
  SQ.SetCaption(Texte_Nombre(compte.sans));
  QE.SetCaption(Texte_Nombre(compte.envoyees));
  QR.SetCaption(Texte_Nombre(compte.recues));
  DC.SetCaption(Texte_Nombre(compte.confirmees));
  // The grid goes back to the band of its own list, while its frame names that of the map.
  Affiche_Departements(programme_, principale.Bande_Choisie(), contexte.Nb_Contactes);
  principale.Legende_Departements();
}

namespace Sous_Programmes {

Compte_Departements Dessine_Carte_Dpt(Programme& programme, std::string_view bande, int& total) {
  auto& carte = programme.Fenetre<Carte>();
  Efface_Cellules(programme.Principale().Grille(), kFond_Fenetre);
  Peint_Cellules(programme, bande, carte.Dep, total);
  carte.Bande_Carte.SetCaption(bande);
  return Compte_Cellules(carte.Dep);
}

}  // namespace Sous_Programmes

}  // namespace vorelio
