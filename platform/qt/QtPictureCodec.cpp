#include "platform/qt/QtPictureCodec.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <new>
#include <optional>
#include <unistd.h>

#include <QBuffer>
#include <QImageReader>
#include <QLoggingCategory>

#include "platform/AtomicFile.h"
#include "platform/Stretch.h"
#include "platform/decodificador/Cliente.h"
#include "platform/decodificador/Contenido.h"
#include "platform/jpeg/JpegRows.h"
#include "platform/jpeg/Segmentos.h"
#include "platform/png/Png.h"
#include "platform/qt/QtPicture.h"

namespace pixmosa {
namespace {

constexpr std::int64_t kMasPixeles = 400'000'000;

std::int64_t Pixels(Extent size) {
  return std::int64_t{std::max(0, size.width)} * std::max(0, size.height);
}

}  // namespace

bool CabeEnMemoria(Extent size) {
  const std::int64_t memory = std::int64_t{sysconf(_SC_PHYS_PAGES)} * sysconf(_SC_PAGESIZE);
  return Pixels(size) <= std::min(memory / 4 / 4, kMasPixeles);
}

namespace {

// The readers that may run inside the program.
constexpr const char* kDeCasa[] = {"jpeg", "jpg", "gif", "bmp", "pbm", "pgm", "ppm", "xbm", "xpm"};

[[noreturn]] void Fail(const std::string& name, const std::string& why) {
  throw PictureError("No se ha podido leer la imagen \"" + name + "\": " + why + ".");
}

[[noreturn]] void FailMemory(const std::string& name) {
  Fail(name, "no hay memoria suficiente para ella");
}

[[noreturn]] void FailSize(const std::string& name, Extent size) {
  Fail(name, "sus " + std::to_string(size.width) + " x " + std::to_string(size.height) +
                 " píxeles no caben en la memoria");
}

Extent Of(QSize size) {
  return {size.width(), size.height()};
}

void CheckSize(const std::string& name, Extent size) {
  if (!CabeEnMemoria(size)) FailSize(name, size);
}

// A reader over bytes that somebody else keeps.
struct Lector {
  explicit Lector(std::string_view bytes)
      : data(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()))) {
    buffer.open(QIODevice::ReadOnly);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
  }
  bool EsDeCasa() {
    const QByteArray format = reader.format();
    return std::any_of(std::begin(kDeCasa), std::end(kDeCasa), [&](const char* f) { return format == f; });
  }

  QByteArray data;
  QBuffer buffer{&data};
  QImageReader reader{&buffer};
};

// Whether memory was what a failed read lacked: a reader may take three times the picture.
bool LacksMemory(Extent size) {
  const std::unique_ptr<void, void (*)(void*)> room(std::malloc(static_cast<std::size_t>(Pixels(size)) * 12),
                                                    std::free);
  return !room;
}

[[noreturn]] void FailRead(const std::string& name, Extent size) {
  if (LacksMemory(size)) FailMemory(name);
  Fail(name, "el archivo está dañado o incompleto");
}

bool EsGif(std::string_view bytes) {
  return bytes.starts_with("GIF8");
}

// Where the first picture of a GIF does not cover its screen, the reader leaves what the memory held:
// transparent pixels, on white.
void BlanquearFuera(Picture& picture, const Recuadro& drawn) {
  const auto inside = [](int v, int from, int length) { return v >= from && v < from + length; };
  if (drawn.width <= 0 || drawn.height <= 0) return;
  if (drawn.left <= 0 && drawn.top <= 0 && drawn.left + drawn.width >= picture.Width() &&
      drawn.top + drawn.height >= picture.Height())
    return;
  std::uint32_t* to = picture.Writable();
  for (int y = 0; y < picture.Height(); ++y)
    for (int x = 0; x < picture.Width(); ++x, ++to)
      if (!inside(y, drawn.top, drawn.height) || !inside(x, drawn.left, drawn.width))
        *to = PixelOfColour(kWhite);
}

Picture LeerPngEnCasa(std::string_view bytes, const std::string& name) {
  const Extent size = TamanoDePng(bytes);
  CheckSize(name, size);
  if (Cortada(bytes)) Fail(name, "el archivo está incompleto");
  Picture picture = LeerPng(bytes);
  if (picture.IsEmpty()) FailRead(name, size);
  return picture;
}

Picture LeerEnCasa(Lector& lector, std::string_view bytes, const std::string& name) {
  const Extent screen = TamanoDeGif(bytes), size = screen != Extent{} ? screen : Of(lector.reader.size());
  CheckSize(name, size);
  if (Cortada(bytes)) Fail(name, "el archivo está incompleto");
  QImage image;
  if (!lector.reader.read(&image)) FailRead(name, size);
  if (image.isNull()) Fail(name, "la imagen está vacía");
  CheckSize(name, Of(image.size()));
  Picture picture = PictureOf(std::move(image));
  if (EsGif(bytes)) BlanquearFuera(picture, PrimeroDeGif(bytes));
  return picture;
}

}  // namespace

QtPictureCodec::QtPictureCodec(std::function<void()> mientras, std::filesystem::path decodificador)
    : mientras_(std::move(mientras)), decodificador_(std::move(decodificador)) {
  // CheckSize is the limit that tells the user; this one is for sizes that only a reader comes upon. Eight
  // bytes a pixel: the deepest pictures.
  QImageReader::setAllocationLimit(static_cast<int>(kMasPixeles * 8 >> 20));
  // What is wrong with a file is said by a PictureError and by nothing else.
  QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false\nqt.gui.icc=false\nqt.svg*=false"));
}

