#include "cli/OrdenAscii.h"

#include <algorithm>

#include "cli/OpcionesDeTexto.h"
#include "conversion/TextoGuardado.h"

namespace pixmosa::cli {
namespace {

// The names of the methods, in the order of their numbers.
const std::vector<const char*> kMetodos = {"grises", "bordes", "antialias"};

int MetodoDe(const Argumentos& arguments) {
  const std::string name = arguments.Texto("--metodo").value_or(kMetodos[0]);
  return static_cast<int>(std::find(kMetodos.begin(), kMetodos.end(), name) - kMetodos.begin());
}

constexpr std::int64_t kMasCaracteres = 400'000'000;

void Convertir(Consola& consola, Conversion& c, const std::string& operand, int method) {
  const Picture resized = consola.LeerImagenReducida(operand, [&](Extent source) {
    const Extent size = ResizedExtent(c.ascii, source, method);
    if (std::int64_t{size.width} * size.height > kMasCaracteres)
      throw ErrorDeTrabajo("El texto de \"" + operand + "\" sería demasiado grande: " +
                           std::to_string(size.width) + " x " + std::to_string(size.height) + " caracteres.");
    return size;
  });
  ConvertResized(c.ascii, c.ajustes, resized, method);
}

std::string Guardado(const Conversion& c) {
  return TextoGuardado(PanelFuente(c.ajustes.font), PanelTamaño(c.ajustes.font), c.ascii.ProducedText);
}

int Hacer(Consola& consola, const Argumentos& arguments) {
  arguments.ExigirOperandos(1, SIZE_MAX, "la imagen");
  const std::optional<std::string> file = arguments.Texto("-o"), folder = arguments.Texto("--carpeta");
  const std::vector<std::string>& pictures = arguments.Operandos();
  if (file && folder) throw ErrorDeUso("las opciones -o y --carpeta no van juntas");
  if (pictures.size() > 1 && !folder) throw ErrorDeUso("varias imágenes necesitan la opción --carpeta");

  const int method = MetodoDe(arguments);
  Conversion c = PrepararConversion(consola, arguments);
  c.ajustes.relleno = arguments.Tiene("--relleno");
  if (method == kAntiAlias) c.ascii.Palette3x2 = LoadPalette3x2(Consola::CarpetaDelPrograma());
  if (folder)
    return ConvertirACarpeta(consola, pictures, *folder, ".txt",
                             [&](const std::string& operand, const std::string& to) {
                               Convertir(consola, c, operand, method);
                               consola.EscribirArchivo(to, Guardado(c));
                             });
  Convertir(consola, c, pictures[0], method);
  if (file) {
    consola.EscribirArchivo(*file, Guardado(c));
  } else {
    consola.EscribirTexto(c.ascii.ProducedText);
  }
  return 0;
}

}  // namespace

Orden OrdenAscii() {
  return {
      "ascii",
      "IMAGEN...",
      "Convierte imágenes en texto.",
      "pixmosa-cli ascii foto.jpg --columnas 100",
      Juntar({{"-o", Tipo::Texto, "TEXTO.txt", "archivo donde se guarda; si falta, la salida estándar"},
              {"--carpeta", Tipo::Texto, "DIR", "carpeta donde se guarda un NOMBRE.txt de cada imagen"},
              {"--metodo", Tipo::Eleccion, "", "el método; si falta, grises", 0, 0, kMetodos},
              {"--relleno", Tipo::Interruptor, "", "con bordes: rellena de \":\" el interior de las formas"}},
             OpcionesDeTexto()),
      Hacer};
}

}  // namespace pixmosa::cli
