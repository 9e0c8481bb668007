// The writing half of the codec.
#include <algorithm>
#include <array>
#include <new>

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>

#include "platform/png/Png.h"
#include "platform/qt/QtPicture.h"
#include "platform/qt/QtPictureCodec.h"

namespace pixmosa {
namespace {

constexpr int kJpegQuality = 95;
constexpr int kLargestJpegSide = 65500;

// What a user would save a picture as; the writers of the machine know some of them.
constexpr std::array kUtiles = {"png", "bmp", "jpg", "jpeg", "webp", "tif", "tiff"};

[[noreturn]] void Fail(const std::string& format, const std::string& why) {
  throw PictureError("No se ha podido guardar la imagen en el formato \"" + format + "\": " + why + ".");
}

}  // namespace

std::string QtPictureCodec::Encode(const Picture& picture, const std::string& format) {
  const QByteArray kind = QByteArray::fromStdString(format).toLower();
  const std::vector<std::string> known = Formatos();
  if (std::find(known.begin(), known.end(), kind.toStdString()) == known.end())
    Fail(format, "no es un formato en el que se pueda guardar");
  if (picture.IsEmpty()) Fail(format, "la imagen está vacía");
  const bool jpeg = kind == "jpg" || kind == "jpeg";
  if (jpeg && std::max(picture.Width(), picture.Height()) > kLargestJpegSide)
    Fail(format, "admite " + std::to_string(kLargestJpegSide) + " píxeles de lado como mucho");
  const std::string memory = "no hay memoria suficiente o es demasiado grande para él";
  try {
    if (kind == "png") return EscribirPng(picture);
  } catch (const std::bad_alloc&) {
    Fail(format, memory);
  }
  QByteArray data;
  QBuffer buffer(&data);
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, kind);
  if (jpeg) writer.setQuality(kJpegQuality);
  if (!writer.write(ImageOf(picture))) Fail(format, memory);
  return data.toStdString();
}

std::vector<std::string> QtPictureCodec::Formatos() {
  const QList<QByteArray> writers = QImageWriter::supportedImageFormats();
  std::vector<std::string> endings;
  for (const char* ending : kUtiles)
    if (writers.contains(ending)) endings.emplace_back(ending);
  return endings;
}

std::vector<std::string> QtPictureCodec::FormatosLegibles() {
  std::vector<std::string> endings{"wmf"};
  for (const QByteArray& ending : QImageReader::supportedImageFormats())
    endings.push_back(ending.toStdString());
  std::sort(endings.begin(), endings.end());
  endings.erase(std::unique(endings.begin(), endings.end()), endings.end());
  return endings;
}

}  // namespace pixmosa
