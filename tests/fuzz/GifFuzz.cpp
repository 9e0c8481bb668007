// Any bytes as a GIF: every frame file lies inside the input, their sizes stay bounded, and its blocks can be
// gone through.
#include <cstdint>
#include <cstdlib>

#include "web/basGIF.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  pixmosa::OrigenGif gif(std::string(reinterpret_cast<const char*>(data), size));
  pixmosa::GifCompleto(gif);
  try {
    const pixmosa::GifCut cut = pixmosa::CutGif(gif);
    std::size_t last = 0, total = 0;
    for (std::size_t i = 0; i < cut.positions.size(); ++i) {
      if (cut.positions[i] <= last || cut.positions[i] > size) std::abort();
      last = cut.positions[i];
      const std::string file = pixmosa::FrameFile(gif, cut, i);
      if (file.size() > size) std::abort();
      total += file.size();
    }
    // The frames lie end to end in the GIF; the copies of the header may take its size again and 64 MiB.
    if (total > 2 * size + (std::size_t{64} << 20)) std::abort();
  } catch (const pixmosa::FileError&) {
  }
  return 0;
}
