#include "platform/qt/QtPicture.h"

#include <memory>
#include <new>
#include <utility>

#include <QPainter>

namespace pixmosa {

QImage ImageOf(const Picture& picture) {
  if (picture.IsEmpty()) return {};
  using Block = std::shared_ptr<const std::uint32_t[]>;
  auto* keep = new Block(picture.Block());
  return {reinterpret_cast<const uchar*>(picture.Pixels()),
          picture.Width(),
          picture.Height(),
          qsizetype{4} * picture.Width(),
          QImage::Format_RGB32,
          [](void* block) { delete static_cast<Block*>(block); },
          keep};
}

QImage Vista(const Picture& picture, QSize size) {
  constexpr int kPorPixel = 4;  // of the picture's pixels, each way, what smoothing takes
  const QImage image = ImageOf(picture);
  const QImage thinned = image.scaled(image.size().boundedTo(kPorPixel * size));
  return thinned.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

Picture PictureOf(QImage image) {
  if (image.isNull()) return {};
  if (image.hasAlphaChannel()) {
    QImage onWhite(image.size(), QImage::Format_RGB32);
    if (onWhite.isNull()) throw std::bad_alloc();
    onWhite.fill(Qt::white);
    QPainter(&onWhite).drawImage(0, 0, image);
    image = std::move(onWhite);
  } else {
    image.convertTo(QImage::Format_RGB32);
  }
  // An image that the memory does not hold turns null by itself.
  if (image.isNull()) throw std::bad_alloc();
  const int w = image.width(), h = image.height();
  auto held = std::make_shared<QImage>(std::move(image));
  auto* pixels = reinterpret_cast<std::uint32_t*>(held->bits());
  if (!pixels) throw std::bad_alloc();  // a reader still shares them, and there is no room for a copy
  return {w, h, std::shared_ptr<std::uint32_t[]>(held, pixels)};
}

}  // namespace pixmosa
