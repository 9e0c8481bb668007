#include "platform/Picture.h"

#include <algorithm>
#include <utility>

namespace pixmosa {

Picture::Picture(int width, int height)
    : width_(width), height_(height), block_(std::make_shared_for_overwrite<std::uint32_t[]>(PixelCount())) {}

Picture::Picture(int width, int height, std::shared_ptr<std::uint32_t[]> block)
    : width_(width), height_(height), block_(std::move(block)) {}

Picture Picture::Filled(int width, int height, Colour colour) {
  Picture p(width, height);
  std::fill_n(p.block_.get(), p.PixelCount(), PixelOfColour(colour));
  return p;
}

std::uint32_t* Picture::Writable() {
  if (block_ && block_.use_count() > 1) {
    Picture own(width_, height_);
    std::copy_n(block_.get(), PixelCount(), own.block_.get());
    block_ = std::move(own.block_);
  }
  return block_.get();
}

}  // namespace pixmosa
