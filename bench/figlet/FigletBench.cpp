// Listing 400 fonts, loading a font of 100 KB, drawing banners, and what the gallery of 400 such fonts does:
// its first screen, a keystroke in it, measuring them all for its sieve. Beside a memcpy of the font.
#include <benchmark/benchmark.h>
#include <cstring>
#include <filesystem>

#include "figlet/Catalogo.h"
#include "figlet/Galeria.h"
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

constexpr std::size_t kALaVista = 6;  // rows of a screen

// 400 fonts in a folder of their own while it lives.
class Carpeta {
 public:
  Carpeta() {
    fs::create_directories(path_);
    for (int i = 0; i < 400; ++i) EscribirArchivo(path_ / ("fuente" + std::to_string(i) + ".flf"), Font());
  }
  ~Carpeta() { fs::remove_all(path_); }
  std::vector<fs::path> Lista() const { return {path_}; }

 private:
  fs::path path_ = fs::temp_directory_path() / "pixmosa-bench-galeria";
};

void Pantalla(Galeria& gallery, const std::string& text, const OpcionesDeLetrero& options) {
  for (std::size_t i = 0; i < kALaVista; ++i) benchmark::DoNotOptimize(gallery.Letrero(i, text, options));
}

void GalleryFirstScreen(benchmark::State& state) {
  const Carpeta folder;
  for (auto _ : state) {
    Galeria gallery(folder.Lista());
    benchmark::DoNotOptimize(gallery.Cribar({}));
    Pantalla(gallery, "Pixmosa", {});
  }
}
BENCHMARK(GalleryFirstScreen)->Unit(benchmark::kMillisecond);

void GalleryKeystroke(benchmark::State& state) {
  const Carpeta folder;
  Galeria gallery(folder.Lista());
  const OpcionesDeLetrero options{{static_cast<Composicion>(state.range(0))}, {}};
  for (auto _ : state) Pantalla(gallery, "Una linea de texto", options);
}
BENCHMARK(GalleryKeystroke)->Arg(0)->Arg(2)->Unit(benchmark::kMillisecond);

void GalleryMeasures(benchmark::State& state) {
  const Carpeta folder;
  for (auto _ : state) {
    Galeria gallery(folder.Lista());
    gallery.Medir(SIZE_MAX);
    benchmark::DoNotOptimize(gallery.Cribar({.espanol = true}));
  }
}
BENCHMARK(GalleryMeasures)->Unit(benchmark::kMillisecond);

}  // namespace
