#include "editor/Recuperacion.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "editor/TextoDelEditor.h"
#include "platform/AtomicFile.h"

namespace pixmosa {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kMarca = "Pixmosa dibujo 1\n", kNombre = "dibujo-", kTerminacion = ".pixmosa";
constexpr std::uint64_t kMarcas = 4;  // values of the marks of a cell

// Seven bits a byte, the lowest first.
void PonerNumero(std::string& to, std::uint64_t number) {
  for (; number >= 0x80; number >>= 7) to += static_cast<char>(number | 0x80);
  to += static_cast<char>(number);
}

std::optional<std::uint64_t> TomarNumero(std::string_view& from, std::uint64_t most) {
  std::uint64_t number = 0;
  for (int shift = 0; shift < 63 && !from.empty(); shift += 7) {
    const auto byte = static_cast<unsigned char>(from[0]);
    from.remove_prefix(1);
    number |= static_cast<std::uint64_t>(byte & 0x7F) << shift;
    if (byte < 0x80) return number <= most ? std::optional(number) : std::nullopt;
  }
  return std::nullopt;
}

// The entries of a canvas in runs of equal ones.
void PonerCeldas(std::string& to, const Lienzo& canvas) {
  Contenido run;
  std::uint64_t length = 0;
  const auto put = [&] {
    if (length == 0) return;
    PonerNumero(to, length);
    PonerNumero(to, run.caracter * kMarcas + (run.borrada ? 2U : 0U) + (run.resto ? 1U : 0U));
    PonerNumero(to, static_cast<std::uint64_t>(run.tinta + 1));
  };
  for (int row = 0; row <= canvas.Filas() + 1; ++row)
    for (Cell c{0, row}; c.column <= canvas.Columnas(); ++c.column) {
      const Contenido content = canvas.En(c);
      if (length > 0 && content == run) {
        ++length;
        continue;
      }
      put();
      run = content;
      length = 1;
    }
  put();
}

bool TomarCeldas(std::string_view from, Lienzo& canvas) {
  const int across = canvas.Columnas() + 1;
  const std::int64_t all = std::int64_t{across} * (canvas.Filas() + 2);
  std::int64_t at = 0;
  while (at < all) {
    const auto length = TomarNumero(from, static_cast<std::uint64_t>(all - at));
    const auto word = TomarNumero(from, 0x10FFFF * kMarcas + kMarcas - 1);
    const auto ink = TomarNumero(from, 0x1000000);
    if (!length || *length == 0 || !word || !ink) return false;
    const Contenido content{static_cast<char32_t>(*word / kMarcas), static_cast<Colour>(*ink) - 1,
                            (*word & 2) != 0, (*word & 1) != 0};
    for (const std::int64_t end = at + static_cast<std::int64_t>(*length); at < end;) {
      const int column = static_cast<int>(at % across);
      const int count = static_cast<int>(std::min<std::int64_t>(end - at, across - column));
      canvas.PonerTramo({column, static_cast<int>(at / across)}, count, content);
      at += count;
    }
  }
  return from.empty();
}

fs::path Ejecutable(const std::string& process) {
  std::error_code ec;
  return fs::read_symlink("/proc/" + process + "/exe", ec);
}

// The process in the name of such a file; nothing for other files.
std::string ProcesoDe(const fs::path& file) {
  const std::string name = file.filename().string();
  if (!name.starts_with(kNombre) || !name.ends_with(kTerminacion)) return {};
  const std::string process = name.substr(kNombre.size(), name.size() - kNombre.size() - kTerminacion.size());
  return process.find_first_not_of("0123456789") == std::string::npos ? process : "";
}

fs::path Propio(const fs::path& folder) {
  std::error_code ec;
  return folder /
         (std::string(kNombre) + fs::read_symlink("/proc/self", ec).string() + std::string(kTerminacion));
}

}  // namespace

std::string BytesDelDibujo(const BasEditor& editor) {
  std::string bytes(kMarca);
  const TextoAbierto* opened = editor.Abierto.get();
  PonerNumero(bytes, static_cast<std::uint64_t>(editor.Grid.Columnas()));
  PonerNumero(bytes, static_cast<std::uint64_t>(editor.Grid.Filas()));
  PonerNumero(bytes, opened ? opened->alineado ? 2 : 1 : 0);
  if (opened) {
    PonerNumero(bytes, opened->texto.size());
    bytes += opened->texto;
  }
  PonerCeldas(bytes, editor.Grid);
  return bytes;
}

bool LeerDibujo(std::string_view bytes, BasEditor& editor) {
  if (!bytes.starts_with(kMarca)) return false;
  bytes.remove_prefix(kMarca.size());
  const auto columns = TomarNumero(bytes, kLadoMayor), rows = TomarNumero(bytes, kLadoMayor);
  const auto kind = TomarNumero(bytes, 2);
  if (!columns || !rows || !kind || *columns == 0 || *rows == 0) return false;
  std::shared_ptr<TextoAbierto> opened;
  if (*kind > 0) {
    const auto size = TomarNumero(bytes, bytes.size());
    if (!size || *size > bytes.size()) return false;
    opened = std::make_shared<TextoAbierto>(TextoMedido(bytes.substr(0, *size)));
    opened->alineado = *kind == 2;
    bytes.remove_prefix(*size);
  }
  Lienzo canvas(static_cast<int>(*columns), static_cast<int>(*rows));
  if (!TomarCeldas(bytes, canvas)) return false;
  editor.Grid.Sustituir(std::move(canvas));
  editor.Abierto = std::move(opened);
  return true;
}

void Resguardo::Guardar(const BasEditor& editor) const {
  if (folder_.empty()) return;
  std::error_code ec;
  fs::create_directories(folder_, ec);
  // In the system's hands it outlives the program; to wait for the disk would hold up the drawing.
  AtomicFile file(Propio(folder_), Guardado::DePaso);
  file.Write(BytesDelDibujo(editor));
  file.Commit();
}

void Resguardo::Retirar() const {
  std::error_code ec;
  if (!folder_.empty()) fs::remove(Propio(folder_), ec);
}

std::vector<fs::path> Resguardo::Huerfanos() const {
  std::vector<std::pair<fs::file_time_type, fs::path>> found;
  std::error_code ec;
  const fs::path own = Ejecutable("self");
  for (fs::directory_iterator it(folder_, ec), end; !ec && it != end; it.increment(ec)) {
    const std::string process = ProcesoDe(it->path());
    // A number may have gone to another program since.
    if (process.empty() || Ejecutable(process) == own) continue;
    std::error_code gone;
    found.emplace_back(fs::last_write_time(it->path(), gone), it->path());
  }
  std::ranges::sort(found, std::greater<>());
  std::vector<fs::path> files;
  files.reserve(found.size());
  for (auto& [when, file] : found) files.push_back(std::move(file));
  return files;
}

}  // namespace pixmosa
