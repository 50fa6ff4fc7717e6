#include <cstddef>
#include <cstdint>

#include "fuzz/targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto target = vorelio::tests::TargetOf(VORELIO_FUZZ_TARGET);
  target.run({reinterpret_cast<const char*>(data), size});
  return 0;
}
