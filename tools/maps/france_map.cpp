#include <QRectF>
#include <array>
#include <cmath>
#include <map>
#include <set>
#include <stdexcept>
#include <utility>

#include "maps/canvas.h"
#include "maps/projection.h"

namespace vorelio::maps {

namespace {

constexpr QRectF kImage(0, 0, kFrance_Width, kFrance_Height);
constexpr QRectF kParis_Box(1.5, 1.5, 84, 87);
constexpr QRectF kCorsica_Box(412.5, 418.5, 61, 90);

/// Quiet tints that stay apart from one another and from the colours of the cells.
constexpr std::array<QRgb, 5> kTints = {0xFFDCE5CF, 0xFFF3E6C4, 0xFFEFD9CC, 0xFFDDDCE8, 0xFFE9E2D6};

constexpr QRgb kDepartment_Line = 0xFF9C9A94, kFrance_Line = 0xFF7B756E;

using Departments = std::map<std::string, std::vector<Line>>;

Departments ByKey(const std::vector<Outline>& outlines) {
  Departments departments;
  for (const Outline& outline : outlines) departments[outline.key].push_back(outline.points);
  return departments;
}

/// Which departments have a stretch of border in common.
std::map<std::string, std::set<std::string>> Neighbours(const Departments& departments) {
  // The outlines were drawn one by one: a common point may differ by the last digit.
  const auto coarse = [](Position p) {
    return std::pair(std::lround(p.longitude * 500), std::lround(p.latitude * 500));
  };
  std::map<std::pair<long, long>, std::set<std::string>> at;
  for (const auto& [key, rings] : departments)
    for (const Line& ring : rings)
      for (const Position& point : ring) at[coarse(point)].insert(key);
  std::map<std::string, std::set<std::string>> neighbours;
  for (const auto& [place, keys] : at)
    for (const std::string& one : keys)
      for (const std::string& other : keys)
        if (one != other) neighbours[one].insert(other);
  return neighbours;
}

/// A tint for each department, none the same as a neighbour's; of those the one least used so far.
std::map<std::string, int> Tints(const Departments& departments) {
  const auto neighbours = Neighbours(departments);
  std::map<std::string, int> tints;
  std::array<int, kTints.size()> used{};
  while (tints.size() < departments.size()) {
    // Next the one whose neighbours leave the least choice.
    std::string next;
    std::set<int> taken;
    for (const auto& [key, rings] : departments) {
      if (tints.contains(key)) continue;
      std::set<int> around;
      if (const auto found = neighbours.find(key); found != neighbours.end())
        for (const std::string& other : found->second)
          if (const auto tint = tints.find(other); tint != tints.end()) around.insert(tint->second);
      if (!next.empty() && around.size() <= taken.size()) continue;
      next = key;
      taken = around;
    }
    int best = -1;
    for (int tint = 0; tint < static_cast<int>(kTints.size()); ++tint)
      if (!taken.contains(tint) && (best < 0 || used[tint] < used[best])) best = tint;
    if (best < 0) throw std::runtime_error("no tint is left for " + next);
    tints[next] = best;
    ++used[static_cast<std::size_t>(best)];
  }
  return tints;
}

class FranceMap {
 public:
  FranceMap(const std::vector<Outline>& departments, const std::vector<Outline>& coasts)
      : departments_(ByKey(departments)), tints_(Tints(departments_)), coasts_(coasts) {}

  void Draw(QPainter& painter) {
    DrawSurroundings(painter);
    DrawNames(painter);
    std::vector<std::string> mainland;
    for (const auto& [key, rings] : departments_)
      if (!IsCorsican(key)) mainland.push_back(key);
    DrawDepartments(painter, mainland, OnFrance, 1);

    DrawBox(painter, kCorsica_Box, {"2A", "2B"}, true, [](Position position) {
      const Spot spot = OnFrance(position);
      return Spot{spot.x + kCorsica_Shift.x, spot.y + kCorsica_Shift.y};
    });
    DrawBox(painter, kParis_Box, {"75", "92", "93", "94"}, false, OnParisInset);

    painter.setBrush(Qt::NoBrush);
    painter.setPen(PenOf(ink::kFrame, 1));
    painter.drawRect(kImage.adjusted(0.5, 0.5, -0.5, -0.5));
  }

