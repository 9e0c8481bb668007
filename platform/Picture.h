// A picture: width, height and a shared block of 32-bit pixels. Copying one copies a pointer. Sizes and
// places are plain numbers, as windows count them, and become offsets (std::ptrdiff_t) and counts
// (std::size_t) here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "platform/Colour.h"

namespace pixmosa {

struct Extent {
  int width = 0, height = 0;
  bool operator==(const Extent&) const = default;
};

// Pixels are bytes blue, green, red, fourth, rows from the top without padding. The block is shared between
// copies and never changes while shared: Writable() first makes it this picture's own.
class Picture {
 public:
  Picture() = default;

  // width x height pixels of unset content; both 1 or more. Throws std::bad_alloc.
  Picture(int width, int height);

  // Takes over a block of width x height pixels that somebody else allocated.
  Picture(int width, int height, std::shared_ptr<std::uint32_t[]> block);

  // width x height pixels of one colour.
  static Picture Filled(int width, int height, Colour colour);

  int Width() const { return width_; }
  int Height() const { return height_; }
  Extent Size() const { return {width_, height_}; }
  bool IsEmpty() const { return !block_; }
  std::size_t PixelCount() const {
    const std::size_t width = width_;
    return width * height_;
  }

  const std::uint32_t* Pixels() const { return block_.get(); }
  std::span<const std::uint32_t> Row(std::ptrdiff_t y) const {
    return std::span(Pixels() + y * width_, width_);
  }

  // The pixels for writing; a shared block is copied first.
  std::uint32_t* Writable();

  // The colour at (x, y), or kNoColour outside the picture.
  Colour ColourAt(int x, int y) const {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) return kNoColour;
    return ColourOfPixel(Row(y)[x]);
  }

  // Nobody else holds the block.
  bool EsUnica() const { return block_.use_count() == 1; }

  // The block itself, for a surface that shows it without copying.
  std::shared_ptr<const std::uint32_t[]> Block() const { return block_; }

 private:
  int width_ = 0, height_ = 0;
  std::shared_ptr<std::uint32_t[]> block_;
};

}  // namespace pixmosa
