#include "cli/OrdenAscii.h"

#include "cli/OpcionesDeTexto.h"
#include "conversion/TextoGuardado.h"

namespace pixmosa::cli {
namespace {

constexpr int kMetodo = kGrayscale;
constexpr std::int64_t kMasCaracteres = 400'000'000;

void Convertir(Consola& consola, Conversion& c, const std::string& operand) {
  const Picture resized = consola.LeerImagenReducida(operand, [&](Extent source) {
    const Extent size = ResizedExtent(c.ascii, source, kMetodo);
    if (std::int64_t{size.width} * size.height > kMasCaracteres)
      throw ErrorDeTrabajo("El texto de \"" + operand + "\" sería demasiado grande: " +
                           std::to_string(size.width) + " x " + std::to_string(size.height) + " caracteres.");
    return size;
  });
  ConvertResized(c.ascii, c.ajustes, resized, kMetodo);
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

  Conversion c = PrepararConversion(consola, arguments);
  if (folder)
    return ConvertirACarpeta(consola, pictures, *folder, ".txt",
                             [&](const std::string& operand, const std::string& to) {
                               Convertir(consola, c, operand);
                               consola.EscribirArchivo(to, Guardado(c));
                             });
  Convertir(consola, c, pictures[0]);
  if (file) {
    consola.EscribirArchivo(*file, Guardado(c));
  } else {
    consola.EscribirTexto(c.ascii.ProducedText);
  }
  return 0;
}

}  // namespace

Orden OrdenAscii() {
  return {"ascii",
          "IMAGEN...",
          "Convierte imágenes en texto.",
          "pixmosa-cli ascii foto.jpg --columnas 100",
          Juntar({{"-o", Tipo::Texto, "TEXTO.txt", "archivo donde se guarda; si falta, la salida estándar"},
                  {"--carpeta", Tipo::Texto, "DIR", "carpeta donde se guarda un NOMBRE.txt de cada imagen"}},
                 OpcionesDeTexto()),
          Hacer};
}

}  // namespace pixmosa::cli
