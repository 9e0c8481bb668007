// A generation from a loaded 12-megapixel picture, and the character tables, beside a copy of the picture's
// bytes.
#include <benchmark/benchmark.h>
#include <cstring>
#include <vector>

#include "conversion/basAscii.h"
#include "platform/Pixel.h"
#include "platform/Random.h"
#include "platform/qt/QtTextSurface.h"
#include "tests/support/GuiApplication.h"

using namespace pixmosa;

namespace {

// 4000 x 3000 pixels of soft noise.
const Picture& Photograph() {
  static const Picture photograph = [] {
    Picture p(4000, 3000);
    Random random(1);
    std::uint32_t* to = p.Writable();
    for (std::size_t i = 0; i < p.PixelCount(); ++i)
      to[i] = Opaco(UnirGris(i % 4000 / 16) + (random.Bits() & 0x0F0F0F));
    return p;
  }();
  return photograph;
}

// The same in pure black and white, as outlines and blocks want it.
const Picture& Drawing() {
  static const Picture drawing = [] {
    Picture p = Photograph();
    std::uint32_t* to = p.Writable();
    for (std::size_t i = 0; i < p.PixelCount(); ++i) to[i] = Opaco(Azul(to[i]) < 128 ? 0 : kTresPartes);
    return p;
  }();
  return drawing;
}

void Memcpy(benchmark::State& state) {
  const Picture& p = Photograph();
  std::vector<std::uint32_t> copy(p.PixelCount());
  for (auto _ : state) {
    std::memcpy(copy.data(), p.Pixels(), p.PixelCount() * 4);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(Memcpy)->Unit(benchmark::kMillisecond);

void CharacterTables(benchmark::State& state) {
  test::NeedGuiApplication();
  QtTextSurface surface;
  BasAscii ascii;
  for (auto _ : state) RebuildCharacterTables(ascii, {}, surface);
}
BENCHMARK(CharacterTables)->Unit(benchmark::kMillisecond);

// The characters drawn smooth and measured.
void SmoothCharacters(benchmark::State& state) {
  test::NeedGuiApplication();
  QtTextSurface surface;
  BasAscii ascii;
  RebuildCharacterTables(ascii, {}, surface);
  for (auto _ : state) {
    ascii.Medidos = {};
    PrepararRepertorio(ascii, {}, surface);
  }
}
BENCHMARK(SmoothCharacters)->Unit(benchmark::kMillisecond);

void Generation(benchmark::State& state) {
  test::NeedGuiApplication();
  QtTextSurface surface;
  BasAscii ascii;
  RebuildCharacterTables(ascii, {}, surface);
  ascii.Palette3x2.Characters.fill('#');
  ascii.AsciiColumns = state.range(0);
  const int method = state.range(1);
  const Picture& source = method == kGrayscale || EsDeFormas(method) ? Photograph() : Drawing();
  PrepararRepertorio(ascii, {}, surface);
  for (auto _ : state) GenerateAscii(ascii, {}, source, method);
}
BENCHMARK(Generation)
    ->ArgNames({"columns", "method"})
    ->Args({250, kGrayscale})
    ->Args({1000, kGrayscale})
    ->Args({80, kFormas})
    ->Args({250, kFormas})
    ->Args({1000, kFormas})
    ->Args({250, kTono})
    ->Args({250, kEdges})
    ->Args({250, kAntiAlias})
    ->Args({1000, kAntiAlias})
    ->Unit(benchmark::kMillisecond);

}  // namespace
