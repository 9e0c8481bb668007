#include "platform/qt/QtPictureCodec.h"

#include <algorithm>
#include <optional>
#include <unistd.h>

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>

#include "platform/AtomicFile.h"
#include "platform/Stretch.h"
#include "platform/jpeg/JpegRows.h"
#include "platform/qt/QtPicture.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

constexpr std::uintmax_t kLargestFile = std::uintmax_t{1} << 31;
constexpr int kJpegQuality = 95;

[[noreturn]] void Fail(const std::string& name, const std::string& why) {
  throw PictureError("No se ha podido leer la imagen \"" + name + "\": " + why + ".");
}

// A picture may take a quarter of the machine's memory: the picture, its undo copy and a running effect fit.
bool FitsMemory(QSize size) {
  const auto memory =
      static_cast<std::uint64_t>(sysconf(_SC_PHYS_PAGES)) * static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
  const std::uint64_t pixels = static_cast<std::uint64_t>(std::max(0, size.width())) *
                               static_cast<std::uint64_t>(std::max(0, size.height()));
  return pixels <= std::min<std::uint64_t>(memory / 4 / 4, 500'000'000);
}

void CheckSize(const std::string& name, QSize size) {
  if (FitsMemory(size)) return;
  Fail(name, "sus " + std::to_string(size.width()) + " x " + std::to_string(size.height()) +
                 " píxeles no caben en la memoria");
}

// A file of several pictures (an icon) gives its largest one.
void GoToLargest(QImageReader& reader) {
  int best = 0;
  qint64 area = -1;
  for (int i = 0; i < reader.imageCount() && reader.jumpToImage(i); ++i) {
    const QSize s = reader.size();
    const qint64 a = static_cast<qint64>(s.width()) * s.height();
    if (a > area) {
      area = a;
      best = i;
    }
  }
  reader.jumpToImage(best);
}

// The general readers show what they have of a file that was cut short; a user wants to know instead.
bool CutShort(const std::string& bytes) {
  if (IsJpeg(bytes)) return !JpegReachesItsEnd(bytes);
  if (bytes.starts_with("BM") && bytes.size() >= 54) {
    const auto word = [&](std::size_t at, int n) {
      std::uint32_t v = 0;
      for (int i = n - 1; i >= 0; --i)
        v = v << 8 | static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
      return v;
    };
    const bool uncompressed = word(14, 4) >= 40 && (word(30, 4) == 0 || word(30, 4) == 3);
    const std::int64_t width = static_cast<std::int32_t>(word(18, 4));
    const std::int64_t height = std::abs(static_cast<std::int64_t>(static_cast<std::int32_t>(word(22, 4))));
    const std::int64_t row = (width * word(28, 2) + 31) / 32 * 4;
    // The header declares at most 2^31 rows of 2^36 bytes; both lie far inside 64 bits after this check.
    if (uncompressed && width > 0 && width <= 1'000'000 && height <= 1'000'000)
      return static_cast<std::int64_t>(word(10, 4)) + row * height > static_cast<std::int64_t>(bytes.size());
  }
  return false;
}

}  // namespace

QtPictureCodec::QtPictureCodec() {
  QImageReader::setAllocationLimit(0);  // the limit is CheckSize, which tells the user
}

Picture QtPictureCodec::ReadBytes(const std::string& bytes, const std::string& name) {
  if (bytes.empty()) Fail(name, "el archivo está vacío");
  QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&data);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  if (!reader.canRead()) Fail(name, "no es una imagen de un formato conocido");
  CheckSize(name, reader.size());
  if (CutShort(bytes)) Fail(name, "el archivo está incompleto");
  if (bytes.starts_with(std::string_view("\0\0\1\0", 4))) GoToLargest(reader);
  QImage image;
  if (!reader.read(&image)) Fail(name, "el archivo está dañado o incompleto");
  CheckSize(name, image.size());
  return PictureOf(std::move(image));
}

Picture QtPictureCodec::Read(const std::filesystem::path& file) {
  try {
    return ReadBytes(LeerArchivo(file, kLargestFile), file.string());
  } catch (const FileError& e) {
    throw PictureError(e.what());
  }
}

Picture QtPictureCodec::ReadStretched(const std::filesystem::path& file,
                                      const std::function<Extent(Extent)>& size) {
  try {
    const std::string bytes = LeerArchivo(file, kLargestFile);
    if (std::optional<Picture> quick = ReadJpegStretched(bytes, [&](Extent source) {
          return FitsMemory({source.width, source.height}) ? size(source) : Extent{};
        }))
      return *quick;
    const Picture whole = ReadBytes(bytes, file.string());
    return Stretch(whole, size(whole.Size()));
  } catch (const FileError& e) {
    throw PictureError(e.what());
  }
}

std::string QtPictureCodec::Encode(const Picture& picture, const std::string& format) {
  QByteArray data;
  QBuffer buffer(&data);
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, QByteArray::fromStdString(format));
  if (format == "jpg") writer.setQuality(kJpegQuality);
  if (!writer.write(ImageOf(picture)))
    throw PictureError("No se ha podido guardar la imagen en el formato \"" + format +
                       "\": " + writer.errorString().toStdString() + ".");
  return data.toStdString();
}

}  // namespace pixmosa
