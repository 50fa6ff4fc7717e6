#include "maps/map_places.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "core/text.h"
#include "maps/locator_maps.h"
#include "maps/outlines.h"
#include "maps/projection.h"

namespace vorelio::tests {
namespace {

using maps::Spot;

using Rings = std::vector<std::vector<Spot>>;

/// The departments where the image shows them, held against the outlines that it was drawn from.
std::map<std::string, Rings> DepartmentsOnImage() {
  std::map<std::string, Rings> departments;
  for (const maps::Outline& outline : maps::ReadOutlines(VORELIO_MAPS_DIR "/departments.txt")) {
    std::vector<Spot> ring;
    for (const maps::Position& position : outline.points) ring.push_back(maps::OnFranceOrInset(outline.key, position));
    departments[outline.key].push_back(ring);
  }
  return departments;
}

TEST(MapPlaces, EachCellStandsOnItsDepartment) {
  const auto departments = DepartmentsOnImage();
  ASSERT_EQ(departments.size(), 96U);
  for (const Carte_France map : {Carte_France::Departements, Carte_France::Activites}) {
    // Cell 0 belongs to no department.
    for (int n = 1; n < 100; ++n) {
      if (!Case_De_Departement(n)) continue;
      const auto [left, top] = Place_Departement(map, n);
      const Spot middle{left + kLargeur_Case / 2.0, top + kHauteur_Case / 2.0};
      const std::string key = n == 96 ? "2A" : n == 97 ? "2B" : Deux_Chiffres(n);
      EXPECT_TRUE(maps::Inside(departments.at(key), middle)) << key << " at " << middle.x << ", " << middle.y;
    }
  }
  EXPECT_EQ(Place_Departement(Carte_France::Activites, 55).haut,
            Place_Departement(Carte_France::Departements, 55).haut + 8);
}

TEST(MapPlaces, EachCellLiesInItsSquare) {
  for (const auto field : kChamps_Cartes) {
    const maps::Position corner = maps::FieldCorner(field);
    for (int n = 0; n < 100; ++n) {
      const auto [left, top] = Place_Carre(field, n);
      const int column = n / 10, row = n % 10;
      const double east = corner.longitude + 2 * column, north = corner.latitude + row;
      const Spot south_west = maps::OnField(corner, {east, north});
      const Spot north_east = maps::OnField(corner, {east + 2, north + 1});
      EXPECT_TRUE(left >= south_west.x && left + kLargeur_Case <= north_east.x) << field << n;
      EXPECT_TRUE(top >= north_east.y && top + kHauteur_Case <= south_west.y) << field << n;
    }
  }
  // Some stand apart from their column.
  EXPECT_EQ(Place_Carre("JM", 22).gauche, Place_Carre("JM", 21).gauche + 8);
  EXPECT_EQ(Place_Carre("JM", 56).gauche, Place_Carre("JM", 55).gauche - 8);
}

}  // namespace
}  // namespace vorelio::tests
