#include "programa/Pelicula.h"

#include <algorithm>
#include <memory>

#include "conversion/TextoGuardado.h"
#include "platform/AtomicFile.h"
#include "platform/Hilos.h"

namespace pixmosa {
namespace {

constexpr std::int64_t kMasPixelesDePelicula = 4'000'000'000;  // in all the frames of a file
constexpr double kMasCaracteresDePelicula = 400e6;             // in all the frames of a page

bool EsDigito(char c) {
  return c >= '0' && c <= '9';
}

// Takes the digits at the front of a name, without the noughts before them.
std::string_view TomarNumero(std::string_view& name) {
  std::size_t end = 0;
  while (end < name.size() && EsDigito(name[end])) ++end;
  std::string_view digits = name.substr(0, end);
  name.remove_prefix(end);
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  return digits;
}

// The frame's art; where it cannot be read, why.
Dibujo Revelar(Programa& p, const Toma& shot, int method, bool color, std::string& failure) try {
  return GenerarDibujo(p, shot.origen, method, color);
} catch (const TextoExcesivo& e) {
  throw TextoExcesivo(e.columnas, e.filas, shot.nombre);
} catch (const PictureError& e) {
  failure = e.what();
  return {};
}

[[noreturn]] void Vacia(const Pelicula& film) {
  throw PictureError("No se ha podido leer ningún fotograma de \"" + film.nombre + "\".");
}

// "NAME 001", with as many digits as the last one has.
std::string NombreDeArchivo(const Pelicula& film, std::size_t k) {
  constexpr std::size_t kCifras = 3;
  const std::string number = std::to_string(k + 1);
  const std::size_t digits = std::max(kCifras, std::to_string(film.cuantas).size());
  return film.nombre + ' ' + std::string(digits - std::min(digits, number.size()), '0') + number;
}

// The bytes of a frame's file: what the art of its picture would be saved as.
std::string ArchivoDe(const Programa& p, const Dibujo& drawing, const Formato& format, const Revelado& how,
                      const std::string& title) {
  const bool text = &format == Formatos().data();
  if (text && !p.basAscii.ProducedUtf8.empty())
    return TextoGuardadoUtf8(p.ajustes.font, p.basAscii.ProducedUtf8);
  OpcionesDeExportar options = how.opciones;
  if (options.titulo.empty()) options.titulo = title;
  return format.escribir(drawing, options, how.medios);
}

// Makes each frame into a drawing and hands it on, in order, on the caller's thread; no ends the work.
using TomarDibujo = std::function<void(const Dibujo&, int milliseconds)>;

bool Recorrer(const Programa& p, const Pelicula& film, const Revelado& how, const TomarDibujo& take,
              const Seguir& seguir) {
  struct Hecha {
    Toma toma;
    Dibujo dibujo;
    std::string fallo;
  };
  std::vector<Programa> own(how.hilos, p);
  std::size_t taken = 0, shown = 0;
  const auto next = [&]() -> std::optional<Encargo> {
    std::optional<Toma> shot = film.siguiente();
    if (!shot) return std::nullopt;
    const auto made = std::make_shared<Hecha>(Hecha{std::move(*shot), {}, {}});
    return Encargo{[&, made](unsigned thread) {
                     made->dibujo =
                         Revelar(own[thread], made->toma, how.metodo, how.opciones.color, made->fallo);
                     made->toma.origen = {};  // its picture may go
                   },
                   [&, made, k = taken++] {
                     if (made->fallo.empty()) {
                       ++shown;
                       take(made->dibujo, made->toma.milisegundos);
                     }
                     return seguir(k, made->fallo);
                   }};
  };
  if (!Repartir(how.hilos, next)) return false;
  if (shown == 0) Vacia(film);
  return true;
}

}  // namespace

bool OrdenNatural(const std::string& a, const std::string& b) {
  std::string_view x = a, y = b;
  while (!x.empty() && !y.empty()) {
    if (EsDigito(x[0]) && EsDigito(y[0])) {
      const std::string_view m = TomarNumero(x), n = TomarNumero(y);
      if (m.size() != n.size()) return m.size() < n.size();
      if (m != n) return m < n;
      continue;
    }
    const auto c = static_cast<unsigned char>(MinusculaAscii(x[0])),
               d = static_cast<unsigned char>(MinusculaAscii(y[0]));
    if (c != d) return c < d;
    x.remove_prefix(1);
    y.remove_prefix(1);
  }
  if (x.empty() != y.empty()) return x.empty();
  return a < b;
}

Pelicula PeliculaDeArchivo(PictureCodec& codec, std::string bytes, const std::string& name) {
  const std::shared_ptr<LectorDeFotogramas> reader = codec.AbrirAnimacion(std::move(bytes), name);
  const std::size_t count = reader->Cuantos();
  const Extent size = reader->Tamaño();
  const std::int64_t each = std::max<std::int64_t>(1, std::int64_t{size.width} * size.height);
  if (static_cast<std::int64_t>(count) > kMasPixelesDePelicula / each)
    throw PictureError("La película \"" + name + "\" es demasiado grande: " + std::to_string(count) +
                       " fotogramas de " + std::to_string(size.width) + " x " + std::to_string(size.height) +
                       " píxeles.");
  Pelicula film;
  film.nombre = name == "-" ? "Pixmosa" : std::filesystem::path(name).stem().string();
  film.cuantas = count;
  film.siguiente = [reader, name, k = std::size_t{0}]() mutable -> std::optional<Toma> {
    std::optional<Fotograma> frame = reader->Siguiente();
    if (!frame) return std::nullopt;
    return Toma{name + ", fotograma " + std::to_string(++k), frame->milisegundos, OrigenDe(frame->imagen)};
  };
  film.aviso = [reader] { return reader->Aviso(); };
  return film;
}

Pelicula PeliculaDeCarpeta(PictureCodec& codec, const std::filesystem::path& folder, int milliseconds) {
  namespace fs = std::filesystem;
  const std::vector<std::string> readable = codec.FormatosLegibles();
  std::vector<fs::path> files;
  std::error_code error;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    std::string ending = at->path().extension().string();
    std::ranges::transform(ending, ending.begin(), MinusculaAscii);
    const bool known = !ending.empty() && std::ranges::count(readable, ending.substr(1)) > 0;
    if (std::error_code none; known && !at->is_directory(none)) files.push_back(at->path());
  }
  if (error)
    throw FileError("No se ha podido leer la carpeta \"" + folder.string() +
                    "\": " + RazonDelError(error.value()) + ".");
  std::ranges::sort(files, OrdenNatural, [](const fs::path& file) { return file.filename().string(); });
  Pelicula film;
  film.nombre = fs::absolute(folder / ".", error).lexically_normal().parent_path().filename().string();
  if (film.nombre.empty()) film.nombre = "Pixmosa";
  film.cuantas = files.size();
  film.siguiente = [&codec, files = std::move(files), milliseconds,
                    k = std::size_t{0}]() mutable -> std::optional<Toma> {
    if (k == files.size()) return std::nullopt;
    const fs::path& file = files[k++];
    return Toma{file.string(), milliseconds, OrigenDe(codec, file)};
  };
  return film;
}

