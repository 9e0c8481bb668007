#include <climits>
#include <filesystem>

#include "cli/Destino.h"
#include "cli/Lista.h"
#include "cli/Ordenes.h"
#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/ProgramFolder.h"
#include "programa/Pasos.h"
#include "programa/Recetas.h"

namespace pixmosa::cli {
namespace {

struct Pedido {
  std::vector<std::string> imagenes;
  std::vector<Paso> pasos;
};

// A word that can only be a misspelt step: no picture is called so.
bool PareceUnPaso(const std::string& word) {
  std::error_code none;
  return word != "-" && word.find_first_of("./") == std::string::npos && !std::filesystem::exists(word, none);
}

// A step that cannot be is a fault of use.
template <typename Leer>
auto Pedir(const Leer& read) {
  try {
    return read();
  } catch (const ErrorDePaso& e) {
    throw ErrorDeUso(e.what());
  }
}

// Pictures first, then steps; those of a recipe before them.
Pedido PedidoDe(const Argumentos& arguments) {
  Pedido order;
  if (const auto recipe = arguments.Texto("--receta"))
    order.pasos = Pedir([&] { return LeerReceta(ArchivoDeReceta(RecipeFolder(), *recipe)); });
  const std::size_t fromRecipe = order.pasos.size();
  for (const std::string& word : arguments.Operandos()) {
    const std::optional<Paso> step = Pedir([&] { return PasoDe(word); });
    if (step) {
      if (order.imagenes.empty()) throw ErrorDeUso("falta la imagen antes del paso \"" + word + "\"");
      order.pasos.push_back(*step);
    } else if (order.pasos.size() > fromRecipe || (!order.imagenes.empty() && PareceUnPaso(word))) {
      throw ErrorDeUso("no existe el paso \"" + word + "\"; \"pixmosa-cli efecto --help\" los explica todos");
    } else {
      order.imagenes.push_back(word);
    }
  }
  if (order.imagenes.empty()) throw ErrorDeUso("falta la imagen");
  if (order.pasos.empty())
    throw ErrorDeUso("falta algún paso; \"pixmosa-cli efecto --help\" los explica todos");
  return order;
}

// The format that a file's ending asks for, in any case.
std::string FormatoDe(Consola& consola, const std::string& file) {
  std::vector<std::string> endings;
  for (const std::string& format : consola.Imagenes().Formatos()) {
    endings.push_back("." + format);
    if (LowerCase(file).ends_with(endings.back())) return format;
  }
  throw ErrorDeUso("el archivo \"" + file + "\" debe terminar en " + Unidas(endings));
}

// Writes the picture; a format that cannot hold it is said with the file's name.
void Guardar(Consola& consola, const Picture& picture, const std::string& file, const std::string& format) {
  std::string bytes;
  try {
    bytes = consola.Imagenes().Encode(picture, format);
  } catch (const PictureError& e) {
    throw ErrorDeTrabajo("No se ha escrito \"" + file + "\". " + e.what());
  }
  EscribirArchivo(file, bytes);
}

// One picture through every step; the draws start anew for each picture.
void Transformar(Consola& consola, const Argumentos& arguments, const Pedido& order,
                 const std::string& operand, const std::string& file, const std::string& format,
                 const Aviso& say = {}) {
  MFiltros m;
  if (arguments.Tiene("--semilla"))
    m.random.Seed(static_cast<std::uint64_t>(arguments.Entero("--semilla", 0)));
  ImagenDeTrabajo image;
  image.Cargar(consola.LeerImagen(operand, say));
  NoProgress progress;
  for (const Paso& step : order.pasos) DarPaso(m, image, step, progress);
  Guardar(consola, image.picMain, file, format);
}

int Hacer(Consola& consola, const Argumentos& arguments) {
  const std::optional<std::string> file = arguments.Texto("-o"), folder = arguments.Texto("--carpeta");
  if (file && folder) throw ErrorDeUso("las opciones -o y --carpeta no van juntas");
  if (!file && !folder) throw ErrorDeUso("falta la opción -o con el archivo de la imagen nueva");
  const Pedido order = PedidoDe(arguments);
  if (folder)
    return ConvertirACarpeta(
        consola, arguments, order.imagenes, ".png",
        [&](const std::string& operand, const std::string& to, unsigned, const Aviso& say) {
          Transformar(consola, arguments, order, operand, to, "png", say);
        });
  if (order.imagenes.size() > 1) throw ErrorDeUso("varias imágenes necesitan la opción --carpeta");
  Transformar(consola, arguments, order, order.imagenes[0], *file, FormatoDe(consola, *file));
  return 0;
}

}  // namespace

Orden OrdenEfecto() {
  return {
      "efecto",
      "IMAGEN... PASO...",
      "Retoca imágenes con los efectos, giros y espejos del programa.",
      "pixmosa-cli efecto foto.jpg 14=20 desenfocar espejo-arriba-abajo -o nueva.png",
      {{"-o", Tipo::Texto, "SALIDA", "archivo de la imagen nueva; su terminación da el formato"},
       {"--carpeta", Tipo::Texto, "DIR", "carpeta donde se guarda un NOMBRE.png de cada imagen"},
       OpcionDeHilos(),
       OpcionDeSobrescribir(),
       {"--receta", Tipo::Texto, "NOMBRE",
        "da primero los pasos de una receta: un archivo con un paso por línea, o el nombre de una guardada"},
       {"--semilla", Tipo::Entero, "N", "empieza el azar de los efectos 4 y 29 en N, para repetirlo", 0,
        INT_MAX}},
      Hacer,
      AyudaDePasos};
}

}  // namespace pixmosa::cli
