#include "geo/locator.h"

#include "entry/distance_azimuth.h"
#include "support/error_of.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

class LocatorTest : public StationFixture {};

// The expected figures come from sixty-digit series for sine, cosine and arctangent with the same constants.
TEST_F(LocatorTest, DistanceAndAzimuthOfKnownPairs) {
  const struct {
    const char *from, *to, *km;
    float degrees;
    const char* what;
  } pairs[] = {
      {"JN33BB", "JN33BC", "5", 0, "the next sub-square to the north"},
      {"JN33BB", "JN33CB", "7", 90, "the next sub-square to the east"},
      {"JN33BB", "JN33AB", "7", 270, "the next sub-square to the west"},
      {"JJ00AA", "JI09AX", "5", 180, "the next one to the south, over the equator"},
      {"JN33BB", "JP33BB", "2226", 0, "due north: nothing is taken from 360"},
      {"JN33BB", "JM33BB", "1113", 180, "due south, near"},
      {"JN33BB", "JF33BB", "8906", 180, "due south, far"},
      {"JN33BB", "JN18EU", "707", 337, "Paris"},
      {"JN33BB", "FN20XR", "6380", 297, "New York"},
      {"JN33BB", "PM95TQ", "10084", 36, "Tokyo"},
      {"JN33BB", "AE36CW", "20032", 270, "nearly the other end of the world"},
      {"AA00AA", "RR99XX", "20034", 0, "from corner to corner of the grid"},
      {"JN33BB", "AR09AX", "5228", 360, "beside the north pole, a little to the west"},
      {"JN33BB", "JA00AA", "14811", 180, "beside the south pole, a little to the west"},
      {"JN33BB", "AO33BB", "9337", 360, "over the north pole, the cosine a little above 1"},
      {"JE33BB", "AE33BB", "9588", 180, "over the south pole, the cosine a little below -1"},
      {"RF73KC", "AG08AA", "1734", 342, "over the date line, which isn't seen: east counts as west"},
      {"AG08AA", "RF73KC", "1734", 164, "over the date line, the other way"},
      {"IN88AA", "jn33bb", "959", 121, "small letters in the second"},
      {"in88aa", "JN33BB", "959", 121, "small letters in the first"},
  };
  for (const auto& pair : pairs) {
    SCOPED_TRACE(pair.what);
    std::string to = pair.to;
    Calcule_Azimut(*programme, pair.from, to);
    Calcule_Distance(*programme, pair.from, to);
    EXPECT_EQ(programme->saisie.Distance_Texte, pair.km);
    EXPECT_EQ(programme->saisie.Azimut, pair.degrees);
    EXPECT_EQ(to, pair.to);
  }
}

TEST_F(LocatorTest, DistanceCutsItsSecondLocatorAndLeavesTheOldTextForAShortOne) {
  programme->saisie.Distance_Texte = "123";
  std::string locator = "JN33";
  Calcule_Distance(*programme, "JN33BB", locator);
  EXPECT_EQ(programme->saisie.Distance_Texte, "123");

  locator = " JN33 BBB";
  Calcule_Distance(*programme, "JN33BB", locator);
  EXPECT_EQ(locator, "JN33");
  EXPECT_EQ(programme->saisie.Distance_Texte, "123");

  locator = "JN18EUXX ";
  Calcule_Distance(*programme, "JN33BB", locator);
  EXPECT_EQ(locator, "JN18EU");
  EXPECT_EQ(programme->saisie.Distance_Texte, "707");
}

TEST_F(LocatorTest, WhatCannotBeComputedIsAnError) {
  std::string to = "JN18EU";
  EXPECT_EQ(ErrorOf([&] { Calcule_Azimut(*programme, "JN33BB", "JN33"); }), 5);
  EXPECT_EQ(ErrorOf([&] { Calcule_Distance(*programme, "JN33B", to); }), 5);
  EXPECT_EQ(ErrorOf([&] { Calcule_Distance(*programme, "J333BB", to); }), 6);
  EXPECT_EQ(ErrorOf([] { Longitude(""); }), 5);

  EXPECT_EQ(ErrorOf([] { Arc_Sinus_Negatif(1); }), 11);
  EXPECT_EQ(ErrorOf([] { Arc_Sinus_Negatif(-1); }), 11);
  EXPECT_EQ(ErrorOf([] { Arc_Sinus_Negatif(1.0000001); }), 5);
  EXPECT_NEAR(Arc_Sinus_Negatif(0.5) + Demi_Pi, 1.0471975513, 1e-9);

  // Of two equal points the cosine is 1, or what the arithmetic makes of it.
  to = "JJ00AA";
  const int error = ErrorOf([&] { Calcule_Distance(*programme, "JJ00AA", to); });
  EXPECT_TRUE(error == 11 || error == 5) << error;
}

TEST(LocatorText, CheckLooksAtAllSixCharacters) {
  const auto check = [](std::string_view locator) {
    int error = 0;
    Verifie_Locator(locator, error);
    return error;
  };
  for (const char* good : {"JN33BB", "AA00AA", "ZZ99ZZ", "JN33BBxx"}) EXPECT_EQ(check(good), 0) << good;
  for (const char* bad : {"jN33BB", "Jn33BB", "JNA3BB", "JN3ABB", "JN33bB", "JN33Bb", "JN33B1", "1N33BB", "@N33BB",
                          "J[33BB", "JN/3BB", "JN3:BB", "      ", "\xC9N33BB"})
    EXPECT_EQ(check(bad), 1) << bad;
  EXPECT_EQ(ErrorOf([&] { check("JN33B"); }), 5);

  int error = 7;
  Verifie_Locator("JN33BB", error);
  EXPECT_EQ(error, 7);
}

TEST(LocatorText, LettersAndPlaces) {
  EXPECT_EQ(Indice_Lettre('A'), 0);
  EXPECT_EQ(Indice_Lettre('a'), 0);
  EXPECT_EQ(Indice_Lettre('Z'), 25);
  EXPECT_EQ(Indice_Lettre('['), 26);
  EXPECT_EQ(Indice_Lettre('\xE9'), 0xE9 - 97);
  EXPECT_EQ(ErrorOf([] { Indice_Lettre('@'); }), 6);
  EXPECT_DOUBLE_EQ(Longitude("JN33BB"), (1.0 / 12 + 1.0 / 24 + 6) * 3.141592654 / 180);
  EXPECT_DOUBLE_EQ(Latitude("JN33BB"), (1.0 / 24 + 1.0 / 48 + 43) * 3.141592654 / 180);
  EXPECT_DOUBLE_EQ(Longitude("jn33bb"), Longitude("JN33BB"));
  EXPECT_DOUBLE_EQ(Rayon_Terre, 6378.387399934377);
}

}  // namespace
}  // namespace vorelio::tests
