#include "platform/Picture.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <utility>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace pixmosa {
namespace {

constexpr std::size_t kHugePage = 2U << 20;

// Large blocks lie on huge pages where the system has them: filling a fresh one then costs a few dozen page
// faults instead of thousands.
std::shared_ptr<std::uint32_t[]> NewBlock(std::size_t pixels) {
#if defined(__linux__)
  const std::size_t bytes = pixels * sizeof(std::uint32_t);
  if (bytes >= 2 * kHugePage) {
    const std::size_t rounded = (bytes + kHugePage - 1) / kHugePage * kHugePage;
    auto* block = static_cast<std::uint32_t*>(std::aligned_alloc(kHugePage, rounded));
    if (!block) throw std::bad_alloc();
    ::madvise(block, rounded, MADV_HUGEPAGE);
    return {block, [](std::uint32_t* b) { std::free(b); }};
  }
#endif
  return std::make_shared_for_overwrite<std::uint32_t[]>(pixels);
}

}  // namespace

Picture::Picture(int width, int height) : width_(width), height_(height), block_(NewBlock(PixelCount())) {}

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
