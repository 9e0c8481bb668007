#include "cli/Consola.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <set>
#include <sys/ioctl.h>
#include <unistd.h>

#include <QGuiApplication>

#include "cli/Destino.h"
#include "cli/Frases.h"
#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/ProgramFolder.h"
#include "platform/Stretch.h"
#include "platform/jpeg/JpegRows.h"
#include "platform/jpeg/Segmentos.h"
#include "platform/qt/QtPictureCodec.h"
#include "platform/qt/QtTextSurface.h"

namespace pixmosa::cli {
namespace {

constexpr int kColumnasSinTerminal = 80;

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
  QtTextSurface superficie;
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

Picture Consola::LeerImagen(const std::string& operand) {
  std::string warning;
  Picture picture = operand == "-" ? Imagenes().ReadBytes(LeerEntrada(), "-", &warning)
                                   : Imagenes().Read(operand, &warning);
  if (!warning.empty()) Avisar(warning);
  return picture;
}

bool Consola::AdelantarLectura(const std::string& operand, Extent wanted) {
  // What cannot be read twice waits for the reader that is asked.
  if (std::error_code ec; !std::filesystem::is_regular_file(operand, ec)) return false;
  std::array<char, 3> begin{};
  std::ifstream(operand, std::ios::binary).read(begin.data(), begin.size());
  if (!EsJpeg({begin.data(), begin.size()})) return false;
  adelantada_ = operand;
  lectura_ = std::async(std::launch::async, [operand, wanted] {
    Adelanto read;
    try {
      read.imagen = ReadJpegReduced(LeerArchivo(operand, kMasBytesDeImagen), [&](Extent source) {
        read.entera = source;
        return CabeEnMemoria(source) ? wanted : Extent{};
      });
    } catch (const std::exception&) {
      read.imagen.reset();  // the general reader says what is wrong
    }
    return read;
  });
  return true;
}

Picture Consola::LeerImagenReducida(const std::string& operand, Lectura how,
                                    const std::function<Extent(Extent)>& size) {
  const bool stretch = how == Lectura::Estirada;
  if (operand == "-") {
    const Picture whole = LeerImagen(operand);
    const Extent wanted = size(whole.Size());
    return stretch ? Stretch(whole, wanted) : whole;
  }
  if (!stretch && operand == adelantada_ && lectura_.valid())
    if (const Adelanto read = lectura_.get(); read.imagen) {
      size(read.entera);
      return *read.imagen;
    }
  std::string warning;
  Picture picture = stretch ? Imagenes().ReadStretched(operand, size, &warning)
                            : Imagenes().ReadReduced(operand, size, &warning);
  if (!warning.empty()) Avisar(warning);
  return picture;
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

int ConvertirACarpeta(Consola& consola, const Argumentos& arguments, const std::vector<std::string>& pictures,
                      const std::string& ending,
                      const std::function<void(const std::string&, const std::string&)>& work) {
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
  std::error_code error;
  fs::create_directories(folder, error);
  if (error)
    throw ErrorDeTrabajo("No se ha podido crear la carpeta \"" + folder +
                         "\": " + RazonDelError(error.value()) + ".");
  int status = 0;
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    consola.Progreso("Imagen", i, pictures.size());
    try {
      Nombrando(pictures[i], [&] { work(pictures[i], files[i]); });
    } catch (const std::exception& e) {
      consola.Avisar(FraseDe(e));
      status = 1;
    }
  }
  consola.Progreso("Imagen", pictures.size(), pictures.size());
  return status;
}

}  // namespace pixmosa::cli
