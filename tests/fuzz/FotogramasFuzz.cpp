// Any bytes as an animated GIF: every frame has the screen's size and a delay that is played.
#include "platform/gif/LectorDeGif.h"
#include "tests/fuzz/Fuzz.h"

void Fuzz(std::string_view bytes) {
  constexpr std::int64_t kMasPixeles = 1 << 16;  // larger screens take time and nothing else
  try {
    const auto reader = AbrirGif(std::string(bytes), "x");
    const Extent size = reader->Tamaño();
    if (std::int64_t{size.width} * size.height > kMasPixeles) return;
    std::size_t frames = 0;
    while (const std::optional<Fotograma> frame = reader->Siguiente()) {
      Check(frame->imagen.Size() == size && frame->milisegundos >= kMenosMilisegundos);
      ++frames;
    }
    Check(frames <= reader->Cuantos());
  } catch (const PictureError&) {
  }
}
