#include "platform/qt/QtPictureCodec.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <new>
#include <optional>

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
#include "platform/qt/FallosDeImagen.h"
#include "platform/qt/QtPicture.h"

namespace pixmosa {
namespace {

// The readers that may run inside the program.
constexpr const char* kDeCasa[] = {"jpeg", "jpg", "gif", "bmp", "pbm", "pgm", "ppm", "xbm", "xpm"};

Extent Of(QSize size) {
  return {size.width(), size.height()};
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
  FailToRead(name, "el archivo está dañado o incompleto");
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
  if (Cortada(bytes)) FailToRead(name, "el archivo está incompleto");
  Picture picture = LeerPng(bytes);
  if (picture.IsEmpty()) FailRead(name, size);
  return picture;
}

Picture LeerEnCasa(Lector& lector, std::string_view bytes, const std::string& name) {
  const Extent screen = TamanoDeGif(bytes), size = screen != Extent{} ? screen : Of(lector.reader.size());
  CheckSize(name, size);
  if (Cortada(bytes)) FailToRead(name, "el archivo está incompleto");
  QImage image;
  if (!lector.reader.read(&image)) FailRead(name, size);
  if (image.isNull()) FailToRead(name, "la imagen está vacía");
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
  QImageReader::setAllocationLimit(static_cast<int>(kMasPixelesDeImagen * 8 >> 20));
  // What is wrong with a file is said by a PictureError and by nothing else.
  QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false\nqt.gui.icc=false\nqt.svg*=false"));
}

Picture QtPictureCodec::LeerAparte(std::string_view bytes, const std::string& name, std::string* aviso) {
  if (bytes.size() > kMasBytesAparte)
    FailToRead(name, "el archivo es demasiado grande para una imagen de su tipo");
  if (const std::optional<Extent> icon = TamanoDeIcono(bytes); icon && Pixels(*icon) > kMasPixelesAparte)
    FailSize(name, *icon);
  return PictureOfAnswer(
      Decodificar(decodificador_.empty() ? ProgramaDecodificador() : decodificador_, bytes, mientras_), name,
      aviso);
}

Picture QtPictureCodec::ReadBytes(std::string_view bytes, const std::string& name, std::string* aviso) {
  if (aviso) aviso->clear();
  if (bytes.empty()) FailToRead(name, "el archivo está vacío");
  if (bytes.size() > kMasBytesDeImagen) FailToRead(name, "el archivo es demasiado grande");
  try {
    if (EsMetafile(bytes)) return LeerAparte(bytes, name, aviso);
    if (EsPng(bytes)) return LeerPngEnCasa(bytes, name);
    Lector lector(bytes);
    if (lector.reader.format().isEmpty()) FailToRead(name, "no es una imagen de un formato conocido");
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
    const auto bounded = [&](Extent source) { return FitsMemory(source) ? size(source) : Extent{}; };
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
