#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "entry/ddfm.h"
#include "pilot/pilot.h"
#include "pilot/windows/windows_way.h"

/// pilot [--windows] SCENARIO...: drives the program from scenario files. The exit status is 0 if every expectation of
/// every scenario held.
int main(int argc, char** argv) {
  using namespace vorelio;
  std::vector<std::string> files(argv + 1, argv + argc);
  const bool windows = !files.empty() && files.front() == "--windows";
  if (windows) files.erase(files.begin());
  if (files.empty() || files.front().starts_with("--")) {
    std::cerr << "usage: pilot [--windows] SCENARIO...\n";
    return 2;
  }

  const auto desktop = windows ? std::make_unique<pilot::Desktop>() : nullptr;
  const pilot::Score score = pilot::RunFiles(
      files, windows ? pilot::MakeWindowsWay : pilot::MakeFormsWay,
      [](Programme& programme) { programme.Fenetre<DDFM>(); }, std::cout);
  return score.failed == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
