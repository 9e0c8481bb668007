#include "programa/Dibujar.h"

#include <algorithm>
#include <vector>

#include "exportar/Colorear.h"
#include "platform/Stretch.h"

namespace pixmosa {
namespace {

// The rows of `resized` that the grayscale method keeps; the dark ones that it drops stand empty at the
// text's end.
std::vector<int> FilasConservadas(const Programa& p, const Picture& resized) {
  std::vector<int> rows;
  for (int y = 0; y < resized.Height(); ++y) {
    Picture row(resized.Width(), 1);
    std::ranges::copy(resized.Row(y), row.Writable());
    if (!ConvertGrayscale(p.basAscii, p.ajustes.luminosity, row).empty()) rows.push_back(y);
  }
  return rows;
}

void ComprobarTamano(std::size_t count) {
  if (count > kMasCeldas)
    throw DibujoExcesivo("El dibujo es demasiado grande para este formato: " + std::to_string(count) +
                         " caracteres; el máximo son 40 millones.");
}

// Every character in the mean colour of its part of `source`.
void Colorear(Dibujo& drawing, const Programa& p, const Picture& source, const Picture& resized, int method) {
  if (drawing.Columnas() == 0) return;
  const Extent cells = {p.basAscii.AsciiColumns, static_cast<int>(drawing.filas.size())};
  const std::vector<int> rows = method == kGrayscale ? FilasConservadas(p, resized) : std::vector<int>{};
  Colorear(drawing, MediasDeCeldas(source, cells), rows);
}

// The text in the window is a banner that has colours of its own.
bool EsLetreroEnColor(const Programa& p) {
  return p.metodoDelTexto < 0 && !p.basFigLet.Banner.empty() && p.letrero.acabado.degradado;
}

}  // namespace

OpcionesDeExportar OpcionesDeVentana(const Programa& p) {
  OpcionesDeExportar options = p.exportar;
  options.color = options.color || EsLetreroEnColor(p);
  return options;
}

Dibujo DibujoDe(const Programa& p) {
  ComprobarTamano(p.basAscii.ProducedText.size());
  return p.basAscii.ProducedUtf8.empty() ? DibujoDeTexto(p.basAscii.ProducedText)
                                         : DibujoDeUtf8(p.basAscii.ProducedUtf8);
}

Dibujo DibujoEnColor(const Programa& p, const Picture& source, const Picture& resized, int method) {
  Dibujo drawing = DibujoDe(p);
  Colorear(drawing, p, source, resized, method);
  return drawing;
}

Dibujo DibujoDeVentana(const Programa& p, std::string_view utf8) {
  ComprobarTamano(utf8.size());
  Dibujo drawing = DibujoDeUtf8(utf8);
  if (EsLetreroEnColor(p)) Degradar(drawing, *p.letrero.acabado.degradado);
  if (!p.exportar.color || p.metodoDelTexto < 0 || !HayImagen(p)) return drawing;
  const Picture& source = p.imagen.picMain;
  const bool drops = p.metodoDelTexto == kGrayscale;
  Colorear(drawing, p, source,
           drops ? Stretch(source, ResizedExtent(p.basAscii, source.Size(), kGrayscale)) : Picture(),
           p.metodoDelTexto);
  return drawing;
}

OrigenDeImagen OrigenDe(const Picture& picture) {
  return {[picture] { return picture; },
          [picture](Lectura how, const std::function<Extent(Extent)>& size) {
            const Extent wanted = size(picture.Size());
            return how == Lectura::Estirada ? Stretch(picture, wanted) : picture;
          }};
}

OrigenDeImagen OrigenDe(PictureCodec& codec, const std::filesystem::path& file) {
  return {[&codec, file] { return codec.Read(file); },
          [&codec, file](Lectura how, const std::function<Extent(Extent)>& size) {
            return how == Lectura::Estirada ? codec.ReadStretched(file, size) : codec.ReadReduced(file, size);
          }};
}

Dibujo GenerarDibujo(Programa& p, const OrigenDeImagen& source, int method, bool color) {
  if (!color) {
    GenerarDe(p, source.reducida, method);
    return DibujoDe(p);
  }
  // Of a photograph two quick readings side by side take less time than the whole of it.
  const Extent wanted = PixelesDeFormas(p.basAscii.AsciiColumns);
  const bool twice = !EsDeFormas(method) && source.adelantar(wanted);
  Picture picture, resized;
  GenerarDe(
      p,
      [&](Lectura how, const std::function<Extent(Extent)>& size) {
        if (how == Lectura::Reducida) return picture = source.reducida(how, size);
        if (twice) return resized = source.reducida(how, size);
        picture = source.entera();
        return resized = Stretch(picture, size(picture.Size()));
      },
      method);
  if (picture.IsEmpty()) picture = source.reducida(Lectura::Reducida, [&](Extent) { return wanted; });
  return DibujoEnColor(p, picture, resized, method);
}

}  // namespace pixmosa
