#include "core/log_line.h"

#include "core/errors.h"

namespace vorelio {

std::string Champs_QSO::QSL_Nouvelle() { return "1 " + Blancs(18); }

std::string Construit_Ligne(const Champs_QSO& qso) {
  std::string ligne;
  ligne.reserve(kLargeur_Ligne);
  const auto champ = [&ligne](const std::string& texte, const Champ& place) {
    Ajoute_Complete(ligne, texte, place.largeur, place.ecart);
  };
  champ(qso.Date_A, champs::Date_A);
  champ(qso.Indicatif_A, champs::Indicatif_A);
  champ(qso.Debut_A, champs::Debut_A);
  champ(qso.Fin_A, champs::Fin_A);
  champ(qso.Depart_A, champs::Depart_A);
  champ(qso.Locator_A, champs::Locator_A);
  champ(qso.Bande_A, champs::Bande_A);
  champ(qso.Mode_A, champs::Mode_A);
  champ(qso.RSTE_A, champs::RSTE_A);
  champ(qso.RSTR_A, champs::RSTR_A);
  champ(qso.QTH_A, champs::QTH_A);
  // A new contact's first name may run into the reserved columns, which belong to the block of one that stood already.
  const int jusqu_aux_dates = champs::Distance_A.colonne - champs::Prenom_A.colonne;
  Ajoute_Complete(ligne, qso.Prenom_A, jusqu_aux_dates - static_cast<int>(qso.Bloc_QSL.size()), 0);
  ligne += qso.Bloc_QSL;
  champ(qso.Distance_A, champs::Distance_A);
  champ(qso.Azimut_A, champs::Azimut_A);
  champ(qso.Activ_A, champs::Activ_A);
  champ(qso.Remarques_A, champs::Remarques_A);
  ligne += '*';
  return ligne;
}

std::string Colonne_Numero(int numero) {
  std::string colonne(kColonnes_Numero, ' ');
  int place = kColonnes_Numero - 1;
  for (int reste = numero; reste > 0; reste /= 10) {
    if (place == 0) throw Erreur_Execution(Erreur::Argument_Invalide);
    colonne[static_cast<std::size_t>(--place)] = static_cast<char>('0' + reste % 10);
  }
  return colonne;
}

}  // namespace vorelio
