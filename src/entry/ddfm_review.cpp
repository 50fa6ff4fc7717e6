#include "core/text.h"
#include "entry/ddfm.h"
#include "maps/tally_painting.h"
#include "qsl/qsl_window.h"
#include "search/search_window.h"
#include "stations/log_file.h"
#include "tallies/department_tally.h"

namespace vorelio {

using namespace Sous_Programmes;

bool DDFM::Rien_De_Choisi() {
  if (!Liste_QSO.Text().empty()) return false;
  programme_.Message("Selectionnez d'abord un QSO");
  return true;
}

void DDFM::Liste_QSO_Click() { programme_.saisie.Ligne_Selection = Liste_QSO.Text(); }

// Shows the fields of the selected line that are shown and edited alike.
void DDFM::Montre_Ligne() {
  const std::string& ligne = programme_.saisie.Ligne_Selection;
  Indicatif_A.SetText(Lit_Liste(ligne, champs::Indicatif_A));
  Depart_A.SetText(Lit_Liste(ligne, champs::Depart_A));
  Locator_A.SetText(Lit_Liste(ligne, champs::Locator_A));
  Bande_A.SetText(Lit_Liste(ligne, champs::Bande_A));
  Mode_A.SetText(Lit_Liste(ligne, champs::Mode_A));
  Date_A.SetText(Lit_Liste(ligne, champs::Date_A));
  Debut_A.SetText(Lit_Liste(ligne, champs::Debut_A));
  Fin_A.SetText(Lit_Liste(ligne, champs::Fin_A));
  RSTE_A.SetText(Lit_Liste(ligne, champs::RSTE_A));
  RSTR_A.SetText(Lit_Liste(ligne, champs::RSTR_A));
  Prenom_A.SetText(Lit_Liste(ligne, champs::Prenom_A));
  QTH_A.SetText(Lit_Liste(ligne, champs::QTH_A));
}

// State 1 writes nothing: a mark of the contact shown before stays until the next reset.
void DDFM::Montre_QSL() {
  const std::string_view etat = Lit_Liste(programme_.saisie.Ligne_Selection, champs::Etat_QSL);
  if (etat == "2" || etat == "4") QSLE_A.SetText("X");
  if (etat == "3" || etat == "4") QSLR_A.SetText("X");
}

void DDFM::Liste_QSO_DblClick() {
  auto& saisie = programme_.saisie;
  saisie.Ligne_Selection = Liste_QSO.Text();
  saisie.Numero_Selection = Liste_QSO.ListIndex() + 1;
  Annonce_Numero(saisie.Numero_Selection);
  Editer.SetEnabled(true);
  Effacer.SetEnabled(true);
  Bande_A.SetEnabled(false);
  Indicatif_A.SetEnabled(false);
  Montre_Ligne();
  EnableAll({&Depart_A, &Locator_A, &Prenom_A, &QTH_A}, false);
  Montre_QSL();
  // Computed anew: the station's locator may have changed since.
  Calcule_Distance_Azimut();
  Remarques_A.SetText(Lit_Liste(saisie.Ligne_Selection, champs::Remarques_A));
  Remarques_A.SetEnabled(false);
}

void DDFM::Editer_Click() {
  auto& saisie = programme_.saisie;
  // Set before the test: a press with no selected line leaves the form waiting for `Annuler`.
  saisie.QSO_Edition = true;
  if (Rien_De_Choisi()) return;

  Montre_Ligne();
  Indicatif_A.SetEnabled(true);
  Bande_A.SetEnabled(true);
  for (Control* champ : Champs_De_La_Chaine()) champ->SetEnabled(true);
  Montre_QSL();
  QSLE_A.SetEnabled(false);
  QSLR_A.SetEnabled(false);
  Calcule_Distance_Azimut();
  Activ_A.SetListIndex(static_cast<int>(Valeur(Lit_Liste(saisie.Ligne_Selection, champs::Activ_A))));
  Remarques_A.SetText(Lit_Liste(saisie.Ligne_Selection, champs::Remarques_A));

  Enregistrer.SetEnabled(true);
  Enregistrer.SetCaption("Valider");
  EnableAll({&Recherche, &Gestion_QSL, &Effacer, &Editer}, false);
  Annonce_Numero(saisie.Numero_Selection);
  Indicatif_A.SetFocus();
}

void DDFM::Vide_Saisie() {
  for (TextField* champ : {&Indicatif_A, &Depart_A, &Locator_A, &Date_A, &Debut_A, &Fin_A, &Prenom_A, &QTH_A}) {
    champ->Clear();
    champ->SetColour(kFait);
  }
  for (TextField* report : {&RSTR_A, &RSTE_A}) {
    report->SetText("59");
    report->SetColour(kFait);
  }
  for (TextField* champ : {&QSLE_A, &QSLR_A, &Remarques_A, &Distance_A, &Azimut_A}) champ->Clear();
  EnableAll({&QSLE_A, &QSLR_A}, false);
}

void DDFM::Attend_Indicatif() {
  EnableAll({&Bande_A, &Indicatif_A}, true);
  Verrouille_Champs();
  Indicatif_A.SetFocus();
  Indicatif_A.SetColour(kSaisie);
}

void DDFM::Effacer_Click() {
  if (Rien_De_Choisi()) return;
  const std::string indicatif(Lit_Liste(Liste_QSO.Text(), champs::Indicatif_A));
  if (!programme_.Question("Effacer le QSO avec la station " + indicatif + " ?", Guard::NoFirst)) return;
  Efface_Ligne_Log(programme_);

  Vide_Saisie();
  QSLE_A.SetColour(kFait);
  Mode_A.SetText("SSB");
  Mode_A.SetColour(kFait);
  Attend_Indicatif();
  EnableAll({&Enregistrer, &Editer, &Effacer}, false);
  EnableAll({&Annuler, &Recherche}, true);
  Liste_QSO.SetListIndex(Liste_QSO.Count() - 1);
}

void DDFM::Annuler_Click() {
  const bool locator_actif = Locator_A.Enabled();
  Charge_Bande_Mode();
  Choisit_Activite();
  programme_.saisie.QSO_Edition = false;

  Vide_Saisie();
  Remarques_A.SetColour(kFait);
  for (ComboBox* liste : {&Bande_A, &Mode_A, &Activ_A}) liste->SetColour(kFait);

  Legende_Departements();
  for (const auto& cellule : Dpt) cellule->SetColour(kFait);
  Affiche_Departements(programme_, programme_.contexte.Bande_Grille, programme_.contexte.Nb_Contactes);
  Label5.SetCaption("Indicatif");

  Attend_Indicatif();
  // The locator alone stays as it was.
  Locator_A.SetEnabled(locator_actif);
  Enregistrer.SetCaption("QSO Suivant");
  EnableAll({&Enregistrer, &Editer, &Effacer}, false);
  EnableAll({&Annuler, &Recherche, &Gestion_QSL}, true);
  Annonce_Numero(programme_.contexte.Nb_QSO + 1);
}

void DDFM::Gestion_QSL_Click() {
  if (Rien_De_Choisi()) return;
  const std::string ligne(Liste_QSO.Text());
  programme_.saisie.Etat_QSL_Courant = static_cast<int>(Valeur(Lit_Liste(ligne, champs::Etat_QSL)));
  auto& qsl = programme_.Fenetre<QSL>();
  qsl.Montre_QSO(ligne);
  qsl.Show();
}

void DDFM::Recherche_Click() { programme_.Fenetre<Recherche_Indicatif>().Show(); }

void DDFM::Reprend_Apres_QSL() {
  auto& contexte = programme_.contexte;
  Affiche_Departements(programme_, contexte.Bande_Grille, contexte.Nb_Contactes);
  Option1(1).SetOn();
  Charge_Log(programme_, contexte.Station_Indicatif);
  Liste_QSO.SetListIndex(Liste_QSO.Count() - 1);
}

}  // namespace vorelio
