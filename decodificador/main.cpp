// The decoding process: a file's bytes on standard input, an answer (Respuesta.h) on standard output, or one
// for each frame where it is asked for a film. It
// reads the kinds of picture whose readers are not to be trusted, behind walls that hold when a reader fails.
#include <algorithm>
#include <cstdio>
#include <new>
#include <string>
#include <unistd.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QImageReader>
#include <QLoggingCategory>

#include "decodificador/Encierro.h"
#include "platform/decodificador/Contenido.h"
#include "platform/decodificador/Respuesta.h"
#include "platform/qt/QtPicture.h"
#include "platform/wmf/Metafile.h"

namespace pixmosa {
namespace {

std::string LeerEntrada() {
  std::string bytes;
  char chunk[65536];
  for (ssize_t n = 0; (n = ::read(STDIN_FILENO, chunk, sizeof chunk)) > 0;)
    if (bytes.append(chunk, static_cast<std::size_t>(n)).size() > kMasBytesAparte) throw std::bad_alloc();
  return bytes;
}

bool Escribir(const void* data, std::size_t size) {
  const char* at = static_cast<const char*>(data);
  while (size > 0) {
    const ssize_t n = ::write(STDOUT_FILENO, at, size);
    if (n <= 0) return false;
    at += n;
    size -= static_cast<std::size_t>(n);
  }
  return true;
}

bool Responder(const Decodificada& d) {
  Cabecera c;
  c.razon = static_cast<std::uint32_t>(d.razon);
  const Extent size = ConPixeles(d.razon) ? d.imagen.Size() : d.declarada;
  c.ancho = static_cast<std::uint32_t>(size.width);
  c.alto = static_cast<std::uint32_t>(size.height);
  return Escribir(&c, sizeof c) && Escribir(d.imagen.Pixels(), d.imagen.PixelCount() * sizeof(std::uint32_t));
}

bool ResponderFotograma(const Decodificada& d, Ritmo pace = {}) {
  return d.razon <= kUltimaRespondida && Escribir(&pace, sizeof pace) && Responder(d);
}

std::int64_t Pixeles(QSize size) {
  return std::int64_t{size.width()} * size.height();
}

// Every reader there is, loaded now: a picture may hold pictures of other kinds, and later no library opens.
void CargarLectores() {
  QByteArray nothing(64, '\0');
  QBuffer buffer(&nothing);
  buffer.open(QIODevice::ReadOnly);
  QImageReader(&buffer).canRead();
}

// A file of several pictures (an icon) gives its largest one.
void IrAlMayor(QImageReader& reader) {
  int best = 0;
  std::int64_t area = -1;
  for (int i = 0; i < reader.imageCount() && reader.jumpToImage(i); ++i) {
    const std::int64_t a = Pixeles(reader.size());
    if (a > area) {
      area = a;
      best = i;
    }
  }
  reader.jumpToImage(best);
}

// Whether a picture within the picture could not be read. Its reader says so by a message and by nothing
// else, and whoever gets the messages reaches nothing but what is global.
bool& HayHuecos() {
  static bool any = false;
  return any;
}

void AtenderMensaje(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (type == QtFatalMsg) ::_exit(kNoArranca);
  if (context.category == std::string_view("qt.svg") && text.startsWith(u"Could not create image"))
    HayHuecos() = true;
}

// What has been read behind the walls that could be raised: a file is not to blame for what they lack.
Decodificada Juzgar(Decodificada d, Muros walls, bool letters) {
  const bool blind = walls == Muros::SinCarpetas && letters;
  if (d.razon == Razon::Hecha && (HayHuecos() || blind)) d.razon = Razon::Parcial;
  if (d.razon == Razon::Danada && blind) d.razon = Razon::Insegura;
  return d;
}

// A reader behind the walls, and what it says before it decodes: Hecha where it can go on.
struct Abierta {
  explicit Abierta(const std::string& bytes)
      : data(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()))) {
    QLoggingCategory::setFilterRules(QStringLiteral("qt.svg*=true"));
    CargarLectores();
    buffer.open(QIODevice::ReadOnly);
    walls = Encerrar(CarpetasDeLetras());
    if (walls == Muros::Ninguno) return;
    QImageReader::setAllocationLimit(0);  // the process has a limit of its own
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
  }

