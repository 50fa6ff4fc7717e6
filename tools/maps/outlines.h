#pragma once

#include <string>
#include <vector>

/// What the maps are drawn from: outlines in geographic coordinates.
namespace vorelio::maps {

/// Degrees, east and north positive.
struct Position {
  double longitude = 0;
  double latitude = 0;
};

using Line = std::vector<Position>;

/// One line of an outline file: its kind, a key where the kind has one, and its points. A ring isn't closed by its
/// last point.
struct Outline {
  std::string kind;
  std::string key;
  Line points;
};

/// Reads an outline file: "kind key: longitude latitude step step ...", the numbers in ten-thousandths of a degree, the
/// steps from one point to the next; lines that begin with "#" are remarks. Throws std::runtime_error for a file that
/// can't be read or holds something else.
std::vector<Outline> ReadOutlines(const std::string& path);

/// A place on an image, from its upper left corner; the pixels are those of the image at its plain size.
struct Spot {
  double x = 0;
  double y = 0;
};

/// Whether `spot` is inside the rings, by the even-odd rule.
bool Inside(const std::vector<std::vector<Spot>>& rings, Spot spot);

}  // namespace vorelio::maps
