#include "maps/outlines.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace vorelio::maps {

namespace {

constexpr double kUnit = 10000;  ///< Of a degree.

Outline ReadOutline(const std::string& line, const std::string& path) {
  const std::size_t colon = line.find(':');
  if (colon == std::string::npos) throw std::runtime_error(path + ": no outline: " + line.substr(0, 40));
  Outline outline;
  std::istringstream head(line.substr(0, colon));
  head >> outline.kind >> outline.key;
  std::istringstream numbers(line.substr(colon + 1));
  long east = 0, north = 0;
  for (long x = 0, y = 0; numbers >> x >> y;) {
    east += x;
    north += y;
    outline.points.push_back({static_cast<double>(east) / kUnit, static_cast<double>(north) / kUnit});
  }
  if (!numbers.eof() || outline.points.empty()) throw std::runtime_error(path + ": no number in " + outline.kind);
  return outline;
}

}  // namespace

std::vector<Outline> ReadOutlines(const std::string& path) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error("can't read " + path);
  std::vector<Outline> outlines;
  for (std::string line; std::getline(file, line);)
    if (!line.empty() && line[0] != '#') outlines.push_back(ReadOutline(line, path));
  return outlines;
}

bool Inside(const std::vector<std::vector<Spot>>& rings, Spot spot) {
  bool inside = false;
  for (const auto& ring : rings) {
    for (std::size_t i = 0, before = ring.size() - 1; i < ring.size(); before = i++) {
      const Spot a = ring[i], b = ring[before];
      const bool crosses = (a.y > spot.y) != (b.y > spot.y);
      if (crosses && spot.x < (b.x - a.x) * (spot.y - a.y) / (b.y - a.y) + a.x) inside = !inside;
    }
  }
  return inside;
}

}  // namespace vorelio::maps
