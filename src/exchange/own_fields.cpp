#include "exchange/own_fields.h"

#include <algorithm>

#include "core/text.h"

namespace vorelio {

std::string_view Tranche_Ligne::De(std::string_view ligne) const { return Coupe(ligne, colonne, largeur); }

std::string Impose_Champs_Propres(std::string ligne, const Enregistrement_ADIF& champs, const Texte_Etranger& texte) {
  if (!champs.Propre()) return ligne;
  std::string imposee;
  for (const Tranche_Ligne& tranche : kTranches) {
    const Champ_ADIF3* champ = champs.Cherche(std::string(kPrefixe_Propre).append(tranche.nom));
    bool perte = false;
    imposee += champ ? texte.Exact(champ->valeur, perte) : std::string(tranche.De(ligne));
  }
  // No line of a log has a line end within.
  std::replace(imposee.begin(), imposee.end(), '\n', ' ');
  return imposee;
}

}  // namespace vorelio
