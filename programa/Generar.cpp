#include "programa/Generar.h"

#include "conversion/Malla.h"

namespace pixmosa {

Trabajo QueGenerar(const Programa& p) {
  if (!HayImagen(p)) return Trabajo::PedirImagen;
  switch (p.modo) {
    case kModoGrises:
      return p.animArt ? Trabajo::AnimArt : Trabajo::Texto;
    case kModoBordes:
    case kModoAntialias:
      return Trabajo::Texto;
    case kModoMosaico:
    case kModoCopiaExacta:
      return Trabajo::WebArt;
    case kModoTexto:
      break;
  }
  return Trabajo::Ninguno;
}

int MetodoDe(const Programa& p) {
  if (p.modo == kModoGrises) return p.ajustes.conversion;
  return p.modo <= kModoAntialias ? static_cast<int>(p.modo) : -1;
}

Extent MedidasDelTexto(const Programa& p, int method) {
  const Extent text = ResizedExtent(p.basAscii, p.imagen.picMain.Size(), method);
  return method == kAntiAlias ? Extent{text.width / 3, text.height / 3} : text;
}

std::optional<Extent> TextoEnorme(const Programa& p, int method) {
  constexpr int kMasFilas = 20'000;
  constexpr std::int64_t kMasLetras = 20'000'000;
  const Extent text = MedidasDelTexto(p, method);
  if (text.height <= kMasFilas && std::int64_t{text.width} * text.height <= kMasLetras) return std::nullopt;
  return text;
}

bool Generar(Programa& p, int method) {
  if (EsDeFormas(method)) PrepararRepertorio(p.basAscii, p.ajustes, p.superficie);
  const bool made = GenerateAscii(p.basAscii, p.ajustes, p.imagen.picMain, method);
  if (made) p.metodoDelTexto = method;
  return made;
}

Extent PixelesDeFormas(int columns) {
  return {kMuestrasDeAncho * kSubAncho * columns, 1};
}

void GenerarDe(Programa& p, const LeerReducida& read, int method) {
  Extent text;
  if (EsDeFormas(method)) {
    PrepararRepertorio(p.basAscii, p.ajustes, p.superficie);
    const Picture picture = read(Lectura::Reducida, [&](Extent source) {
      text = ResizedExtent(p.basAscii, source, method);
      return PixelesDeFormas(text.width);
    });
    ConvertirFormas(p.basAscii, p.ajustes, picture, text, method);
    return;
  }
  const Picture resized =
      read(Lectura::Estirada, [&](Extent source) { return ResizedExtent(p.basAscii, source, method); });
  ConvertResized(p.basAscii, p.ajustes, resized, method);
}

void CargarPaleta3x2(Programa& p) {
  p.basAscii.Palette3x2 = LoadPalette3x2(p.carpeta);
}

}  // namespace pixmosa