  Decodificada Mirar(bool icon = false) {
    if (walls == Muros::Ninguno) return {Razon::Insegura};
    if (!reader.canRead()) return {Razon::Desconocida};
    if (icon) IrAlMayor(reader);
    const QSize size = reader.size();
    if (size.isValid() && Pixeles(size) > kMasPixelesAparte)
      return {Razon::Grande, {}, {size.width(), size.height()}};
    if (size.isValid() && size.isEmpty()) return {Razon::Vacia};
    letters = reader.format().startsWith("svg");
    return {Razon::Hecha};
  }

  // One picture.
  Decodificada Leer() { return Juzgar(Decodificar(), walls, letters); }

  QByteArray data;
  QBuffer buffer{&data};
  Muros walls = Muros::Ninguno;
  bool letters = false;
  QImageReader reader{&buffer};

 private:
  Decodificada Decodificar() {
    const QSize size = reader.size();
    QImage image;
    if (!reader.read(&image)) {
      // What the system cannot give is not the file's fault.
      const bool room = !size.isValid() || !QImage(size, QImage::Format_ARGB32).isNull();
      return {room ? Razon::Danada : Razon::SinMemoria};
    }
    if (image.isNull()) return {Razon::Vacia};
    if (Pixeles(image.size()) > kMasPixelesAparte)
      return {Razon::Grande, {}, {image.width(), image.height()}};
    return {Razon::Hecha, PictureOf(std::move(image)), {}};
  }
};

Decodificada LeerConQt(const std::string& bytes) {
  Abierta open(bytes);
  const Decodificada first = open.Mirar(TamanoDeIcono(bytes).has_value());
  if (first.razon != Razon::Hecha) return first;
  return open.Leer();
}

// Answers every frame but the last word, which it gives: Vacia where the film is whole.
Decodificada LeerPelicula(const std::string& bytes) {
  Abierta open(bytes);
  const Decodificada first = open.Mirar();
  if (first.razon != Razon::Hecha) return first;
  const bool moves = open.reader.supportsAnimation();
  const int count = moves ? std::max(1, open.reader.imageCount()) : 1;
  for (int k = 0; k < count; ++k) {
    const Decodificada d = open.Leer();
    const Ritmo pace = {static_cast<std::uint32_t>(std::max(0, moves ? open.reader.nextImageDelay() : 0)),
                        static_cast<std::uint32_t>(count)};
    if (!ConPixeles(d.razon)) return d;
    if (!ResponderFotograma(d, pace)) ::_exit(1);
  }
  return {Razon::Vacia};
}

Decodificada LeerMetafile(const std::string& bytes) {
  const Muros walls = Encerrar(CarpetasDeLetras());
  if (walls == Muros::Ninguno) return {Razon::Insegura};
  Picture picture = DibujarMetafile(bytes);
  return Juzgar(
      picture.IsEmpty() ? Decodificada{Razon::Danada} : Decodificada{Razon::Hecha, std::move(picture), {}},
      walls, true);
}

Decodificada Leer(int argc, char** argv, bool film) {
  if (!Limitar(film ? kSegundosDePelicula : kSegundosDeImagen)) return {Razon::Insegura};
  qInstallMessageHandler(AtenderMensaje);
  try {
    const std::string bytes = LeerEntrada();
    if (EsMetafile(bytes)) return LeerMetafile(bytes);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    return film ? LeerPelicula(bytes) : LeerConQt(bytes);
  } catch (const std::bad_alloc&) {
    return {Razon::SinMemoria};
  }
}

}  // namespace
}  // namespace pixmosa

int main(int argc, char** argv) {
  const bool film = argc == 2 && argv[1] == std::string_view(pixmosa::kPedirPelicula);
  const pixmosa::Decodificada d = pixmosa::Leer(argc, argv, film);
  const bool answered =
      film ? pixmosa::ResponderFotograma(d) : d.razon <= pixmosa::kUltimaRespondida && pixmosa::Responder(d);
  // Without tidying up after readers that may have left anything behind.
  ::_exit(answered ? 0 : 1);
}
