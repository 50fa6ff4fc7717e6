#include "core/log_line.h"

namespace vorelio {

std::string Champs_QSO::QSL_Nouvelle() { return "1 " + Blancs(18); }

std::string Construit_Ligne(const Champs_QSO& qso) {
  const auto champ = [](const std::string& texte, const Champ& place) {
    return Complete(texte, place.largeur, place.ecart);
  };
  std::string ligne;
  ligne.reserve(kLargeur_Ligne);
  ligne += champ(qso.Date_A, champs::Date_A);
  ligne += champ(qso.Indicatif_A, champs::Indicatif_A);
  ligne += champ(qso.Debut_A, champs::Debut_A);
  ligne += champ(qso.Fin_A, champs::Fin_A);
  ligne += champ(qso.Depart_A, champs::Depart_A);
  ligne += champ(qso.Locator_A, champs::Locator_A);
  ligne += champ(qso.Bande_A, champs::Bande_A);
  ligne += champ(qso.Mode_A, champs::Mode_A);
  ligne += champ(qso.RSTE_A, champs::RSTE_A);
  ligne += champ(qso.RSTR_A, champs::RSTR_A);
  ligne += champ(qso.QTH_A, champs::QTH_A);
  // A new contact's first name may run into the reserved columns, which belong to the block of one that stood already.
  const int jusqu_aux_dates = champs::Distance_A.colonne - champs::Prenom_A.colonne;
  ligne += Complete(qso.Prenom_A, jusqu_aux_dates - static_cast<int>(qso.Bloc_QSL.size())) + qso.Bloc_QSL;
  ligne += champ(qso.Distance_A, champs::Distance_A);
  ligne += champ(qso.Azimut_A, champs::Azimut_A);
  ligne += champ(qso.Activ_A, champs::Activ_A);
  ligne += champ(qso.Remarques_A, champs::Remarques_A);
  ligne += '*';
  return ligne;
}

std::string Colonne_Numero(int numero) { return Complete_Gauche(std::to_string(numero), kColonnes_Numero - 1) + " "; }

}  // namespace vorelio
