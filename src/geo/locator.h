#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Locators, and the great circle between the centres of two sub-squares on a sphere of 40076.59 km circumference. The
/// constants stay as they are: the distances in operators' logs were computed with them, and are compared with new
/// ones.
namespace vorelio::Sous_Programmes {

inline constexpr double Pi_Programme = 3.141592654;      ///< Ten digits on purpose.
inline constexpr double Circonference_Terre = 40076.59;  ///< Kilometres.
inline constexpr double Rayon_Terre = Circonference_Terre / Pi_Programme / 2;
inline constexpr double Deg_Vers_Rad = Pi_Programme / 180;
inline constexpr double Rad_Vers_Deg = 180 / Pi_Programme;
inline constexpr double Demi_Pi = Pi_Programme / 2;

inline constexpr std::size_t kLongueur_Locator = 6;

/// Sets `erreur` to 1 if one of the six characters is wrong (two letters A to Z, two digits, two letters A to Z),
/// else leaves it. A text shorter than six is run-time error 5.
void Verifie_Locator(std::string_view locator, int& erreur);

/// Place of a letter in the alphabet from 0, either case; a character below "A" is run-time error 6.
int Indice_Lettre(char caractere);

/// Of the centre of the sub-square, in radians.
double Longitude(std::string_view locator);
double Latitude(std::string_view locator);

/// -arctan(x / sqrt(1 - x²)); with `Demi_Pi` added, the arccosine of x. |x| > 1 is run-time error 5, 1 is error 11.
double Arc_Sinus_Negatif(double x);

/// Distance in whole kilometres, and azimuth of the second from the first in whole degrees (0 to 360). Of a place and
/// itself, or the other end of the world, they are run-time errors.
int Kilometres(std::string_view locator_1, std::string_view locator_2);
int Degres(std::string_view locator_1, std::string_view locator_2);

}  // namespace vorelio::Sous_Programmes
