#include <gtest/gtest.h>

#include <map>

#include "fuzz/import_target.h"
#include "fuzz/mutations.h"

namespace vorelio::tests {
namespace {

constexpr int kFiles = 300;

/// The short run over a fixed choice of files; what goes wrong in one aborts with a word about it.
void RunFixed(const ImportTarget::Importer& importer) {
  ImportTarget target(importer);
  EXPECT_EQ(target.Run(importer.seed), 0);
  Mutations mutations(20030512);
  std::map<int, int> ends;
  for (int i = 0; i < kFiles; ++i) ++ends[target.Run(mutations.Next(importer.seed))];
  // Files that come through, and files that stop it, both belong to the choice.
  EXPECT_GT(ends[0], kFiles / 20);
  EXPECT_LT(ends[0], kFiles);
  EXPECT_GT(ends[13], 0);
}

TEST(ImportFuzz, Adif) { RunFixed(ImportTarget::Adif()); }
TEST(ImportFuzz, Edi) { RunFixed(ImportTarget::Edi()); }
TEST(ImportFuzz, Native) { RunFixed(ImportTarget::Native()); }

}  // namespace
}  // namespace vorelio::tests