bool EscribirPelicula(const Programa& p, const Pelicula& film, const std::filesystem::path& file,
                      const FormatoDePelicula& format, const Revelado& how, const Seguir& seguir) {
  AtomicFile out(file);
  std::unique_ptr<EscritorDePelicula> writer;
  double characters = 0;
  Rodaje set{how.opciones, how.medios, {}, [&out](std::string_view bytes) { out.Write(bytes); }};
  if (set.opciones.titulo.empty()) set.opciones.titulo = film.nombre;
  const auto write = [&](const Dibujo& drawing, int milliseconds) {
    const auto columns = static_cast<int>(drawing.Columnas()), rows = static_cast<int>(drawing.filas.size());
    if (!writer) {
      set.cuadro = {std::max(columns, int{p.basAscii.AsciiColumns}), std::max(1, rows)};
      writer = format.abrir(set);
    }
    characters += static_cast<double>(set.cuadro.width) * rows;
    if (characters > kMasCaracteresDePelicula)
      throw DibujoExcesivo("La película sería demasiado grande: más de 400 millones de caracteres.");
    writer->Poner(drawing, milliseconds);
  };
  if (!Recorrer(p, film, how, write, seguir)) return false;
  writer->Acabar();
  out.Commit();
  return true;
}

bool EscribirFotogramas(const Programa& p, const Pelicula& film, const std::filesystem::path& folder,
                        const Formato& format, const Revelado& how, const Seguir& seguir) {
  std::vector<Programa> own(how.hilos, p);
  std::size_t taken = 0, written = 0;
  const auto next = [&]() -> std::optional<Encargo> {
    const std::shared_ptr<const std::optional<Toma>> shot =
        std::make_shared<const std::optional<Toma>>(film.siguiente());
    if (!*shot) return std::nullopt;
    const std::size_t k = taken++;
    const auto failure = std::make_shared<std::string>();
    return Encargo{[&, shot, k, failure](unsigned thread) {
                     const Dibujo drawing =
                         Revelar(own[thread], **shot, how.metodo, how.opciones.color, *failure);
                     if (!failure->empty()) return;
                     const std::string name = NombreDeArchivo(film, k);
                     EscribirArchivo(folder / (name + '.' + format.terminacion),
                                     ArchivoDe(own[thread], drawing, format, how, name));
                   },
                   [&, k, failure] {
                     if (failure->empty()) ++written;
                     return seguir(k, *failure);
                   }};
  };
  if (!Repartir(how.hilos, next)) return false;
  if (written == 0) Vacia(film);
  return true;
}

}  // namespace pixmosa
