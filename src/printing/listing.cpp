#include "printing/listing.h"

#include "core/text.h"

namespace vorelio {

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
