#include "geo/locator.h"

#include <cmath>

#include "core/errors.h"
#include "core/text.h"

namespace vorelio::Sous_Programmes {

namespace {

/// What ten digits of pi let pass: a cosine a little beyond its bounds.
constexpr double kPresque_Un = 0.999999999;

int Code(char caractere) { return static_cast<unsigned char>(caractere); }

double Divise(double dividende, double diviseur) {
  if (diviseur == 0) throw Erreur_Execution(Erreur::Division_Par_Zero);
  return dividende / diviseur;
}

void Exige_Locator(std::string_view locator) {
  if (locator.size() < kLongueur_Locator) throw Erreur_Execution(Erreur::Argument_Invalide, locator);
}

/// The great circle between two places.
struct Arc {
  double latitude_1, latitude_2;
  double delta;  ///< Longitude of the first less that of the second, not folded at the date line.
  double km;
};

Arc Grand_Cercle(std::string_view locator_1, std::string_view locator_2) {
  Arc arc{};
  const double longitude_1 = Longitude(locator_1);
  arc.latitude_1 = Latitude(locator_1);
  const double longitude_2 = Longitude(locator_2);
  arc.latitude_2 = Latitude(locator_2);
  arc.delta = longitude_1 - longitude_2;
  const double cosinus = std::cos(arc.delta) * std::cos(arc.latitude_1) * std::cos(arc.latitude_2) +
                         std::sin(arc.latitude_1) * std::sin(arc.latitude_2);
  const double angle = Demi_Pi + Arc_Sinus_Negatif(cosinus);
  arc.km = Circonference_Terre * angle / (2 * Pi_Programme);
  return arc;
}

double Arrondi(double nombre) { return std::floor(nombre + 0.5); }

}  // namespace

int Kilometres(std::string_view locator_1, std::string_view locator_2) {
  return static_cast<int>(Arrondi(Grand_Cercle(locator_1, locator_2).km));
}

int Degres(std::string_view locator_1, std::string_view locator_2) {
  const Arc arc = Grand_Cercle(locator_1, locator_2);
  const double angle = arc.km / Rayon_Terre;
  double cosinus = Divise(std::sin(arc.latitude_2) - std::sin(arc.latitude_1) * std::cos(angle),
                          std::cos(arc.latitude_1) * std::sin(angle));
  if (cosinus < -1) cosinus = -kPresque_Un;
  if (cosinus > 1) cosinus = kPresque_Un;
  double azimut = (Arc_Sinus_Negatif(cosinus) + Demi_Pi) * Rad_Vers_Deg;
  if (arc.delta > 0) azimut = 360 - azimut;
  return static_cast<int>(Arrondi(azimut));
}

void Verifie_Locator(std::string_view locator, int& erreur) {
  Exige_Locator(locator);
  for (std::size_t i = 0; i < kLongueur_Locator; ++i) {
    const bool chiffre = i == 2 || i == 3;
    if (locator[i] < (chiffre ? '0' : 'A') || locator[i] > (chiffre ? '9' : 'Z')) erreur = 1;
  }
}

int Indice_Lettre(char caractere) {
  const int code = Code(caractere);
  const int indice = code > 96 ? code - 97 : code - 65;
  if (indice < 0) throw Erreur_Execution(Erreur::Depassement);
  return indice;
}

double Longitude(std::string_view locator) {
  Exige_Locator(locator);
  const int degres = Indice_Lettre(locator[0]) * 20 - 180 + (Code(locator[2]) - 48) * 2;
  return (Indice_Lettre(locator[4]) / 12.0 + 1.0 / 24 + degres) * Deg_Vers_Rad;
}

double Latitude(std::string_view locator) {
  Exige_Locator(locator);
  const int degres = Indice_Lettre(locator[1]) * 10 - 90 + (Code(locator[3]) - 48);
  return (Indice_Lettre(locator[5]) / 24.0 + 1.0 / 48 + degres) * Deg_Vers_Rad;
}

double Arc_Sinus_Negatif(double x) {
  const double carre = 1 - x * x;
  if (carre < 0) throw Erreur_Execution(Erreur::Argument_Invalide);
  return -std::atan(Divise(x, std::sqrt(carre)));
}

}  // namespace vorelio::Sous_Programmes
