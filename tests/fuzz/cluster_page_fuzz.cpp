#include <cstddef>
#include <cstdint>

#include "fuzz/cluster_page_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  vorelio::tests::RunClusterPage({reinterpret_cast<const char*>(data), size});
  return 0;
}
