// The frame of every fuzzer, which includes this once and defines Fuzz.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace pixmosa {}
using namespace pixmosa;

inline void Check(bool holds) {
  if (!holds) std::abort();
}

void Fuzz(std::string_view bytes);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Fuzz({reinterpret_cast<const char*>(data), size});
  return 0;
}
