// Any bytes as a standard font.
#include <cstdint>

#include "tests/fuzz/Fuente.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  RewriteAny({reinterpret_cast<const char*>(data), size});
  return 0;
}
