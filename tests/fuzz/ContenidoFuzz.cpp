// Any bytes asked what they are before a decoder sees them.
#include <cstdint>
#include <cstdlib>

#include "platform/decodificador/Contenido.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (const auto icon = pixmosa::TamanoDeIcono(bytes))
    if (icon->width < 1 || icon->height < 1 || size < 22) std::abort();
  // A file that is not whole does not become so by losing its end.
  const std::string_view less = bytes.substr(0, size / 2);
  if (pixmosa::GifCortado(bytes) && less.size() >= 4 && !pixmosa::GifCortado(less)) std::abort();
  if (bytes.starts_with("\x89PNG") && less.size() >= 8 && pixmosa::Cortada(bytes) && !pixmosa::Cortada(less))
    std::abort();
  pixmosa::Cortada(bytes);
  pixmosa::EsMetafile(bytes);
  return 0;
}
