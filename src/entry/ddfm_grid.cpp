#include "core/bands.h"
#include "core/text.h"
#include "entry/ddfm.h"
#include "maps/tally_painting.h"
#include "search/department_window.h"
#include "tallies/department_tally.h"
#include "tallies/locator_tally.h"

namespace vorelio {

using namespace Sous_Programmes;

std::string DDFM::Texte_Cellule(int cellule) {
  constexpr int kAncienne_Corse = 20;
  if (cellule == kAncienne_Corse) return "X";
  return cellule > 97 ? "" : Forme_Affichee(Deux_Chiffres(cellule));
}

void DDFM::Legende_Departements() {
  const auto& contexte = programme_.contexte;
  Frame3.SetCaption(Texte_Nombre_Blanc(contexte.Nb_Contactes) + " Départements sur "_t + contexte.Bande_Grille);
}

void DDFM::Peint_Departements() {
  auto& contexte = programme_.contexte;
  Affiche_Departements(programme_, contexte.Bande_Grille, contexte.Nb_Contactes);
  Legende_Departements();
}

// Departments of the band of the list.
void DDFM::Grille_Departements() {
  programme_.contexte.Bande_Grille = Bande_DDFM.Text();
  Peint_Departements();
}

// Squares of the band and the field of the lists.
void DDFM::Grille_Carres() {
  auto& contexte = programme_.contexte;
  Affiche_Locators(programme_, Bande_DDFM.Text(), Carre_DDFM.Text(), contexte.Nb_Contactes);
  Frame3.SetCaption(Texte_Nombre_Blanc(contexte.Nb_Contactes) + " moyens carrés dans le carré "_t + Carre_DDFM.Text());
}

void DDFM::Repeint_Grille() { Option1(1).Set() ? Peint_Departements() : Grille_Carres(); }

bool DDFM::Bande_Sans_Carres() {
  if (!Bande_HF(Bande_DDFM.Text())) return false;
  programme_.Message("Pas de gestion des carrés locator pour les bandes HF"_t);
  return true;
}

void DDFM::Option1_Click() {
  const bool departements = Option1(1).Set();
  if (!departements) {
    programme_.contexte.Bande_Grille = Bande_DDFM.Text();
    if (Bande_Sans_Carres()) return;
  }
  for (int i = 0; i < Dpt.Count(); ++i) Dpt(i).SetText(departements ? Texte_Cellule(i) : Deux_Chiffres(i));
  Carre_DDFM.SetEnabled(!departements);
  if (departements) {
    Grille_Departements();
    Label27.SetCaption("    Dpt Contacté"_t);
    Label1.SetCaption("    Dpt Confirmé"_t);
  } else {
    Grille_Carres();
    Label27.SetCaption("   Carré Contacté"_t);
    Label1.SetCaption("   Carré Confirmé"_t);
  }
}

void DDFM::Bande_DDFM_Click() {
  if (Option1(1).Set()) return Grille_Departements();
  if (Bande_Sans_Carres()) return;
  Carre_DDFM.SetEnabled(true);
  Grille_Carres();
}

// No test of the band: on one without squares each line of the field is counted and none is painted.
void DDFM::Carre_DDFM_Click() {
  Carre_DDFM.SetEnabled(true);
  Grille_Carres();
}

// A cell of squares opens the department of its number as well.
void DDFM::Dpt_DblClick(int cellule) {
  auto& fenetre = programme_.Fenetre<Affiche_Dpt>();
  fenetre.Montre_Departement(cellule);
  fenetre.ShowModal();
}

}  // namespace vorelio
