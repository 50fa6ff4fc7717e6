// Feeds an importer with random and mutated files for some time, without a fuzzer:
//   import_fuzz adif|edi|native SECONDS [SEED]
// Ends with an abort at the first breach; prints how the imports have ended.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <random>

#include "fuzz/import_target.h"
#include "fuzz/mutations.h"

namespace {

using namespace vorelio::tests;

const ImportTarget::Importer* ImporterOf(const char* name) {
  if (std::strcmp(name, "adif") == 0) return &ImportTarget::Adif();
  if (std::strcmp(name, "edi") == 0) return &ImportTarget::Edi();
  if (std::strcmp(name, "native") == 0) return &ImportTarget::Native();
  return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  const auto* importer = argc > 2 ? ImporterOf(argv[1]) : nullptr;
  if (!importer) {
    std::fprintf(stderr, "usage: import_fuzz adif|edi|native SECONDS [SEED]\n");
    return 2;
  }
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(std::atoi(argv[2]));
  const unsigned seed = argc > 3 ? static_cast<unsigned>(std::strtoul(argv[3], nullptr, 10)) : std::random_device{}();
  std::printf("seed %u\n", seed);
  std::fflush(stdout);

  ImportTarget target(*importer);
  Mutations mutations(seed);
  std::map<int, long> ends;
  while (std::chrono::steady_clock::now() < end) ++ends[target.Run(mutations.Next(importer->seed))];
  for (const auto& [error, count] : ends) std::printf("%d: %ld\n", error, count);
  return 0;
}