 private:
  void DrawSurroundings(QPainter& painter) {
    painter.fillRect(kImage, QColor::fromRgb(ink::kSea));
    // France is drawn by its departments: the two sources don't trace its coast alike.
    QPainterPath abroad, borders, french_borders;
    abroad.setFillRule(Qt::WindingFill);
    for (const Outline& outline : coasts_) {
      const bool ring = outline.kind == "terre", french = outline.key == "FR";
      const QPainterPath path = PathOf(outline.points, OnFrance, ring);
      if (!path.intersects(kImage.adjusted(-60, -60, 60, 60)) || (ring && french)) continue;
      (ring ? abroad : french ? french_borders : borders).addPath(path);
    }
    QPainterPath land = abroad;
    for (const auto& [key, rings] : departments_)
      if (!IsCorsican(key))
        for (const Line& ring : rings) land.addPath(PathOf(ring, OnFrance, true));
    DrawShallows(painter, land);
    Stroke(painter, abroad, PenOf(ink::kCoast, 1.2));
    painter.fillPath(abroad, QColor::fromRgb(ink::kNeighbour));
    Stroke(painter, borders, PenOf(ink::kBorder, 0.7));
    // Nor do they trace its borders alike: no sea may show between.
    Stroke(painter, french_borders, PenOf(ink::kNeighbour, 4, Qt::FlatCap));
  }

  void DrawNames(QPainter& painter) {
    const QFont country = Capitals(6.6, 1.7);
    const auto name = [&](double x, double y, const char* words, double angle = 0) {
      DrawWords(painter, {x, y}, QString::fromUtf8(words), country, ink::kCountryName, angle);
    };
    name(150, 14, "ROYAUME-UNI");
    name(362, 60, "BELGIQUE");
    name(438, 84, "ALLEMAGNE");
    name(438, 245, "SUISSE");
    name(456, 338, "ITALIE");
    name(105, 478, "ESPAGNE");

    const auto water = [&](double x, double y, const char* words, double size, double angle = 0) {
      DrawWords(painter, {x, y}, QString::fromUtf8(words), Slanted(size), ink::kSeaName, angle);
    };
    water(120, 72, "Manche", 12, -8);
    water(42, 290, "Océan", 12);
    water(42, 306, "Atlantique", 12);
    water(352, 475, "Mer Méditerranée", 10.5);
  }

  void DrawDepartments(QPainter& painter, const std::vector<std::string>& keys, const Projection& projection,
                       double weight) {
    std::map<std::string, QPainterPath> paths;
    for (const std::string& key : keys)
      for (const Line& ring : departments_.at(key)) paths[key].addPath(PathOf(ring, projection, true));
    // A line around all of them: the part of a wide one that the tints leave in sight.
    for (const auto& [key, path] : paths) Stroke(painter, path, PenOf(kFrance_Line, 1.5 * weight));
    for (const auto& [key, path] : paths)
      painter.fillPath(path, QColor::fromRgb(kTints[static_cast<std::size_t>(tints_.at(key))]));
    for (const auto& [key, path] : paths) Stroke(painter, path, PenOf(kDepartment_Line, 0.55 * weight));
  }

  void DrawBox(QPainter& painter, const QRectF& box, const std::vector<std::string>& keys, bool at_sea,
               const Projection& projection) {
    painter.save();
    painter.setClipRect(box);
    painter.fillRect(box, QColor::fromRgb(at_sea ? ink::kSea : ink::kPaper));
    if (at_sea) {
      QPainterPath land;
      for (const std::string& key : keys)
        for (const Line& ring : departments_.at(key)) land.addPath(PathOf(ring, projection, true));
      DrawShallows(painter, land);
    }
    DrawDepartments(painter, keys, projection, 1.15);
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(PenOf(ink::kFrame, 1, Qt::SquareCap));
    painter.drawRect(box);
  }

  Departments departments_;
  std::map<std::string, int> tints_;
  const std::vector<Outline>& coasts_;
};

}  // namespace

QImage DrawFrance(const std::vector<Outline>& departments, const std::vector<Outline>& coasts) {
  FranceMap map(departments, coasts);
  return Draw(kFrance_Width, kFrance_Height, [&](QPainter& painter) { map.Draw(painter); });
}

}  // namespace vorelio::maps
