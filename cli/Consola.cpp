#include "cli/Consola.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <set>
#include <sys/ioctl.h>
#include <thread>
#include <unistd.h>

#include <QGuiApplication>

#include "cli/Adelanto.h"
#include "cli/Destino.h"
#include "cli/Frases.h"
#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/Hilos.h"
#include "platform/ProgramFolder.h"
#include "platform/Stretch.h"
#include "platform/SuperficieCompartida.h"
#include "platform/qt/QtPictureCodec.h"
#include "platform/qt/QtTextSurface.h"

namespace pixmosa::cli {
namespace {

constexpr int kColumnasSinTerminal = 80;
constexpr int kMasHilos = 32;  // as many unfinished files as a signal can remove

std::string LeerEntrada() {
  return LeerFlujo(stdin, "-", kMasBytesDeImagen);
}

// To the descriptor: the stream is the libraries', see main.cpp.
void EscribirAviso(std::string_view text) {
  while (!text.empty()) {
    const ssize_t n = ::write(STDERR_FILENO, text.data(), text.size());
    if (n <= 0 && errno != EINTR) return;
    text.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(0, n)));
  }
}

}  // namespace

struct Consola::Servicios {
  int argc = 1;
  char name[12] = "pixmosa-cli";
  char* argv[2] = {name, nullptr};
  QGuiApplication app{argc, argv};
  QtTextSurface letras;
  SuperficieCompartida superficie{letras};
  QtPictureCodec imagenes;
};

Consola::Consola() = default;
Consola::~Consola() = default;

Consola::Servicios& Consola::Arrancar() {
  if (!servicios_) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) qputenv("XDG_RUNTIME_DIR", "/tmp");
    qputenv("QT_LOGGING_RULES", "*.debug=false;*.warning=false");
    servicios_ = std::make_unique<Servicios>();
  }
  return *servicios_;
}

TextSurface& Consola::Superficie() {
  return Arrancar().superficie;
}

PictureCodec& Consola::Imagenes() {
  return Arrancar().imagenes;
}

Programa Consola::NuevoPrograma() {
  return {Superficie(), Imagenes(), ProgramFolder(), FontFolders()};
}

Picture Consola::LeerImagen(const std::string& operand, const Aviso& say) {
  std::string warning;
  Picture picture = operand == "-" ? Imagenes().ReadBytes(LeerEntrada(), "-", &warning)
                                   : Imagenes().Read(operand, &warning);
  if (!warning.empty()) say ? say(warning) : Avisar(warning);
  return picture;
}

Picture Consola::LeerImagenReducida(const std::string& operand, Lectura how,
                                    const std::function<Extent(Extent)>& size, const Aviso& say) {
  const bool stretch = how == Lectura::Estirada;
  if (operand == "-") {
    const Picture whole = LeerImagen(operand, say);
    const Extent wanted = size(whole.Size());
    return stretch ? Stretch(whole, wanted) : whole;
  }
  std::string warning;
  Picture picture = stretch ? Imagenes().ReadStretched(operand, size, &warning)
                            : Imagenes().ReadReduced(operand, size, &warning);
  if (!warning.empty()) say ? say(warning) : Avisar(warning);
  return picture;
}

OrigenDeImagen Consola::Origen(const std::string& operand, const Aviso& say) {
  const auto ahead = std::make_shared<Adelanto>();
  return {[&, say] { return LeerImagen(operand, say); },
          [&, say, ahead](Lectura how, const std::function<Extent(Extent)>& size) {
            if (how == Lectura::Reducida)
              if (const std::optional<Picture> picture = ahead->Tomar(size)) return *picture;
            return LeerImagenReducida(operand, how, size, say);
          },
          [&, ahead](Extent wanted) { return operand != "-" && ahead->Empezar(operand, wanted); }};
}

std::string Consola::LeerBytes(const std::string& operand) {
  return operand == "-" ? LeerEntrada() : LeerArchivo(operand);
}

void Consola::Escribir(std::string_view utf8) {
  if (std::fwrite(utf8.data(), 1, utf8.size(), stdout) != utf8.size() || std::fflush(stdout) != 0)
    throw ErrorDeTrabajo("No se ha podido escribir en la salida estándar: " + RazonDelError(errno) + ".");
}

