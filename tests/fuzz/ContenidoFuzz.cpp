// Any bytes asked what they are before a decoder sees them.
#include "platform/decodificador/Contenido.h"
#include "tests/fuzz/Fuzz.h"

void Fuzz(std::string_view bytes) {
  if (const auto icon = TamanoDeIcono(bytes))
    Check(icon->width >= 1 && icon->height >= 1 && bytes.size() >= 22);
  // A file that is not whole does not become so by losing its end.
  const std::string_view less = bytes.substr(0, bytes.size() / 2);
  Check(!GifCortado(bytes) || less.size() < 4 || GifCortado(less));
  Check(!Cortada(bytes) || !bytes.starts_with("\x89PNG") || less.size() < 8 || Cortada(less));
  EsMetafile(bytes);
}
