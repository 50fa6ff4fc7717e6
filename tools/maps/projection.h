#pragma once

#include <string_view>
#include <vector>

#include "maps/outlines.h"

/// Where on the images a place of the earth is. The cells of the windows stand at fixed pixels; these projections were
/// fitted to them, such that each cell stands on its department or in its square.
namespace vorelio::maps {

inline constexpr double kFrance_Width = 475, kFrance_Height = 510;
inline constexpr double kField_Width = 500, kField_Height = 372;

/// Kilometres east and north in Lambert-93, the projection of the French maps (GRS80, origin 46.5 N 3 E, parallels 44
/// and 49, false origin 700 and 6600 km; formulae: IGN, note technique NT/G 71).
struct Kilometres {
  double east = 0;
  double north = 0;
};
Kilometres Lambert93(Position position);

/// On the image of France, at 0.4667 pixels a kilometre.
Spot OnFrance(Position position);

/// Corsica lies closer to the coast than it does.
inline constexpr Spot kCorsica_Shift{-75.8, -5.7};

/// On the part of the image that shows Paris and the three departments around it larger.
Spot OnParisInset(Position position);

/// The departments 2A and 2B, and those of the Paris inset.
bool IsCorsican(std::string_view department);
bool IsInParisInset(std::string_view department);

/// Where the cell of a department has to stand on the image of France.
Spot OnFranceOrInset(std::string_view department, Position position);

/// The south-west corner of a locator field such as "JN"; a field is 20 degrees wide and 10 high.
Position FieldCorner(std::string_view field);

/// On the image of the field with that corner: 46 by 32 pixels a square, from (20, 26) to (480, 346).
Spot OnField(Position corner, Position position);

}  // namespace vorelio::maps
