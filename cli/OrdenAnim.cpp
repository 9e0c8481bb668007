#include "cli/OrdenAnim.h"

#include <algorithm>
#include <filesystem>
#include <memory>

#include "cli/Lista.h"
#include "cli/OpcionesDeTexto.h"
#include "cli/OrdenFotogramas.h"
#include "platform/CodePage.h"
#include "web/AnimArt.h"
#include "web/basGIF.h"

namespace pixmosa::cli {
namespace {

// A series of pictures by number.
struct Serie {
  std::size_t cuantos;
  std::function<Picture(std::size_t)> leer;  // throws PictureError
};

Serie SerieDe(Consola& consola, const std::string& operand) {
  if (std::error_code ec; std::filesystem::is_directory(operand, ec)) {
    const auto files = ImagenesDeCarpeta(operand);
    return {files.size(), [&consola, files](std::size_t k) { return consola.Imagenes().Read(files[k]); }};
  }
  const auto gif = std::make_shared<FuenteGif>(AbrirGif(consola, operand));
  const auto cut = std::make_shared<const GifCut>(CutGif(*gif));
  return {cut->positions.size(), [&consola, gif, cut, operand](std::size_t k) {
            return consola.Imagenes().ReadBytes(FrameFile(*gif, *cut, k), operand);
          }};
}

// The chosen frames (0-based), ascending; all without the option.
std::vector<std::size_t> Elegidos(const Argumentos& arguments, std::size_t count) {
  std::vector<std::size_t> chosen;
  const auto text = arguments.Texto("--fotogramas");
  if (!text) {
    for (std::size_t i = 0; i < count; ++i) chosen.push_back(i);
    return chosen;
  }
  for (const std::string& word : Separar(*text)) {
    const auto n = EnteroDeTexto(word, 1, static_cast<int>(count));
    if (!n)
      throw ErrorDeUso("la opción --fotogramas espera números de 1 a " + std::to_string(count) + ", no \"" +
                       word + "\"");
    chosen.push_back(static_cast<std::size_t>(*n) - 1);
  }
  std::sort(chosen.begin(), chosen.end());
  chosen.erase(std::unique(chosen.begin(), chosen.end()), chosen.end());
  return chosen;
}

int Hacer(Consola& consola, const Argumentos& arguments) {
  arguments.ExigirOperandos(1, 1, "el GIF o la carpeta");
  const std::string operand = arguments.Operandos()[0], file = arguments.Exigir("-o");
  const Serie series = SerieDe(consola, operand);
  if (series.cuantos == 0) throw ErrorDeTrabajo("No hay fotogramas en \"" + operand + "\".");
  const std::vector<std::size_t> chosen = Elegidos(arguments, series.cuantos);
  Conversion c = PrepararConversion(consola, arguments);
  EscribirAnimArt(file, chosen.size(), BytesOfUtf8(c.ajustes.font.name), [&](std::size_t k) -> std::string& {
    consola.Progreso("Fotograma", k, chosen.size());
    try {
      GenerateAscii(c.ascii, c.ajustes, series.leer(chosen[k]), kGrayscale);
    } catch (const PictureError&) {
      // A frame that cannot be read repeats the one before.
    }
    return c.ascii.ProducedText;
  });
  consola.Progreso("Fotograma", chosen.size(), chosen.size());
  return 0;
}

}  // namespace

Orden OrdenAnim() {
  return {"anim",
          "GIF|CARPETA -o PAGINA.html",
          "Escribe una página HTML que muestra uno tras otro los fotogramas convertidos en texto.",
          "pixmosa-cli anim baile.gif -o baile.html --columnas 80",
          Juntar({{"-o", Tipo::Texto, "PAGINA.html", "la página que se escribe"},
                  {"--fotogramas", Tipo::Texto, "LISTA", "los que se muestran, como 2,5,7; si falta, todos"}},
                 OpcionesDeTexto()),
          Hacer};
}

}  // namespace pixmosa::cli
