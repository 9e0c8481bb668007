// Listing 400 fonts, loading a font of 100 KB and drawing banners, beside a memcpy of the font.
#include <benchmark/benchmark.h>
#include <cstring>
#include <filesystem>

#include "figlet/Catalogo.h"
#include "figlet/basFigLet.h"
#include "platform/AtomicFile.h"

using namespace pixmosa;
namespace fs = std::filesystem;

namespace {

// 224 characters of 8 rows of about 55 columns: 100 KB.
const std::string& Font() {
  static const std::string font = [] {
    std::string s = "flf2a$ 8 7 60 -1 0\r\n";
    for (int code = 32; code < 256; ++code)
      for (int row = 0; row < 8; ++row) s += std::string(54, '#') + (row == 7 ? "@@\r\n" : "@\r\n");
    return s;
  }();
  return font;
}

void Memcpy(benchmark::State& state) {
  std::string copy(Font().size(), ' ');
  for (auto _ : state) {
    std::memcpy(copy.data(), Font().data(), copy.size());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(Memcpy)->Unit(benchmark::kMillisecond);

void List400Fonts(benchmark::State& state) {
  const fs::path folder = fs::temp_directory_path() / "pixmosa-bench-fuentes";
  fs::create_directories(folder);
  std::string tree = "[A]\r\n[A|B]\r\n";
  for (int i = 0; i < 400; ++i) {
    EscribirArchivo(folder / ("fuente" + std::to_string(i) + ".flf"), "x");
    tree += "fuente" + std::to_string(i) + "\r\n";
  }
  EscribirArchivo(folder / "categoriestree.txt", tree);
  for (auto _ : state) {
    benchmark::DoNotOptimize(FillFontList({folder}));
    benchmark::DoNotOptimize(ArbolDeFuentes({folder}));
  }
  fs::remove_all(folder);
}
BENCHMARK(List400Fonts)->Unit(benchmark::kMillisecond);

void LoadAndDraw(benchmark::State& state) {
  BasFigLet font;
  for (auto _ : state) {
    LoadFontBytes(font, Font(), [](const std::string&) {});
    benchmark::DoNotOptimize(RenderBanner(font, "Una linea de texto"));
  }
}
BENCHMARK(LoadAndDraw)->Unit(benchmark::kMillisecond);

void Keystroke100Characters(benchmark::State& state) {
  BasFigLet font;
  LoadFontBytes(font, Font(), [](const std::string&) {});
  const std::string text(100, 'm');
  for (auto _ : state) benchmark::DoNotOptimize(RenderBanner(font, text));
}
BENCHMARK(Keystroke100Characters)->Unit(benchmark::kMillisecond);

}  // namespace
