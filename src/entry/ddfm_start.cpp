#include <algorithm>

#include "core/bands.h"
#include "core/text.h"
#include "entry/ddfm.h"
#include "forms/clock_text.h"
#include "stations/activities.h"
#include "stations/log_file.h"
#include "stations/station_form.h"
#include "tallies/department_tally.h"

namespace vorelio {

using namespace Sous_Programmes;

DDFM::DDFM(Programme& programme)
    : Fenetre_Principale(programme, "DDFM", "Vorelio"),
      Bande_A(*this, "Bande_A", ComboBox::Kind::Editable, "144 MHz"),
      Mode_A(*this, "Mode_A", ComboBox::Kind::Editable),
      Activ_A(*this, "Activ_A", ComboBox::Kind::Choice),
      Frame3(*this, "Frame3", "Double cliquez sur un département pour afficher les QSO"_t),
      Option1(*this, "Option1", 0, 2, "", "Option1"),
      Label27(*this, "Label27", "    Dpt Contacté"_t),
      Label26(*this, "Label26", "   QSL envoyée"_t),
      Label30(*this, "Label30", "  QSL Reçue"_t),
      Label1(*this, "Label1", "   Dpt Confirmé"_t),
      Mnu_Indicatif(*this, "Mnu_Indicatif", "Indicatif et locator de la station"),
      Mnu_Val_Sauve(*this, "Mnu_Val_Sauve", "Parametres de sauvegarde"),
      Mnu_Restauration(*this, "Mnu_Restauration", "Restauration de la derniere sauvegarde"),
      Mnu_Restau_Activite(*this, "Mnu_Restau_Activite", "Restauration des activités"_t),
      Mnu_RAZ_All(*this, "Mnu_RAZ_All", "Remise a zéro des fichiers log, Départements et Locators"_t),
      Mnu_Quitter(*this, "Mnu_Quitter", "Quitter Vorelio"),
      Mnu_Auto_Oui(*this, "Mnu_Auto_Oui", "Oui"),
      Mnu_Auto_Non(*this, "Mnu_Auto_Non", "Non"),
      Mnu_UTC_Oui(*this, "Mnu_UTC_Oui", "Oui"),
      Mnu_UTC_Non(*this, "Mnu_UTC_Non", "Non"),
      Mnu_Sep_Oui(*this, "Mnu_Sep_Oui", "Oui"),
      Mnu_Sep_Non(*this, "Mnu_Sep_Non", "Non"),
      Mnu_Exp_Oui(*this, "Mnu_Exp_Oui", "Oui"),
      Mnu_Exp_Non(*this, "Mnu_Exp_Non", "Non"),
      Mnu_Nomenclature(*this, "Mnu_Nomenclature", "Edition du fichier Nomenclature"),
      Mnu_Prefixe(*this, "Mnu_Prefixe", "Ajout d'un prefixe"),
      Mnu_Ajout_Activite(*this, "Mnu_Ajout_Activite", "Ajout d'une activité"_t),
      Mnu_MAJ_Prefixe(*this, "Mnu_MAJ_Prefixe", "Mise a jour des prefixes contactés"_t),
      Mnu_MAJ_Departement(*this, "Mnu_MAJ_Departement", "Mise a jour des départements contactés"_t),
      Mnu_MAJ_Locator(*this, "Mnu_MAJ_Locator", "Mise a jour des locators contactés"_t),
      Mnu_Stat_Dist(*this, "Mnu_Stat_Dist", "Distances des stations contactées"_t),
      Mnu_Stat_Prefixe(*this, "Mnu_Stat_Prefixe", "Des prefixes contactés"_t),
      Mnu_Stat_DFCF(*this, "Mnu_Stat_DFCF", "Des activations Contactées"_t),
      Mnu_Print_Activite(*this, "Mnu_Print_Activite", "le log d'une activité"_t),
      Mnu_Mode_Emploi(*this, "Mnu_Mode_Emploi", "Mode d'emploi"),
      Mnu_Historique(*this, "Mnu_Historique", "Historique"),
      Mnu_A_Propos(*this, "Mnu_A_Propos", "A Propos de") {
  for (int i = 0; i < Dpt.Count(); ++i) {
    Dpt(i).SetText(Texte_Cellule(i));
    Dpt(i).SetReadOnly(true);
  }
  Option1(0).SetCaption("Carré locator"_t);
  Option1(1).SetCaption("Dpt");
  Option1(1).SetOn();
  Label27.SetColour(kDpt_Contacte);
  Label26.SetColour(kDpt_QSL_Envoyee);
  Label30.SetColour(kDpt_QSL_Recue);
  Label1.SetColour(kDpt_Confirme);
  for (TextField* affichage : {&Distance_A, &Azimut_A, &QSLE_A, &QSLR_A}) affichage->SetReadOnly(true);
  EnableAll({&QSLE_A, &QSLR_A, &Editer, &Effacer, &Enregistrer}, false);
  Verrouille_Champs();
  Liste_QSO_Bis.SetVisible(false);
  Relie_Evenements();
}

void DDFM::Relie_Evenements() {
  const auto touche = [this](auto& champ, void (DDFM::*procedure)(int&)) {
    champ.KeyPress = [this, procedure](int& code) { (this->*procedure)(code); };
  };
  const auto clic = [this](auto& controle, void (DDFM::*procedure)()) {
    controle.Click = [this, procedure] { (this->*procedure)(); };
  };

  Timer1.Tick = [this] { Timer1_Timer(); };

  touche(Bande_A, &DDFM::Bande_A_KeyPress);
  touche(Indicatif_A, &DDFM::Indicatif_A_KeyPress);
  touche(Depart_A, &DDFM::Depart_A_KeyPress);
  touche(Locator_A, &DDFM::Locator_A_KeyPress);
  touche(Mode_A, &DDFM::Mode_A_KeyPress);
  touche(Activ_A, &DDFM::Activ_A_KeyPress);
  touche(Date_A, &DDFM::Date_A_KeyPress);
  touche(Debut_A, &DDFM::Debut_A_KeyPress);
  touche(Fin_A, &DDFM::Fin_A_KeyPress);
  touche(RSTE_A, &DDFM::RSTE_A_KeyPress);
  touche(RSTR_A, &DDFM::RSTR_A_KeyPress);
  touche(Prenom_A, &DDFM::Prenom_A_KeyPress);
  touche(QTH_A, &DDFM::QTH_A_KeyPress);
  touche(Remarques_A, &DDFM::Remarques_A_KeyPress);
  for (TextField* champ : {&Indicatif_A, &Depart_A, &Locator_A}) champ->DblClick = [champ] { champ->Clear(); };

  clic(Bande_A, &DDFM::Bande_A_Click);
  clic(Enregistrer, &DDFM::Enregistrer_Click);
  clic(Annuler, &DDFM::Annuler_Click);
  clic(Editer, &DDFM::Editer_Click);
  clic(Effacer, &DDFM::Effacer_Click);
  clic(Gestion_QSL, &DDFM::Gestion_QSL_Click);
  clic(Recherche, &DDFM::Recherche_Click);
  clic(Liste_QSO, &DDFM::Liste_QSO_Click);
  Liste_QSO.DblClick = [this] { Liste_QSO_DblClick(); };
  clic(Option1(0), &DDFM::Option1_Click);
  clic(Option1(1), &DDFM::Option1_Click);
  clic(Bande_DDFM, &DDFM::Bande_DDFM_Click);
  clic(Carre_DDFM, &DDFM::Carre_DDFM_Click);
  for (int i = 0; i < Dpt.Count(); ++i) Dpt(i).DblClick = [this, i] { Dpt_DblClick(i); };

  Relie_Menus();
}

void DDFM::Form_Load() {
  auto& contexte = programme_.contexte;
  const auto& reglages = programme_.reglages;

  Centre();
  for (const auto bande : kBandes) {
    Bande_A.AddItem(bande);
    Bande_DDFM.AddItem(bande);
  }
  for (const auto mode : kModes) Mode_A.AddItem(mode);
  for (const auto champ : kChamps_Locator) Carre_DDFM.AddItem(champ);
  Show();

  contexte.Station_Indicatif = reglages.Commun("Indicatif Station", kStation_Modele);
  contexte.Station_Locator = reglages.Commun("Locator Station", kSans_Locator);
  Charge_Bande_Mode();
  contexte.Bande_Courante = Bande_A.Text();

  Montre_Options();
  const bool separateur = reglages.Booleen_Station("Separateur", false);
  Mnu_Sep_Oui.SetChecked(separateur);
  Mnu_Sep_Non.SetChecked(!separateur);
  const bool exporter = reglages.Booleen_Station("Exporter QSO", false);
  Mnu_Exp_Oui.SetChecked(exporter);
  Mnu_Exp_Non.SetChecked(!exporter);
  Exporter.SetEnabled(exporter);

  Affiche_Station();
  programme_.saisie.QSO_Edition = false;
  Enregistrer.SetEnabled(false);

  contexte.Bande_Grille = contexte.Bande_Courante;
  Carre_DDFM.SetEnabled(false);
  Bande_DDFM.SetEnabled(true);
  Bande_DDFM.SetText(contexte.Bande_Courante);
  Peint_Departements();
  // The log isn't read yet: number 1 stands here until it is.
  Annonce_Numero(contexte.Nb_QSO + 1);
  SetTitle(std::string("Vorelio Revision ") + Revision_Programme);

  Indicatif_A.SetEnabled(true);
  Bande_A.SetColour(kFait);
  Indicatif_A.SetFocus();
  Indicatif_A.SetColour(kSaisie);

  if (contexte.Station_Indicatif == kStation_Modele) {
    programme_.Message("Premiere installation, vous devez entrer votre Indicatif et votre Locator");
    programme_.Fenetre<Station>().ShowModal();
  }

  Charge_Log(programme_, contexte.Station_Indicatif);
  Liste_QSO.SetListIndex(contexte.Nb_QSO - 1);
  // The list and the file below have different defaults, which shows only while the key is absent.
  Charge_Activites(5);
  Ecrit_Fichier_Activites(programme_);

  reglages.Ecrit_Station("Revision", Revision_Programme);
  reglages.Ecrit_Commun("Chemin Repertoire", programme_.Chemin_Programme());

  contexte.Chemin_Sauvegarde = reglages.Station("Chemin Sauvegarde", programme_.Chemin_Programme());
  contexte.Numero_Sauvegarde = Nombre(reglages.Station("Numero Sauvegarde", "1"));
  contexte.Delta_Sauvegarde = reglages.Station("Delta Sauvegarde", "10");

  // What acts on a selected contact is to refuse until one is picked.
  Liste_QSO.ShowEnd();
  programme_.saisie.Ligne_Selection.clear();
}

void DDFM::Affiche_Station() {
  const auto& contexte = programme_.contexte;
  std::string affichage = contexte.Station_Indicatif;
  std::replace(affichage.begin(), affichage.end(), '_', '/');
  I_Station.SetCaption(affichage);
  L_Station.SetCaption(contexte.Station_Locator);
  Frame5.SetCaption("Vorelio de " + affichage);
}

void DDFM::Charge_Bande_Mode() {
  programme_.contexte.Bande_Index = programme_.reglages.Nombre_Station("bande Utilisee", 0);
  Bande_A.SetListIndex(programme_.contexte.Bande_Index);
  Mode_A.SetListIndex(programme_.reglages.Nombre_Station("Mode Utilise", 0));
}

void DDFM::Charge_Activites(int defaut_nombre, std::string_view defaut_nom) {
  const auto& reglages = programme_.reglages;
  programme_.contexte.Nb_Activite = reglages.Nombre_Activites(defaut_nombre);
  Activ_A.ClearItems();
  for (int n = 0; n < programme_.contexte.Nb_Activite; ++n)
    Activ_A.AddItem(reglages.Station(Cle_Activite(n), defaut_nom));
  Choisit_Activite();
}

void DDFM::Choisit_Activite() {
  // A list that has been restored can be shorter than the one that the choice was made from.
  const int choix = programme_.reglages.Nombre_Station("Activite", 0);
  Activ_A.SetListIndex(choix >= 0 && choix < Activ_A.Count() ? choix : -1);
}

void DDFM::Montre_Options() {
  const bool utc = programme_.reglages.Booleen_Station("Heure UTC", true);
  Mnu_UTC_Oui.SetChecked(utc);
  Mnu_UTC_Non.SetChecked(!utc);
  const bool automatique = programme_.reglages.Booleen_Station("Date Automatique", true);
  Mnu_Auto_Oui.SetChecked(automatique);
  Mnu_Auto_Non.SetChecked(!automatique);
  Label15.SetCaption(automatique ? "Date automatique" : "Date manuelle");
}

std::vector<Control*> DDFM::Champs_De_La_Chaine() {
  return {&Depart_A, &Locator_A, &Mode_A, &Activ_A,  &Date_A, &Debut_A,
          &Fin_A,    &RSTE_A,    &RSTR_A, &Prenom_A, &QTH_A,  &Remarques_A};
}

void DDFM::Annonce_Numero(int numero) { Frame4.SetCaption("QSO numéro "_t + std::to_string(numero)); }

void DDFM::Verrouille_Champs() {
  for (Control* champ : Champs_De_La_Chaine()) champ->SetEnabled(false);
}

void DDFM::Avance(Control& passe, Control& suivant) {
  passe.SetColour(kFait);
  suivant.SetColour(kSaisie);
  suivant.SetEnabled(true);
  suivant.SetFocus();
}

void DDFM::Timer1_Timer() {
  Label37.SetCaption(Heure_UTC(programme_).substr(0, 5) + " Utc");
  Label34.SetCaption(Heure_Locale(programme_).substr(0, 5) + " Loc");
  Label33.SetCaption(Mnu_UTC_Oui.Checked() ? Date_UTC(programme_) : Date_Locale(programme_));
}

}  // namespace vorelio
