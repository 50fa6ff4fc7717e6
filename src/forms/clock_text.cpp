#include "forms/clock_text.h"

#include "core/errors.h"
#include "core/text.h"

namespace vorelio::Sous_Programmes {

namespace {

std::string Date(const Instant& instant) {
  return Deux_Chiffres(instant.day) + "/" + Deux_Chiffres(instant.month) + "/" + Deux_Chiffres(instant.year % 100);
}

std::string Heure(const Instant& instant) {
  return Deux_Chiffres(instant.hour) + ":" + Deux_Chiffres(instant.minute) + ":" + Deux_Chiffres(instant.second);
}

/// `modele` has "9" where a digit is due; every other character stands for itself.
void Verifie_Forme(std::string_view texte, std::string_view modele, int& erreur) {
  if (texte.size() < modele.size()) throw Erreur_Execution(Erreur::Argument_Invalide);
  for (std::size_t i = 0; i < modele.size(); ++i) {
    const bool juste = modele[i] == '9' ? texte[i] >= '0' && texte[i] <= '9' : texte[i] == modele[i];
    if (!juste) erreur = 1;
  }
}

}  // namespace

std::string Date_UTC(Programme& programme) { return Date(programme.plateforme.clock.Utc()); }
std::string Date_Locale(Programme& programme) { return Date(programme.plateforme.clock.Local()); }

std::string Date_Longue(const Instant& instant) {
  return Deux_Chiffres(instant.day) + "/" + Deux_Chiffres(instant.month) + "/" + std::to_string(instant.year);
}

std::string Date_Du_Jour(Programme& programme) { return Date_Longue(programme.plateforme.clock.Local()); }

std::string Horodatage(Programme& programme) {
  const Instant instant = programme.plateforme.clock.Local();
  std::string texte = std::to_string(instant.year) + Deux_Chiffres(instant.month) + Deux_Chiffres(instant.day) + "-";
  return texte + Deux_Chiffres(instant.hour) + Deux_Chiffres(instant.minute) + Deux_Chiffres(instant.second);
}

std::string Heure_UTC(Programme& programme) { return Heure(programme.plateforme.clock.Utc()); }
std::string Heure_Locale(Programme& programme) { return Heure(programme.plateforme.clock.Local()); }

void Verifie_Date(std::string_view texte, int& erreur) { Verifie_Forme(texte, "99/99/99", erreur); }
void Verifie_Heure(std::string_view texte, int& erreur) { Verifie_Forme(texte, "99:99", erreur); }

}  // namespace vorelio::Sous_Programmes
