// What a file's bytes say of themselves before a decoder sees them. Survives any bytes, allocates nothing.
#pragma once

#include <optional>
#include <string_view>

#include "platform/Picture.h"

namespace pixmosa {

// The placeable header, or a bare metafile header of type 1 or 2 with nine words.
bool EsMetafile(std::string_view bytes);

// The size of the largest picture in an icon or cursor, by its list and by the pictures' own headers,
// whichever says more; nothing for other kinds.
std::optional<Extent> TamanoDeIcono(std::string_view bytes);

// The screen of a GIF file, which every frame is cut to; empty for other kinds and for a screen without a
// size.
Extent TamanoDeGif(std::string_view bytes);

// A JPEG, PNG or BMP file that ends before its picture does.
bool Cortada(std::string_view bytes);

// A GIF file that ends inside its first picture; its reader shows what there is.
bool GifCortado(std::string_view bytes);

// Where the first picture of a GIF lies on its screen; empty where there is none.
struct Recuadro {
  int left = 0, top = 0, width = 0, height = 0;
};
Recuadro PrimeroDeGif(std::string_view bytes);

}  // namespace pixmosa
