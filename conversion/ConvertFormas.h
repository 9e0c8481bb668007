// Art near to the picture: for every cell the character whose drawing has the cell's light ("Tono"), or its
// light and its shape ("Formas"), after the picture's tones were fitted to what the characters can show.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "conversion/Caracteres.h"
#include "conversion/Malla.h"
#include "platform/Picture.h"

namespace pixmosa {

struct AjustesDeFormas {
  int nitidez = 50;         // 0..100, weight of shape against tone
  int contrasteLocal = 40;  // 0..100 %
  bool ajustarTono = true;  // stretch the picture's tones to the font's range
  bool operator==(const AjustesDeFormas&) const = default;
};

// The measured characters and what choosing among them needs, made once for a font and a set.
struct Repertorio {
  std::vector<CaracterMedido> caracteres{};  // ascending
  double claridadMinima = 0, claridadMaxima = 1;
  Extent celda{1, 1};
};

// Of `characters`, one at least of which draws something.
Repertorio MedirRepertorio(TextSurface& surface, const Font& font, Extent cell,
                           std::u32string_view characters, bool negative);

// The lightness of a picture's parts as it was last made: a dragged slider need not read the picture again.
struct ClaridadHecha {
  Picture imagen{};
  Malla partes{};
};

// The text's rows of size.width characters, one after another, without line ends; none is dropped.
// `luminosity` is -100..100. `made` is used where it is of this picture and size, and follows them.
std::u32string ConvertFormas(const Repertorio& from, const AjustesDeFormas& settings, int luminosity,
                             const Picture& picture, Extent size, ClaridadHecha* made = nullptr);
std::u32string ConvertTono(const Repertorio& from, const AjustesDeFormas& settings, int luminosity,
                           const Picture& picture, Extent size, ClaridadHecha* made = nullptr);

}  // namespace pixmosa