void Consola::EscribirLineas(std::string_view text) {
  std::string lines;
  lines.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i)
    if (text[i] != '\r' || text.substr(i, 2) != "\r\n") lines += text[i];
  EscribirArchivoEntero(std::move(lines));
}

void Consola::EscribirArchivoEntero(std::string bytes) {
  if (isatty(STDOUT_FILENO) && !bytes.ends_with('\n')) bytes += '\n';
  Escribir(bytes);
}

void Consola::Avisar(std::string_view sentence) {
  std::string line = (hayProgreso_ ? "\r\033[K" : "") + ("pixmosa-cli: " + Visible(sentence));
  hayProgreso_ = false;
  if (!line.ends_with('.')) line += '.';
  EscribirAviso(line + "\n");
}

void Consola::Progreso(std::string_view what, std::size_t n, std::size_t of) {
  if (!isatty(STDERR_FILENO)) return;
  hayProgreso_ = n != of;
  std::string line = "\r\033[K";
  if (n != of) line += std::string(what) + " " + std::to_string(n + 1) + "/" + std::to_string(of);
  EscribirAviso(line);
}

int Consola::AnchoDeTerminal() const {
  winsize size{};
  return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : kColumnasSinTerminal;
}

int Consola::AltoDeTerminal() const {
  winsize size{};
  return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_row : 0;
}

Opcion OpcionDeHilos() {
  return {"--hilos", Tipo::Entero,
          "N",       "con --carpeta: cuántas imágenes a la vez; si falta, todos los núcleos",
          1,         kMasHilos};
}

unsigned HilosPara(const Argumentos& arguments, std::size_t pieces) {
  const int cores = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
  const int wanted = arguments.Entero("--hilos", std::min(cores, kMasHilos));
  return static_cast<unsigned>(
      std::min<std::size_t>(static_cast<std::size_t>(wanted), std::max<std::size_t>(1, pieces)));
}

std::string CrearCarpeta(const Argumentos& arguments) {
  std::string folder = arguments.Exigir("--carpeta");
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error)
    throw ErrorDeTrabajo("No se ha podido crear la carpeta \"" + folder +
                         "\": " + RazonDelError(error.value()) + ".");
  return folder;
}

int ConvertirACarpeta(Consola& consola, const Argumentos& arguments, const std::vector<std::string>& pictures,
                      const std::string& ending, const TrabajoDeCarpeta& work) {
  namespace fs = std::filesystem;
  const std::string folder = arguments.Exigir("--carpeta");
  std::vector<std::string> files;
  std::set<std::string> seen;
  for (const std::string& operand : pictures) {
    const std::string name = operand == "-" ? "entrada" : fs::path(operand).stem().string();
    files.push_back((fs::path(folder) / (name + ending)).string());
    if (!seen.insert(files.back()).second)
      throw ErrorDeUso("dos imágenes darían el mismo archivo \"" + files.back() + "\"");
    ExigirOtroArchivo(arguments, files.back());
  }
  CrearCarpeta(arguments);
  int status = 0;
  std::size_t taken = 0;
  const auto next = [&]() -> std::optional<Encargo> {
    if (taken == pictures.size()) return std::nullopt;
    const std::size_t i = taken++;
    const auto said = std::make_shared<std::vector<std::string>>();
    const auto failed = std::make_shared<bool>(false);
    return Encargo{[&, i, said, failed](unsigned thread) {
                     try {
                       Nombrando(pictures[i], [&] {
                         work(pictures[i], files[i], thread,
                              [&](std::string_view sentence) { said->emplace_back(sentence); });
                       });
                     } catch (const std::exception& e) {
                       said->push_back(FraseDe(e));
                       *failed = true;
                     }
                   },
                   [&, i, said, failed] {
                     for (const std::string& sentence : *said) consola.Avisar(sentence);
                     consola.Progreso("Imagen", i + 1, pictures.size());
                     if (*failed) status = 1;
                     return true;
                   }};
  };
  consola.Imagenes();  // the platform starts on this thread
  consola.Progreso("Imagen", 0, pictures.size());
  Repartir(HilosPara(arguments, pictures.size()), next);
  return status;
}

}  // namespace pixmosa::cli
