#include "core/text.h"
#include "entry/ddfm.h"
#include "forms/clock_text.h"

namespace vorelio {

using namespace Sous_Programmes;

namespace {

/// The caret stands after a report's "59".
constexpr int kDerriere_59 = 3;

const std::string kHeure_Longueur = "Attention 5 caracteres pour l'heure (format hh:mm. Les ':' sont automatique)";

bool Vide(const TextField& champ) { return champ.Text().empty() || champ.Text() == kFin_De_Ligne; }

}  // namespace

// The text gets its separator before the key joins it, so that the next digit lands after it.
void DDFM::Separe(TextField& champ, std::string_view separateur) {
  champ.SetText(champ.Text() + std::string(separateur));
  champ.SetCaret(static_cast<int>(champ.Text().size()));
}

void DDFM::Date_A_KeyPress(int& touche) {
  if (Acceptee(touche)) {
    if (Date_A.Text().empty()) return programme_.Message("Attention vous devez entrer une date (pour le classement) ");
    if (Date_A.Text().size() != 8) {
      programme_.Message("Attention 8 caracteres pour la date (format jj/mm/aa). Les '/' sont automatiques");
      return Date_A.Clear();
    }
    int erreur = 0;
    Verifie_Date(Date_A.Text(), erreur);
    if (erreur == 1) {
      programme_.Message("Attention le format date doit etre jj/mm/aa. Les '/' sont automatiques");
      return Date_A.Clear();
    }
    Avance(Date_A, Debut_A);
  }
  const auto longueur = Date_A.Text().size();
  if (Mnu_Sep_Oui.Checked() && (longueur == 2 || longueur == 5)) Separe(Date_A, "/");
}

bool DDFM::Heure_Refusee(const TextField& champ) {
  if (champ.Text().size() != 5) {
    programme_.Message(kHeure_Longueur);
    return true;
  }
  int erreur = 0;
  Verifie_Heure(champ.Text(), erreur);
  if (erreur == 1) programme_.Message("Attention le format date doit etre hh:mm");
  return erreur == 1;
}

void DDFM::Debut_A_KeyPress(int& touche) {
  if (Acceptee(touche)) {
    if (Vide(Debut_A)) return programme_.Message("Attention vous devez entrer l'heure de debut (pour le classement) ");
    if (Heure_Refusee(Debut_A)) return;
    Avance(Debut_A, Fin_A);
  }
  if (Mnu_Sep_Oui.Checked() && Debut_A.Text().size() == 2) Separe(Debut_A, ":");
}

void DDFM::Fin_A_KeyPress(int& touche) {
  if (touche == '+') {
    // A contact of no length: the report sent keeps its "59" without a visit.
    touche = 0;
    Fin_A.SetText(Debut_A.Text());
    Avance(Fin_A, RSTR_A);
  } else if (Acceptee(touche)) {
    if (Heure_Refusee(Fin_A)) return;
    Avance(Fin_A, RSTE_A);
    RSTE_A.SetCaret(kDerriere_59);
  }
  if (Mnu_Sep_Oui.Checked() && Fin_A.Text().size() == 2) Separe(Fin_A, ":");
}

void DDFM::RSTE_A_KeyPress(int& touche) {
  if (Acceptee(touche)) {
    if (Trop_Long(RSTE_A, 8, "Attention 8 caracteres maxi pour le report envoyé"_t)) return;
    Avance(RSTE_A, RSTR_A);
    RSTR_A.SetCaret(kDerriere_59);
  }
  touche = Touche_Majuscule(touche);
}

void DDFM::RSTR_A_KeyPress(int& touche) {
  if (Acceptee(touche)) {
    if (Trop_Long(RSTR_A, 8, "Attention 8 caracteres maxi pour le report reçu"_t)) return;
    Avance(RSTR_A, Prenom_A);
  }
  touche = Touche_Majuscule(touche);
}

void DDFM::Prenom_A_KeyPress(int& touche) {
  if (!Acceptee(touche) || Trop_Long(Prenom_A, 15, "Attention 15 caracteres maxi pour le prenom")) return;
  Avance(Prenom_A, QTH_A);
}

void DDFM::QTH_A_KeyPress(int& touche) {
  if (Acceptee(touche)) {
    if (Trop_Long(QTH_A, 20, "Attention 20 caracteres maxi pour le QTH") || !Reference_Bonne()) return;
    Annuler.SetEnabled(true);
    Avance(QTH_A, Remarques_A);
  }
  touche = Touche_Majuscule(touche);
}

void DDFM::Remarques_A_KeyPress(int& touche) {
  if (Acceptee(touche)) {
    if (Trop_Long(Remarques_A, 30, "Attention 30 caracteres maxi pour les remarques")) return;
    Remarques_A.SetColour(kFait);
    Enregistrer.SetEnabled(true);
    Annuler.SetEnabled(true);
    Enregistrer.SetFocus();
  }
  touche = Touche_Majuscule(touche);
}

}  // namespace vorelio
