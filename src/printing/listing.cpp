#include "printing/listing.h"

#include "core/text.h"

namespace vorelio {

const std::string& Mot_QSL::De(std::string_view etat) {
  if (etat.size() == 1 && etat[0] >= '1' && etat[0] <= '4') mot_ = mots_[static_cast<std::size_t>(etat[0] - '1')];
  return mot_;
}

Mot_QSL Lettre_QSL() { return Mot_QSL({"S", "E", "R", "C"}); }

Mot_QSL Parole_QSL() { return Mot_QSL({"Sans", "Envoyée"_t, "Reçue"_t, "Confirmée"_t}); }

Impression::Impression(Programme& programme, double taille, Gras gras)
    : imprimante_(programme.plateforme.printer), ancienne_(imprimante_.Font()) {
  if (gras == Gras::Leve) ancienne_.bold = false;
  imprimante_.SetFont({"Courier New", taille, true});
  imprimante_.Choose();
}

Impression::~Impression() { imprimante_.SetFont(ancienne_); }

void Impression::Termine() {
  constexpr int kRetrait = 37;
  Ligne("");
  Ligne(Blancs(kRetrait) + "Imprimé par Vorelio"_t);
  imprimante_.EndJob();
}

}  // namespace vorelio
