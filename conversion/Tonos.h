// A picture's light as the light of a page of characters: lightness, local contrast, range, page.
#pragma once

#include <cstdint>
#include <vector>

#include "conversion/ConvertFormas.h"
#include "conversion/EleccionDeForma.h"
#include "conversion/Malla.h"

namespace pixmosa {

// The light that each part of the page should have, 0..kLuzDePagina, rows of size.width * across parts; each
// cell has across x down of them.
std::vector<std::int16_t> TonosDePagina(const Repertorio& from, const AjustesDeFormas& settings,
                                        int luminosity, const Picture& picture, Extent size, int across,
                                        int down, ClaridadHecha* made = nullptr);

}  // namespace pixmosa
