#include "figlet/Letrero.h"

#include "figlet/Parecidos.h"
#include "figlet/Reescribir.h"
#include "platform/CodePage.h"

namespace pixmosa {
namespace {

std::u32string Unicode(std::string_view utf8) {
  std::u32string text;
  while (!utf8.empty()) text += NextUtf8(utf8);
  return text;
}

Dibujo DibujoDeFilas(const std::vector<std::u32string>& rows) {
  Dibujo drawing;
  for (const std::u32string& row : rows) {
    drawing.filas.emplace_back();
    for (const char32_t c : row) drawing.filas.back().push_back({c});
  }
  return drawing;
}

}  // namespace

Dibujo FuenteEnUso::Dibujar(std::string_view utf8, const OpcionesDeLetrero& options) const {
  const std::string bytes = directa_ ? "" : BytesOfUtf8(utf8);
  Dibujo drawing;
  if (!directa_ && options.composicion == OpcionesDeComposicion{}) {
    drawing = DibujoDeTexto(RenderBanner(*leida_, TextoConCrLf(bytes)));
    if (!drawing.filas.empty()) drawing.filas.pop_back();  // behind the last line end
  } else {
    const std::u32string text = Unicode(directa_ ? utf8 : Utf8OfBytes(bytes));
    drawing = DibujoDeFilas(Componer(Fuente(), text, options.composicion));
  }
  return Acabar(std::move(drawing), options.acabado);
}

const FuenteFiglet& FuenteEnUso::Fuente() const {
  if (!fuente_) fuente_ = FuenteLeida(*leida_);
  return *fuente_;
}

std::string TextoConCrLf(std::string_view bytes) {
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\n' && (i == 0 || bytes[i - 1] != '\r')) text += '\r';
    text += bytes[i];
  }
  return text;
}

std::string BytesDe(const Dibujo& drawing) {
  std::string bytes;
  for (const Fila& row : drawing.filas) {
    for (const Celda& cell : row) {
      const auto byte = ByteOfUnicode(cell.caracter);
      bytes += byte ? static_cast<char>(*byte) : Parecido(cell.caracter);
    }
    bytes += "\r\n";
  }
  return bytes;
}

std::string Utf8De(const Dibujo& drawing) {
  std::string utf8;
  for (const Fila& row : drawing.filas) {
    for (const Celda& cell : row) AppendUtf8(utf8, cell.caracter);
    utf8 += "\r\n";
  }
  return utf8;
}

FuenteFiglet AbrirFuente(std::string_view bytes, const std::string& name, const Desempaquetar& unpack) {
  if (!EsZip(bytes)) return LeerFuente(bytes, name);
  const std::string refused = "No se ha podido leer \"" + name + "\": ";
  try {
    for (const ArchivoComprimido& inner : unpack(bytes)) {
      if (!inner.fallo.empty() && PareceFuente(inner.nombre))
        throw FuenteRechazada(refused + "\"" + inner.nombre + "\" " + inner.fallo + ".");
      if (EmpiezaComoFuente(inner.bytes)) return LeerFuente(inner.bytes, name + ": " + inner.nombre);
    }
  } catch (const FuenteRechazada&) {
    throw;
  } catch (const ErrorDelPrograma& e) {
    throw FuenteRechazada(refused + e.what() + ".");
  }
  throw FuenteRechazada(refused + "el archivo zip no contiene ninguna fuente FIGlet.");
}

}  // namespace pixmosa
