#include "maps/projection.h"

#include <cmath>
#include <numbers>

namespace vorelio::maps {

namespace {

double Radians(double degrees) { return degrees * std::numbers::pi / 180; }

constexpr double kScale = 0.4667;  ///< Pixels a kilometre.

struct Cone {
  static constexpr double kAxis = 6378.137, kExcentricity = 0.0818191910428;  // GRS80, kilometres.

  Cone() {
    const double south = Radians(44), north = Radians(49);
    exponent = std::log(Radius(north) / Radius(south)) / (Isometric(south) - Isometric(north));
    factor = Radius(south) / exponent * std::exp(exponent * Isometric(south));
    origin = factor * std::exp(-exponent * Isometric(Radians(46.5)));
  }

  static double Isometric(double latitude) {
    const double sine = kExcentricity * std::sin(latitude);
    return std::log(std::tan(std::numbers::pi / 4 + latitude / 2)) -
           kExcentricity / 2 * std::log((1 + sine) / (1 - sine));
  }

  /// Of the parallel.
  static double Radius(double latitude) {
    const double sine = kExcentricity * std::sin(latitude);
    return kAxis * std::cos(latitude) / std::sqrt(1 - sine * sine);
  }

  double exponent, factor, origin;
};

}  // namespace

Kilometres Lambert93(Position position) {
  static const Cone cone;
  const double radius = cone.factor * std::exp(-cone.exponent * Cone::Isometric(Radians(position.latitude)));
  const double angle = cone.exponent * Radians(position.longitude - 3);
  return {700 + radius * std::sin(angle), 6600 + cone.origin - radius * std::cos(angle)};
}

Spot OnFrance(Position position) {
  const Kilometres place = Lambert93(position);
  return {239.25 + kScale * (place.east - 600), 257.95 - kScale * (place.north - 6600)};
}

Spot OnParisInset(Position position) {
  const Kilometres place = Lambert93(position);
  return {35.5 + 2.2 * (place.east - 651.7), 42.5 - 2.2 * (place.north - 6862.1)};
}

bool IsCorsican(std::string_view department) { return department == "2A" || department == "2B"; }

bool IsInParisInset(std::string_view department) {
  return department == "75" || department == "92" || department == "93" || department == "94";
}

Spot OnFranceOrInset(std::string_view department, Position position) {
  if (IsInParisInset(department)) return OnParisInset(position);
  const Spot spot = OnFrance(position);
  return IsCorsican(department) ? Spot{spot.x + kCorsica_Shift.x, spot.y + kCorsica_Shift.y} : spot;
}

Position FieldCorner(std::string_view field) { return {(field[0] - 'A') * 20.0 - 180, (field[1] - 'A') * 10.0 - 90}; }

Spot OnField(Position corner, Position position) {
  return {20 + 23 * (position.longitude - corner.longitude), 346 - 32 * (position.latitude - corner.latitude)};
}

}  // namespace vorelio::maps
