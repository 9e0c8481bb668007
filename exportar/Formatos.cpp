#include "exportar/Formatos.h"

#include <algorithm>

#include "exportar/Escritores.h"

namespace pixmosa {
namespace {

constexpr Formato kFormatos[] = {
    {"txt", "Texto", ComoTxt},
    {"html", "Página web", ComoHtml},
    {"svg", "Imagen vectorial SVG", ComoSvg},
    {"png", "Imagen PNG", ComoPng},
    {"ans", "Texto con colores para terminales", ComoAns},
};

}  // namespace

std::span<const Formato> Formatos() {
  return kFormatos;
}

const Formato* FormatoDe(std::string_view ending) {
  for (const Formato& f : kFormatos)
    if (std::ranges::equal(ending, std::string_view(f.terminacion), {}, MinusculaAscii)) return &f;
  return nullptr;
}

}  // namespace pixmosa
