#include <gtest/gtest.h>

#include <map>

#include "fuzz/cluster_page_target.h"
#include "fuzz/mutations.h"

namespace vorelio::tests {
namespace {

TEST(ClusterPageFuzz, FixedPages) {
  const std::string seed = ClusterPageSeed();
  EXPECT_EQ(RunClusterPage(seed), 0);
  Mutations mutations(20030512);
  std::map<int, int> ends;
  for (int i = 0; i < 5000; ++i) ++ends[RunClusterPage(mutations.Next(seed))];
  for (const int error : {0, 5, 62}) EXPECT_GT(ends[error], 100) << error;
}

}  // namespace
}  // namespace vorelio::tests
