#include <cstddef>
#include <cstdint>

#include "fuzz/import_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using vorelio::tests::ImportTarget;
  static ImportTarget target(ImportTarget::Adif());
  target.Run({reinterpret_cast<const char*>(data), size});
  return 0;
}
