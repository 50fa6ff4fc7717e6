#include <gtest/gtest.h>

#include <map>

#include "fuzz/mutations.h"
#include "fuzz/targets.h"

namespace vorelio::tests {
namespace {

/// The short run over a fixed choice of files: how many of them end in which error. What goes wrong in one aborts with
/// a word about it.
std::map<int, int> Ends(const char* name, int files) {
  const FuzzTarget target = TargetOf(name);
  EXPECT_EQ(target.run(target.seed), 0) << name;
  Mutations mutations(20030512);
  std::map<int, int> ends;
  for (int i = 0; i < files; ++i) ++ends[target.run(mutations.Next(target.seed))];
  return ends;
}

TEST(Fuzz, Imports) {
  for (const char* name : {"adif", "edi", "native"}) {
    auto ends = Ends(name, 300);
    // Files that come through, and files that stop it, both belong to the choice.
    EXPECT_GT(ends[0], 15) << name;
    EXPECT_LT(ends[0], 300) << name;
    EXPECT_GT(ends[13], 0) << name;
  }
}

TEST(Fuzz, FilesOfTheFolder) {
  for (const auto& [name, file] : FolderFiles()) {
    SCOPED_TRACE(name);
    Ends(name.c_str(), 12);
  }
}

TEST(Fuzz, Journals) {
  for (const char* name : {"adif3", "edi_journal"}) {
    auto ends = Ends(name, 1500);
    for (const int end : {0, 1, 2}) EXPECT_GT(ends[end], 20) << name << " " << end;
  }
}

TEST(Fuzz, ClusterPage) {
  auto ends = Ends("cluster", 5000);
  for (const int error : {0, 5, 62}) EXPECT_GT(ends[error], 100) << error;
}

}  // namespace
}  // namespace vorelio::tests
