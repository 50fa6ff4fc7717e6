#include "core/bands.h"
#include "core/text.h"
#include "entry/ddfm.h"
#include "entry/distance_azimuth.h"
#include "geo/locator.h"
#include "tallies/callsign_directory.h"
#include "tallies/department_tally.h"
#include "tallies/locator_tally.h"
#include "tallies/prefix_tally.h"

namespace vorelio {

using namespace Sous_Programmes;

/// Enter outside an edit: only then a field of the chain acts.
bool DDFM::Acceptee(int touche) const { return touche == kEntree && !programme_.saisie.QSO_Edition; }

bool DDFM::Trop_Long(const Control& champ, std::size_t limite, const std::string& message) {
  if (champ.Words().size() <= limite) return false;
  programme_.Message(message);
  return true;
}

void DDFM::Bande_A_Click() {
  // A band picked with the mouse blocks the callsign until it is confirmed with Enter.
  Indicatif_A.SetColour(kFait);
  Indicatif_A.SetEnabled(false);
  Bande_A.SetColour(kSaisie);
}

void DDFM::Bande_A_KeyPress(int& touche) {
  if (!Acceptee(touche)) return;
  auto& contexte = programme_.contexte;
  contexte.Bande_Courante = Bande_A.Text();
  Bande_DDFM.SetListIndex(Bande_A.ListIndex() < 0 ? 0 : Bande_A.ListIndex());
  Legende_Departements();
  if (Indice_Bande(contexte.Bande_Courante) < 0) {
    programme_.Message("Attention vous ne pouver selectionner que les bandes proposées"_t);
    // This form with its capital H is no row of the list either: the user has to pick one.
    Bande_A.SetText("144 MHz");
    return;
  }
  Option1(1).SetOn();
  Avance(Bande_A, Indicatif_A);
  programme_.reglages.Ecrit_Station("bande Utilisee", Texte_Nombre(Bande_A.ListIndex()));
}

void DDFM::Indicatif_A_KeyPress(int& touche) {
  if (!Acceptee(touche)) {
    touche = Touche_Majuscule(touche);
    return;
  }
  auto& saisie = programme_.saisie;
  const std::string& bande = programme_.contexte.Bande_Courante;
  if (Indicatif_A.Text().empty() || Indicatif_A.Text() == kFin_De_Ligne) {
    programme_.Message("Attention vous devez entrer un indicatif");
    return;
  }
  if (Trop_Long(Indicatif_A, 12, "Attention 12 caracteres maxi pour l'indicatif")) return;
  saisie.Indicatif_Saisi = Majuscules(Indicatif_A.Text());

  Cherche_Indicatif();

  // An unknown prefix counts as new on the band, and as not French.
  std::string code, pays, prefixe;
  Cherche_Prefixe(programme_, saisie.Indicatif_Saisi, bande, code, pays, prefixe);
  saisie.Prefixe_Nouveau = Valeur(code) == 0 ? "O" : "N";
  saisie.Prefixe_Courant = prefixe;

  Cherche_Nomenclature(programme_, saisie.Indicatif_Saisi, saisie.Depart_Saisi, saisie.Locator_Repertoire);
  saisie.Depart_Nomenclature = saisie.Depart_Saisi;
  saisie.Locator_Nomenclature = saisie.Locator_Repertoire;
  saisie.Depart_Saisi = Forme_Affichee(saisie.Depart_Saisi);
  Depart_A.SetText(saisie.Depart_Saisi);
  Locator_A.SetText(saisie.Locator_Repertoire);

  if (Prefixe_Francais(prefixe)) return Avance(Indicatif_A, Depart_A);
  Depart_A.SetColour(kFait);
  if (Bande_VHF(bande)) return Avance(Indicatif_A, Locator_A);
  Avance(Indicatif_A, Mode_A);
}

void DDFM::Cherche_Indicatif() {
  for (const std::string_view ligne : Liste_QSO.Items()) {
    if (Lit_Liste(ligne, champs::Indicatif_A) != Indicatif_A.Text()) continue;
    Prenom_A.SetText(Lit_Liste(ligne, champs::Prenom_A));
    constexpr int kDate_Et_Ecart = champs::Date_A.largeur + champs::Date_A.ecart;
    Label5.SetCaption("Contacté le "_t.append(Rogne(Coupe(ligne, 1 + kColonnes_Numero, kDate_Et_Ecart))));
    return;
  }
  if (Liste_QSO.Count() > 0) Label5.SetCaption("Nouvel indicatif");
}

void DDFM::Depart_A_KeyPress(int& touche) {
  if (touche != kEntree) return;
  if (Trop_Long(Depart_A, 2, "Attention 2 caracteres pour le departement")) return;
  auto& saisie = programme_.saisie;
  if (saisie.QSO_Edition) return;

  if (Depart_A.Text() == "2A") Depart_A.SetText("2a");
  if (Depart_A.Text() == "2B") Depart_A.SetText("2b");
  saisie.Depart_Saisi = Forme_Pointage(Depart_A.Text());

  std::string nom, ligne;
  Cherche_Departement(programme_, saisie.Depart_Saisi, saisie.Code_Dpt, nom, programme_.contexte.Bande_Courante, ligne);
  if (saisie.Code_Dpt == "0") {
    programme_.Message("Attention nouveau département le "_t + Forme_Affichee(saisie.Depart_Saisi) + " " + nom);
    Dpt(static_cast<int>(Valeur(saisie.Depart_Saisi))).SetColour(kDpt_Contacte);
  }

  if (!Bande_VHF(programme_.contexte.Bande_Courante)) return Avance(Depart_A, Mode_A);
  Locator_A.SetText(saisie.Locator_Repertoire);
  Avance(Depart_A, Locator_A);
}

void DDFM::Locator_A_KeyPress(int& touche) {
  if (!Acceptee(touche)) {
    touche = Touche_Majuscule(touche);
    return;
  }
  const std::string& locator = Locator_A.Text();
  if (!locator.empty()) {
    if (locator.size() != 6) return programme_.Message("Attention 6 caracteres pour le locator");
    int erreur = 0;
    Verifie_Locator(locator, erreur);
    if (erreur == 1) return programme_.Message("Erreur dans la saisie du locator");
  }
  Locator_A.SetColour(kFait);
  Mode_A.SetColour(kSaisie);

  if (!locator.empty()) {
    auto& saisie = programme_.saisie;
    saisie.Carre_Nouveau.clear();
    std::string code, ligne;
    Cherche_Locator(programme_, locator, code, programme_.contexte.Bande_Courante, ligne);
    if (code == "0") {
      programme_.Message("Attention nouveau moyen carré le "_t + locator.substr(0, 4));
      saisie.Carre_Nouveau = locator.substr(0, 4);
    }
  }
  Calcule_Distance_Azimut();
  Avance(Locator_A, Mode_A);
}

void DDFM::Calcule_Distance_Azimut() {
  const std::string& ici = L_Station.Caption();
  std::string la_bas = Locator_A.Text();
  if (la_bas.empty() || la_bas == ici) {
    Azimut_A.SetText("?");
    Distance_A.SetText(la_bas.empty() ? "?" : "0");
    return;
  }
  Calcule_Azimut(programme_, ici, la_bas);
  Calcule_Distance(programme_, ici, la_bas);
  Azimut_A.SetText(Texte_Nombre(programme_.saisie.Azimut));
  Distance_A.SetText(programme_.saisie.Distance_Texte);
}

void DDFM::Mode_A_KeyPress(int& touche) {
  if (!Acceptee(touche)) return;
  // The box says 6, the limit is the log column's 7.
  if (Trop_Long(Mode_A, 7, "Attention 6 caracteres maxi pour le mode de trafic")) return;
  Avance(Mode_A, Activ_A);
  programme_.reglages.Ecrit_Station("Mode Utilise", Texte_Nombre(Mode_A.ListIndex()));
}

}  // namespace vorelio
