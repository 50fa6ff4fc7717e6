#include "maps/activity_map.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/bands.h"
#include "core/log_line.h"
#include "maps/map_cells.h"
#include "stations/activities.h"
#include "stations/log_file.h"

namespace vorelio {

using namespace Sous_Programmes;

Carte_Acti::Carte_Acti(Programme& programme)
    : Form(programme, "Carte_Acti", "Carte_Activations"),
      Picture1(*this, "Picture1", kImage_France, kLargeur_France, kHauteur_France) {
  Pose_Departements(Picture1, Dep, Carte_France::Activites);
  Pose_Legende(Text1, kDpt_Contacte);
  Pose_Legende(Text5, kDpt_QSL_Envoyee);
  Pose_Legende(Text4, kDpt_QSL_Recue);
  Pose_Legende(Text3, kDpt_Confirme);
  Aff_Carte.Click = [this] { Aff_Carte_Click(); };
}

void Carte_Acti::Form_Load() {
  Centre();
  Bande_A.AddItem(kToutes_Bandes);
  for (const auto bande : kBandes) Bande_A.AddItem(bande);
  for (const std::string& nom : Noms_Activites(programme_, "err3")) Activite_A.AddItem(nom);
  Bande_A.SetListIndex(0);
  Activite_A.SetListIndex(0);
}

void Carte_Acti::Aff_Carte_Click() {
  if (Bande_A.Text().empty()) return programme_.Message("Selectionnez une bande");
  if (Activite_A.Text().empty()) return programme_.Message("Selectionnez une Activité"_t);
  auto& contexte = programme_.contexte;
  contexte.Bande_Grille = Bande_A.Text();
  Label6.SetCaption(Activite_A.Text());
  // The list begins with activity 1.
  const std::string activite = std::to_string(std::max(Activite_A.ListIndex(), 0) + 1);
  const Compte_Departements compte =
      Dessine_Carte_Activite(programme_, Bande_A.Text(), activite, contexte.Nb_Contactes);
  NB_Activ.SetCaption(Texte_Nombre(contexte.Nb_Contactes));
  Label15.SetCaption(Texte_Nombre(compte.sans));
  Label14.SetCaption(Texte_Nombre(compte.envoyees));
  Label13.SetCaption(Texte_Nombre(compte.recues));
  Label12.SetCaption(Texte_Nombre(compte.confirmees));
  TotDep.SetCaption(Texte_Nombre(compte.sans + compte.envoyees + compte.recues + compte.confirmees));
}

namespace {

/// What a cell can show, from the least to the most.
constexpr std::array kRangs = {kFond_Fenetre, kDpt_Contacte, kDpt_QSL_Envoyee, kDpt_QSL_Recue, kDpt_Confirme};

/// Raises a cell's colour to that of a QSL state; never lowers it.
void Monte_Couleur(TextField& cellule, std::string_view etat) {
  Couleur nouvelle{};
  if (Couleur_Code(etat, nouvelle) && std::ranges::find(kRangs, nouvelle) > std::ranges::find(kRangs, cellule.Colour()))
    cellule.SetColour(nouvelle);
}

}  // namespace

namespace Sous_Programmes {

Compte_Departements Dessine_Carte_Activite(Programme& programme, std::string_view bande, std::string_view activite,
                                           int& total) {
  auto& carte = programme.Fenetre<Carte_Acti>();
  const std::string journal = Texte_Log(programme);
  carte.Bande_Carte.SetCaption(bande);
  total = 0;
  Efface_Cellules(carte.Dep, kFond_Fenetre);
  for (Lecteur_Lignes lignes(journal); !lignes.Fini();) {
    const std::string_view ligne = lignes.Suivante();
    if (Lit_Log(ligne, champs::Activ_A) != activite) continue;
    if (bande != kToutes_Bandes && Lit_Log(ligne, champs::Bande_A) != bande) continue;
    ++total;
    const std::string_view departement = Champ_Log(ligne, champs::Depart_Court);
    if (departement == "  ") continue;
    Monte_Couleur(carte.Dep(Cellule_Departement(departement)), Champ_Log(ligne, champs::Etat_QSL));
  }
  return Compte_Cellules(carte.Dep);
}

}  // namespace Sous_Programmes

}  // namespace vorelio
