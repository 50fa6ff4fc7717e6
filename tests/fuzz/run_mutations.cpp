// Feeds an importer, or the reader of the cluster page, with random and mutated files for some time, without a fuzzer:
//   import_fuzz adif|edi|native|cluster SECONDS [SEED]
// Ends with an abort at the first breach; prints how the imports have ended.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <random>

#include "fuzz/cluster_page_target.h"
#include "fuzz/import_target.h"
#include "fuzz/mutations.h"

namespace {

using namespace vorelio::tests;

/// What is fed, and a file that goes well.
struct Target {
  std::function<int(std::string_view)> run;
  std::string seed;
};

Target TargetOf(const char* name) {
  const auto importing = [](const ImportTarget::Importer& importer) {
    const auto target = std::make_shared<ImportTarget>(importer);
    return Target{[target](std::string_view file) { return target->Run(file); }, importer.seed};
  };
  if (std::strcmp(name, "adif") == 0) return importing(ImportTarget::Adif());
  if (std::strcmp(name, "edi") == 0) return importing(ImportTarget::Edi());
  if (std::strcmp(name, "native") == 0) return importing(ImportTarget::Native());
  if (std::strcmp(name, "cluster") == 0) return {RunClusterPage, ClusterPageSeed()};
  return {};
}

}  // namespace

int main(int argc, char** argv) {
  const Target target = argc > 2 ? TargetOf(argv[1]) : Target{};
  if (!target.run) {
    std::fprintf(stderr, "usage: import_fuzz adif|edi|native|cluster SECONDS [SEED]\n");
    return 2;
  }
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(std::atoi(argv[2]));
  const unsigned seed = argc > 3 ? static_cast<unsigned>(std::strtoul(argv[3], nullptr, 10)) : std::random_device{}();
  std::printf("seed %u\n", seed);
  std::fflush(stdout);

  Mutations mutations(seed);
  std::map<int, long> ends;
  while (std::chrono::steady_clock::now() < end) ++ends[target.run(mutations.Next(target.seed))];
  for (const auto& [error, count] : ends) std::printf("%d: %ld\n", error, count);
  return 0;
}
