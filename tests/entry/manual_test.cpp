#include "entry/ddfm.h"
#include "support/station_fixture.h"

namespace vorelio::tests {

using ManualTest = StationFixture;

TEST_F(ManualTest, OpensBesideTheProgramOrTellsWhereItIs) {
  ReadyStation();
  const auto open_manual = [&] { Event([&] { programme->Fenetre<DDFM>().Mnu_Mode_Emploi.UserClick(); }); };
  open_manual();
  ASSERT_EQ(devices.documents.opened, Lines{folder.File("manuel/index.html")});
  EXPECT_TRUE(messages.TakeMessages().empty());

  devices.documents.readable = false;
  open_manual();
  const auto shown = messages.TakeMessages();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_NE(shown[0].find(folder.File("manuel/index.html")), std::string::npos);
}

}  // namespace vorelio::tests
