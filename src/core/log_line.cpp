#include "core/log_line.h"

namespace vorelio {

std::string Champs_QSO::Bloc_Sans_QSL() { return Blancs(7) + "1 " + Blancs(18); }

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
  ligne += champ(qso.Prenom_A, champs::Prenom_A);
  ligne += qso.Bloc_QSL;
  ligne += champ(qso.Distance_A, champs::Distance_A);
  ligne += champ(qso.Azimut_A, champs::Azimut_A);
  ligne += champ(qso.Activ_A, champs::Activ_A);
  ligne += champ(qso.Remarques_A, champs::Remarques_A);
  ligne += '*';
  return ligne;
}

std::string Colonne_Numero(int numero) { return Complete_Gauche(std::to_string(numero), kColonnes_Numero - 1) + " "; }

}  // namespace vorelio
