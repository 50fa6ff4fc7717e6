#include "core/bands.h"
#include "core/text.h"
#include "entry/ddfm.h"
#include "exchange/award_export_window.h"
#include "forms/clock_text.h"
#include "maintenance/backup.h"
#include "stations/log_file.h"
#include "tallies/callsign_directory.h"
#include "tallies/department_tally.h"
#include "tallies/locator_tally.h"
#include "tallies/prefix_tally.h"

namespace vorelio {

using namespace Sous_Programmes;

namespace {

/// A log of one contact: 199 characters and the line's end.
constexpr std::uint64_t kTaille_Un_QSO = kLargeur_Ligne + kFin_De_Ligne.size();

}  // namespace

void DDFM::Enregistrer_Click() {
  NB_Debug.SetCaption("1");
  int erreur = 0;
  Verifie_Date(Date_A.Text(), erreur);
  if (erreur == 1) return programme_.Message("Attention le format date doit etre jj/mm/aa");
  Verifie_Heure(Debut_A.Text(), erreur);
  if (erreur == 1) return programme_.Message("Attention le format date doit etre hh:mm");

  if (!programme_.saisie.QSO_Edition) {
    Enregistre_Nouveau();
  } else if (!Enregistre_Edition()) {
    return;
  }
  Prepare_Suivant();
}

// The order is fixed: a backup holds the tallies of this contact but not yet its line, and a crash leaves the tallies
// ahead of the log, never behind.
void DDFM::Enregistre_Nouveau() {
  auto& contexte = programme_.contexte;
  auto& saisie = programme_.saisie;
  NB_Debug.SetCaption("2");
  if (saisie.Prefixe_Nouveau == "O") {
    std::string code, pays;
    Maj_Prefixe(programme_, Indicatif_A.Text(), contexte.Bande_Courante, code, pays, saisie.Prefixe_Courant);
  }
  Question_Repertoire();
  if (!saisie.Code_Dpt.empty() && Valeur(saisie.Code_Dpt) == 0) {
    NB_Debug.SetCaption("4");
    Maj_Departement(programme_, saisie.Depart_Saisi, "1", contexte.Bande_Courante);
  }
  if (!saisie.Carre_Nouveau.empty()) {
    NB_Debug.SetCaption("5");
    Maj_Locator(programme_, saisie.Carre_Nouveau, "1", contexte.Bande_Courante);
  }
  NB_Debug.SetCaption("6");
  Peint_Departements();
  Option1(1).SetOn();

  const bool automatique = Mnu_Auto_Oui.Checked();
  if (automatique)
    Fin_A.SetText((Mnu_UTC_Oui.Checked() ? Heure_UTC(programme_) : Heure_Locale(programme_)).substr(0, 5));

  // The lowest band is judged by its field, the others by the band confirmed last: a band picked in the middle of an
  // entry reaches the line alone.
  const bool sans_locator =
      Bande_A.Text() == kBandes[0] || (contexte.Bande_Courante != kBandes[0] && Bande_HF(contexte.Bande_Courante));
  if (sans_locator) Locator_A.Clear();
  Champs_QSO qso = Champs_Saisis();
  if (qso.Activ_A == "-1") programme_.Message("Debug : Activation_A = -1");
  const std::string ligne = Construit_Ligne(qso);

  Enregistrer.SetCaption("QSO Suivant");
  Enregistrer.SetEnabled(false);
  ++contexte.Nb_QSO;
  Annonce_Numero(contexte.Nb_QSO + 1);

  if (contexte.Numero_Sauvegarde + Valeur(contexte.Delta_Sauvegarde) <= contexte.Nb_QSO) {
    Sauvegarde_Auto(programme_);
    programme_.reglages.Ecrit_Station("Numero Sauvegarde", Texte_Nombre(contexte.Nb_QSO));
    contexte.Numero_Sauvegarde = contexte.Nb_QSO;
  }

  if (automatique) {
    NB_Debug.SetCaption("7");
    Ajoute_Ligne_Log(programme_, ligne);
    Liste_QSO.AddItem(Colonne_Numero(contexte.Nb_QSO) + ligne);
  } else {
    NB_Debug.SetCaption("8");
    Insere_QSO_Log(programme_, ligne);
  }
  Liste_QSO.SetListIndex(Liste_QSO.Count() - 1);
  // Contacts that are typed in afterwards, with a date of their own, aren't offered.
  if (automatique && Mnu_Exp_Oui.Checked() && Activite_Exportable(Activ_A.Text())) Propose_Export();
  Editer.SetEnabled(false);
  Effacer.SetEnabled(false);
}

void DDFM::Propose_Export() {
  // One left open still shows the contact of its opening.
  if (auto* ouverte = programme_.Ouverte<Exporter_QSO>()) ouverte->Unload();
  programme_.Fenetre<Exporter_QSO>().ShowModal();
}

void DDFM::Question_Repertoire() {
  auto& saisie = programme_.saisie;
  if (Locator_A.Text() == saisie.Locator_Nomenclature && saisie.Depart_Saisi == saisie.Depart_Nomenclature) return;
  if (saisie.Depart_Nomenclature.empty()) saisie.Depart_Nomenclature = "XX";
  if (saisie.Locator_Nomenclature.empty()) saisie.Locator_Nomenclature = "XXXXXX";
  const bool oui = programme_.Question(
      "Remplacer " + saisie.Indicatif_Saisi + " Département "_t + Forme_Affichee(saisie.Depart_Nomenclature) +
      " Locator " + saisie.Locator_Nomenclature + "\r\n\r\n      par " + saisie.Indicatif_Saisi + " département "_t +
      Forme_Affichee(saisie.Depart_Saisi) + " Locator " + Locator_A.Text() + " ?");
  if (!oui) return;
  NB_Debug.SetCaption("3");
  Maj_Nomenclature(programme_, saisie.Indicatif_Saisi, saisie.Depart_Saisi, Locator_A.Text());
}

Champs_QSO DDFM::Champs_Saisis() const {
  Champs_QSO qso;
  qso.Date_A = Date_A.Text();
  qso.Indicatif_A = Indicatif_A.Text();
  qso.Debut_A = Debut_A.Text();
  qso.Fin_A = Fin_A.Text();
  qso.Depart_A = Depart_A.Text();
  qso.Locator_A = Locator_A.Text();
  qso.Bande_A = Bande_A.Text();
  qso.Mode_A = Mode_A.Text();
  qso.RSTE_A = RSTE_A.Text();
  qso.RSTR_A = RSTR_A.Text();
  qso.QTH_A = QTH_A.Text();
  qso.Prenom_A = Prenom_A.Text();
  qso.Distance_A = Distance_A.Text();
  qso.Azimut_A = Azimut_A.Text();
  qso.Activ_A = Texte_Nombre(Activ_A.ListIndex());
  qso.Remarques_A = Remarques_A.Text();
  return qso;
}

// A correction reaches the log line alone; the tallies follow when they are rebuilt.
bool DDFM::Enregistre_Edition() {
  auto& contexte = programme_.contexte;
  auto& saisie = programme_.saisie;
  NB_Debug.SetCaption("9");
  if (Bande_HF(Bande_A.Text())) Locator_A.Clear();
  Champs_QSO qso = Champs_Saisis();
  qso.Indicatif_A = Majuscules(qso.Indicatif_A);
  qso.Locator_A = Majuscules(qso.Locator_A);
  // Filled up to its width, or a line cut short would shift what follows.
  qso.Bloc_QSL = Complete(Champ_Liste(Liste_QSO.Text(), champs::Bloc_QSL), champs::Bloc_QSL.largeur);
  if (qso.Activ_A == "-1") programme_.Message("Debug : Activation_A = -1");
  const std::string ligne = Colonne_Numero(saisie.Numero_Selection) + Construit_Ligne(qso);

  if (programme_.Disque().Size(programme_.Chemin_Log(contexte.Station_Indicatif)) == kTaille_Un_QSO) {
    programme_.Message("Il doit y avoir au moins DEUX QSO d'enregistré pour pouvoir modifier le premier QSO"_t);
    return false;
  }
  NB_Debug.SetCaption("10");
  Remplace_QSO_Log(programme_, saisie.Ligne_Selection, ligne);
  NB_Debug.SetCaption("12");
  Liste_QSO.SetListIndex(saisie.Numero_Selection - 1);

  EnableAll({&Indicatif_A, &Bande_A, &Recherche, &Annuler, &Gestion_QSL}, true);
  EnableAll({&QSLR_A, &QSLE_A, &Enregistrer, &Editer, &Effacer}, false);
  Verrouille_Champs();
  QSLR_A.Clear();
  QSLE_A.Clear();
  Enregistrer.SetCaption("QSO Suivant");
  saisie.QSO_Edition = false;
  Annonce_Numero(contexte.Nb_QSO + 1);
  return true;
}

void DDFM::Prepare_Suivant() {
  NB_Debug.SetCaption("13");
  Charge_Bande_Mode();
  for (TextField* champ :
       {&Indicatif_A, &Depart_A, &Locator_A, &Debut_A, &Fin_A, &Prenom_A, &QTH_A, &Distance_A, &Azimut_A, &Remarques_A})
    champ->Clear();
  // In manual date mode the date serves for the next contact.
  if (Mnu_Auto_Oui.Checked()) Date_A.Clear();
  Choisit_Activite();
  RSTR_A.SetText("59");
  RSTE_A.SetText("59");
  Verrouille_Champs();
  Label5.SetCaption("Indicatif");
  Depart_A.SetColour(kFait);
  Avance(Bande_A, Indicatif_A);
}

}  // namespace vorelio
