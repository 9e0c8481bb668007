// Any bytes as a GIF: every frame file lies inside the input, and their sizes stay bounded.
#include <cstdint>
#include <cstdlib>

#include "platform/AtomicFile.h"
#include "web/basGIF.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view gif(reinterpret_cast<const char*>(data), size);
  try {
    const pixmosa::GifCut cut = pixmosa::CutGif(gif);
    std::size_t last = 0, total = 0;
    for (std::size_t i = 0; i < cut.positions.size(); ++i) {
      if (cut.positions[i] <= last || cut.positions[i] > size) std::abort();
      last = cut.positions[i];
      const std::string_view own = cut.Frame(gif, i);
      if (own.data() < gif.data() || own.data() + own.size() > gif.data() + size) std::abort();
      const std::string file = cut.FrameFile(gif, i);
      if (file.size() > size) std::abort();
      total += file.size();
    }
    // The frames lie end to end in the GIF; the copies of the header may take its size again and 64 MiB.
    if (total > 2 * size + (std::size_t{64} << 20)) std::abort();
  } catch (const pixmosa::FileError&) {
  }
  return 0;
}
