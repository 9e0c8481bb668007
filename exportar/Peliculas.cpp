#include "exportar/Peliculas.h"

#include <algorithm>

namespace pixmosa {
namespace {

constexpr FormatoDePelicula kFormatos[] = {
    {"html", "Página con reproductor", AbrirReproductor},
    {"gif", "Imagen animada GIF", AbrirGifDePelicula},
    {"cast", "Grabación de terminal", AbrirGrabacion},
};

}  // namespace

std::span<const FormatoDePelicula> FormatosDePelicula() {
  return kFormatos;
}

const FormatoDePelicula* FormatoDePeliculaDe(std::string_view ending) {
  for (const FormatoDePelicula& f : kFormatos)
    if (std::ranges::equal(ending, std::string_view(f.terminacion), {}, MinusculaAscii)) return &f;
  return nullptr;
}

}  // namespace pixmosa
