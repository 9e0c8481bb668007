// Any bytes as a GIF: every frame file lies inside the input, their sizes stay bounded, and its blocks can be
// gone through.
#include "tests/fuzz/Fuzz.h"
#include "web/basGIF.h"

void Fuzz(std::string_view bytes) {
  OrigenGif gif{std::string(bytes)};
  GifCompleto(gif);
  try {
    const GifCut cut = CutGif(gif);
    std::size_t last = 0, total = 0;
    for (std::size_t i = 0; i < cut.positions.size(); ++i) {
      Check(cut.positions[i] > last && cut.positions[i] <= bytes.size());
      last = cut.positions[i];
      const std::string file = FrameFile(gif, cut, i);
      Check(file.size() <= bytes.size());
      total += file.size();
    }
    // The frames lie end to end in the GIF; the copies of the header may take its size again and 64 MiB.
    Check(total <= 2 * bytes.size() + (std::size_t{64} << 20));
  } catch (const FileError&) {
  }
}
