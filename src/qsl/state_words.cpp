#include "qsl/state_words.h"

#include "core/text.h"

namespace vorelio {

const std::string& Mot_QSL::De(std::string_view etat) {
  if (etat.size() == 1 && etat[0] >= '1' && etat[0] <= '4') mot_ = mots_[static_cast<std::size_t>(etat[0] - '1')];
  return mot_;
}

Mot_QSL Lettre_QSL() { return Mot_QSL({"S", "E", "R", "C"}); }

Mot_QSL Parole_QSL() { return Mot_QSL({"Sans", "Envoyée"_t, "Reçue"_t, "Confirmée"_t}); }

}  // namespace vorelio
