#include <filesystem>
#include <fstream>

#include "cli/LeerGif.h"
#include "cli/Ordenes.h"
#include "platform/AtomicFile.h"
#include "web/basGIF.h"

namespace pixmosa::cli {

void ExigirGif(std::string_view start, const std::string& operand) {
  if (!start.starts_with("GIF8")) throw ErrorDeTrabajo("El archivo \"" + operand + "\" no es un GIF.");
}

namespace {

std::string Principio(const std::string& file) {
  std::string start(4, '\0');
  std::ifstream(file, std::ios::binary).read(start.data(), 4);
  return start;
}

}  // namespace

std::string LeerGif(Consola& consola, const std::string& operand) {
  std::string bytes = consola.LeerBytes(operand);
  ExigirGif(bytes, operand);
  return bytes;
}

namespace {

int Hacer(Consola& consola, const Argumentos& arguments) {
  arguments.ExigirOperandos(1, 1, "el GIF");
  const std::string operand = arguments.Operandos()[0], folder = arguments.Exigir("-o");
  // A file is cut in pieces; what comes from a pipe is read whole.
  const bool piped = operand == "-";
  const std::string gif = piped ? LeerGif(consola, operand) : std::string();
  const GifCut cut = piped ? CutGif(gif) : CutGifFile(operand);
  if (!piped) ExigirGif(Principio(operand), operand);
  if (cut.positions.empty()) throw ErrorDeTrabajo("El GIF \"" + operand + "\" no tiene fotogramas.");
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error)
    throw ErrorDeTrabajo("No se ha podido crear la carpeta \"" + folder +
                         "\": " + RazonDelError(error.value()) + ".");
  if (piped) {
    EscribirFotogramas(cut, gif, folder);
  } else {
    EscribirFotogramasDeArchivo(cut, operand, folder);
  }
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
