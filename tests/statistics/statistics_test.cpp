#include "statistics/statistics.h"

#include <gtest/gtest.h>

#include "core/errors.h"

namespace vorelio {
namespace {

TEST(Statistics, DistanceClasses) {
  constexpr int kBefore = 7;  // What has no class keeps this one.
  const std::pair<double, int> cases[] = {
      {0, 1},   {100, 1}, {100.5, 2}, {199, 2},   {199.5, kBefore}, {200, 3},     {299, 3},    {299.4, kBefore},
      {300, 4}, {899, 9}, {999, 10},  {999.5, 7}, {1000, kBefore},  {1000.5, 11}, {20000, 11}, {-1, kBefore}};
  for (const auto& [km, expected] : cases) EXPECT_EQ(Classe_Distance(km, kBefore), expected) << km;
}

TEST(Statistics, Percentages) {
  const std::tuple<int, int, const char*> cases[] = {{0, 0, " 0"},  {0, 7, " 0"},   {1, 3, "33"},         {2, 3, "66"},
                                                     {1, 20, " 5"}, {29, 50, "58"}, {99999, 99999, "100"}};
  for (const auto& [part, total, expected] : cases) EXPECT_EQ(Pourcentage(part, total), expected) << part;
}

TEST(Statistics, ActivityLineHasNoRoomForMore) {
  EXPECT_EQ(Ligne_Activite("CASHOTA", {99999, 0, 99999}), "    CASHOTA     99999         0 ( 0%)     99999 (100%)");
  EXPECT_THROW(Ligne_Activite("CASHOTAS", {}), Erreur_Execution);
  EXPECT_THROW(Ligne_Activite("", {100000, 0, 0}), Erreur_Execution);
  EXPECT_THROW(Comptes_QSO().Activite(31), Erreur_Execution);
}

}  // namespace
}  // namespace vorelio
