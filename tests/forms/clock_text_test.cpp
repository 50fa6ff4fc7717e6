#include "forms/clock_text.h"

#include "core/errors.h"
#include "support/station_fixture.h"

namespace vorelio::tests {
namespace {

using ClockTextTest = StationFixture;

TEST_F(ClockTextTest, BothClocksHaveTwoDigitsEverywhere) {
  ASSERT_TRUE(clock.Set("2009-01-02 03:04:05", "+02:00"));
  EXPECT_EQ(Date_UTC(*programme), "02/01/09");
  EXPECT_EQ(Heure_UTC(*programme), "03:04:05");
  EXPECT_EQ(Heure_Locale(*programme), "05:04:05");

  ASSERT_TRUE(clock.Set("1999-12-31 23:30:00", "+01:00"));
  EXPECT_EQ(Date_UTC(*programme), "31/12/99");
  EXPECT_EQ(Date_Locale(*programme), "01/01/00");
  EXPECT_EQ(Heure_Locale(*programme), "00:30:00");
}

TEST(ClockTextShape, ShapeAloneIsChecked) {
  const auto check = [](void (*verify)(std::string_view, int&), std::string_view text) {
    int error = 0;
    verify(text, error);
    return error;
  };
  for (const char* good : {"12/05/03", "99/99/99", "00/00/00", "12/05/2003"})
    EXPECT_EQ(check(Verifie_Date, good), 0) << good;
  for (const char* bad : {"12-05/03", "12/05-03", "1A/05/03", "12/05/0 ", "/2/05/03", "12/:5/03", "        "})
    EXPECT_EQ(check(Verifie_Date, bad), 1) << bad;
  for (const char* good : {"12:34", "99:99", "12:34:56"}) EXPECT_EQ(check(Verifie_Heure, good), 0) << good;
  for (const char* bad : {"12h34", "1234:", " 2:34", "12:3A"}) EXPECT_EQ(check(Verifie_Heure, bad), 1) << bad;

  EXPECT_THROW(check(Verifie_Date, "12/05/0"), Erreur_Execution);
  EXPECT_THROW(check(Verifie_Date, ""), Erreur_Execution);
  EXPECT_THROW(check(Verifie_Heure, "12:3"), Erreur_Execution);

  // A good text doesn't take back an error found before.
  int error = 1;
  Verifie_Heure("12:34", error);
  EXPECT_EQ(error, 1);
}

}  // namespace
}  // namespace vorelio::tests
