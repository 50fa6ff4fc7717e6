#include "qt/single_program.h"

#include <QFile>
#include <QTest>

#include "windows/windows_bench.h"

namespace vorelio::tests {
namespace {

ProgramFolder Folder(const std::string& path) {
  return {ToQt(path), path, QFile::encodeName(ToQt(path)).toStdString()};
}

TEST(SingleProgramTest, TheSecondOneCallsTheFirst) {
  const ScratchFolder folder, elsewhere;
  int calls = 0;
  SingleProgram first(Folder(folder.Path()));
  EXPECT_TRUE(first.First());
  first.Listen([&] { ++calls; });
  for (const std::string& way : {folder.Path(), folder.Path() + "/./"}) {
    const SingleProgram second(Folder(way));
    EXPECT_FALSE(second.First());
    EXPECT_TRUE(second.Call());
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return calls == 2; }));

  const SingleProgram other(Folder(elsewhere.Path()));
  EXPECT_TRUE(other.First());
  EXPECT_FALSE(other.Call());
}

}  // namespace
}  // namespace vorelio::tests
