#include <filesystem>

#include "cli/LeerGif.h"
#include "cli/Ordenes.h"
#include "platform/AtomicFile.h"
#include "web/basGIF.h"

namespace pixmosa::cli {

OrigenGif AbrirGif(Consola& consola, const std::string& operand) {
  OrigenGif gif = operand == "-" ? OrigenGif(consola.LeerBytes(operand)) : OrigenGif::DeArchivo(operand);
  if (!gif.Leer(0).starts_with("GIF8")) throw ErrorDeTrabajo("El archivo \"" + operand + "\" no es un GIF.");
  return gif;
}

namespace {

namespace fs = std::filesystem;

// Throws where the GIF itself is one of the frame files that the folder's new ones replace.
void ComprobarDestino(const fs::path& gif, const std::string& folder) {
  std::error_code ec;
  const bool here = fs::equivalent(fs::absolute(gif, ec).parent_path(), folder, ec);
  if (here && gif.filename().string().starts_with("Fotograma ") && gif.extension() == ".bmp")
    throw ErrorDeUso("\"" + gif.string() + "\" es uno de los fotogramas que se sustituirían en \"" + folder +
                     "\"");
}

int Hacer(Consola& consola, const Argumentos& arguments) {
  arguments.ExigirOperandos(1, 1, "el GIF");
  const std::string operand = arguments.Operandos()[0], folder = arguments.Exigir("-o");
  ComprobarDestino(operand, folder);
  OrigenGif gif = AbrirGif(consola, operand);
  const GifCut cut = CutGif(gif);
  if (cut.positions.empty()) throw ErrorDeTrabajo("El GIF \"" + operand + "\" no tiene fotogramas.");
  std::error_code error;
  fs::create_directories(folder, error);
  if (error)
    throw ErrorDeTrabajo("No se ha podido crear la carpeta \"" + folder +
                         "\": " + RazonDelError(error.value()) + ".");
  EscribirFotogramas(cut, gif, folder);
  std::string s;
  for (std::size_t i = 0; i < cut.positions.size(); ++i)
    s += NumeroDeFotograma(i + 1) + "\t" + std::to_string(cut.positions[i]) + "\n";
  consola.Escribir(s);
  return 0;
}

}  // namespace

Orden OrdenFotogramas() {
  return {"fotogramas",
          "GIF -o CARPETA",
          "Separa los fotogramas de un GIF y dice dónde empieza cada uno.",
          "pixmosa-cli fotogramas baile.gif -o fotogramas",
          {{"-o", Tipo::Texto, "CARPETA", "carpeta donde se escriben; se crea si falta"}},
          Hacer};
}

}  // namespace pixmosa::cli
