#include "cli/Destino.h"

#include <algorithm>
#include <filesystem>

namespace pixmosa::cli {

Opcion OpcionDeSobrescribir() {
  return {kSobrescribir, Tipo::Interruptor, "", "permite que lo escrito sustituya a la imagen de partida"};
}

void ExigirOtroArchivo(const Argumentos& arguments, const std::string& file) {
  namespace fs = std::filesystem;
  std::error_code ec;
  if (arguments.Tiene(kSobrescribir) || !fs::is_regular_file(file, ec)) return;
  const std::vector<std::string>& sources = arguments.Operandos();
  const auto same = [&](const std::string& source) {
    return source != "-" && fs::equivalent(source, file, ec);
  };
  if (std::any_of(sources.begin(), sources.end(), same))
    throw ErrorDeUso("\"" + file + "\" es una de las imágenes de partida; con " + kSobrescribir +
                     " se sustituye");
}

}  // namespace pixmosa::cli
