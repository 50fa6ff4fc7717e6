#include "exchange/century.h"

#include "core/text.h"

namespace vorelio {

std::string Annee_Complete(std::string_view deux_chiffres, Siecle siecle) {
  const double annee = Valeur(deux_chiffres);
  const int premiere = static_cast<int>(siecle);
  std::string complete;
  if (annee >= premiere && annee <= 99) complete = "19";
  if (annee >= 0 && annee <= premiere - 1) complete = "20";
  return complete.append(deux_chiffres);
}

std::string Date_Complete(std::string_view ligne, Siecle siecle) {
  return std::string(Coupe(ligne, 1, 6)).append(Annee_Complete(Coupe(ligne, 7, 2), siecle));
}

}  // namespace vorelio
