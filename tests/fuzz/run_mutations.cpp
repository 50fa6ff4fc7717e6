// Feeds a target of targets.h with random and mutated files for some time, without a fuzzer:
//   import_fuzz adif|edi|native|adif3|edi_journal|cluster|log|departments|... SECONDS [SEED]
// Ends with an abort at the first breach; prints how the imports have ended.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>

#include "fuzz/mutations.h"
#include "fuzz/targets.h"

int main(int argc, char** argv) {
  using namespace vorelio::tests;
  const FuzzTarget target = argc > 2 ? TargetOf(argv[1]) : FuzzTarget{};
  if (!target.run) {
    std::fprintf(stderr, "usage: import_fuzz TARGET SECONDS [SEED], with a target of targets.h\n");
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