Picture QtPictureCodec::LeerAparte(std::string_view bytes, const std::string& name, std::string* aviso) {
  if (bytes.size() > kMasBytesAparte) Fail(name, "el archivo es demasiado grande para una imagen de su tipo");
  if (const std::optional<Extent> icon = TamanoDeIcono(bytes); icon && Pixels(*icon) > kMasPixelesAparte)
    FailSize(name, *icon);
  Decodificada d =
      Decodificar(decodificador_.empty() ? ProgramaDecodificador() : decodificador_, bytes, mientras_);
  switch (d.razon) {
    case Razon::Parcial:
      if (aviso) *aviso = "No se ha podido dibujar todo lo que contiene la imagen \"" + name + "\".";
      [[fallthrough]];
    case Razon::Hecha:
      CheckSize(name, d.imagen.Size());
      return std::move(d.imagen);
    case Razon::Desconocida:
      Fail(name, "no es una imagen de un formato conocido");
    case Razon::Danada:
      Fail(name, "el archivo está dañado o incompleto");
    case Razon::Vacia:
      Fail(name, "la imagen está vacía");
    case Razon::Grande:
      FailSize(name, d.declarada);
    case Razon::SinMemoria:
      FailMemory(name);
    case Razon::Insegura:
      Fail(name, "este sistema no permite leer con seguridad las imágenes de su tipo");
    case Razon::Tarde:
      Fail(name, "leerla lleva demasiado tiempo");
    case Razon::Caida:
      Fail(name, "el archivo está dañado y su lector ha fallado");
    case Razon::Ausente:
      break;
  }
  Fail(name, "falta el programa pixmosa-decodificador, que lee las imágenes de su tipo");
}

Picture QtPictureCodec::ReadBytes(std::string_view bytes, const std::string& name, std::string* aviso) {
  if (aviso) aviso->clear();
  if (bytes.empty()) Fail(name, "el archivo está vacío");
  if (bytes.size() > kMasBytesDeImagen) Fail(name, "el archivo es demasiado grande");
  try {
    if (EsMetafile(bytes)) return LeerAparte(bytes, name, aviso);
    if (EsPng(bytes)) return LeerPngEnCasa(bytes, name);
    Lector lector(bytes);
    if (lector.reader.format().isEmpty()) Fail(name, "no es una imagen de un formato conocido");
    if (!lector.EsDeCasa() || (EsJpeg(bytes) && JpegPasadas(bytes) > kMasPasadas))
      return LeerAparte(bytes, name, aviso);
    Picture picture = LeerEnCasa(lector, bytes, name);
    if (aviso && GifCortado(bytes)) *aviso = "La imagen \"" + name + "\" está incompleta.";
    return picture;
  } catch (const std::bad_alloc&) {
    FailMemory(name);
  }
}

Picture QtPictureCodec::Read(const std::filesystem::path& file, std::string* aviso) {
  try {
    return ReadBytes(LeerArchivo(file, kMasBytesDeImagen), file.string(), aviso);
  } catch (const FileError& e) {
    throw PictureError(e.what());
  } catch (const std::bad_alloc&) {
    FailMemory(file.string());
  }
}

Picture QtPictureCodec::ReadQuickly(const std::filesystem::path& file, QuickReader* quick,
                                    const std::function<Extent(Extent)>& size, std::string* aviso,
                                    const std::function<Picture(const Picture&)>& otherwise) {
  try {
    if (aviso) aviso->clear();
    const std::string bytes = LeerArchivo(file, kMasBytesDeImagen);
    const auto bounded = [&](Extent source) { return CabeEnMemoria(source) ? size(source) : Extent{}; };
    if (std::optional<Picture> picture = quick(bytes, bounded)) return *picture;
    return otherwise(ReadBytes(bytes, file.string(), aviso));
  } catch (const FileError& e) {
    throw PictureError(e.what());
  } catch (const std::bad_alloc&) {
    FailMemory(file.string());
  }
}

Picture QtPictureCodec::ReadStretched(const std::filesystem::path& file,
                                      const std::function<Extent(Extent)>& size, std::string* aviso) {
  return ReadQuickly(file, ReadJpegStretched, size, aviso,
                     [&](const Picture& whole) { return Stretch(whole, size(whole.Size())); });
}

Picture QtPictureCodec::ReadReduced(const std::filesystem::path& file,
                                    const std::function<Extent(Extent)>& size, std::string* aviso) {
  return ReadQuickly(file, ReadJpegReduced, size, aviso, [&](const Picture& whole) {
    size(whole.Size());
    return whole;
  });
}

Extent QtPictureCodec::Size(std::string_view bytes) {
  if (bytes.empty() || EsMetafile(bytes)) return {};
  if (EsPng(bytes)) return TamanoDePng(bytes);
  if (const Extent screen = TamanoDeGif(bytes); screen != Extent{}) return screen;
  if (const std::optional<Extent> icon = TamanoDeIcono(bytes)) return *icon;
  Lector lector(bytes);
  if (!lector.EsDeCasa() || !lector.reader.size().isValid()) return {};
  const Extent size = Of(lector.reader.size());
  const bool turned = lector.reader.transformation() & QImageIOHandler::TransformationRotate90;
  return turned ? Extent{size.height, size.width} : size;
}

}  // namespace pixmosa
