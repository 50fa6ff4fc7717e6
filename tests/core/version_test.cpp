#include <gtest/gtest.h>

#include "forms/station_context.h"

namespace vorelio::tests {

// The build's version is told with a blank before it and a letter behind it.
TEST(VersionTest, TheWindowsAndTheHistoryNameTheBuilds) {
  const std::string revision = Revision_Programme;
  EXPECT_EQ(revision.substr(0, revision.size() - 1), " " VORELIO_VERSION);

  const std::string history = Historique_Revisions();
  const std::size_t last_line = history.rfind("\r\n", history.size() - 3) + 2;
  EXPECT_EQ(history.find(" " + revision + " ", last_line), last_line + std::string("dd/mm/yyyy").size());
}

}  // namespace vorelio::tests
