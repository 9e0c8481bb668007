// The exact-copy page of a 12-megapixel picture at the finest step, and the cutting of a large GIF, each
// beside a copy of what they write.
#include <benchmark/benchmark.h>
#include <filesystem>

#include "platform/AtomicFile.h"
#include "platform/Pixel.h"
#include "platform/PrivateFolder.h"
#include "web/basGIF.h"
#include "web/basWeb.h"

using namespace pixmosa;
namespace fs = std::filesystem;

namespace {

const fs::path& Folder() {
  static const PrivateFolder folder(fs::temp_directory_path(), "pixmosa-bench");
  return folder.Path();
}

const Picture& Photograph() {
  static const Picture photograph = [] {
    Picture p(4000, 3000);
    Random random(1);
    std::uint32_t* to = p.Writable();
    for (std::size_t i = 0; i < p.PixelCount(); ++i) to[i] = Opaco(random.Bits());
    return p;
  }();
  return photograph;
}

void ExactCopyPage(benchmark::State& state) {
  BasWeb web;
  for (auto _ : state)
    EscribirWebArt(web, {.exactCopy = true, .tamaño = 5}, Photograph(), Folder() / "pagina.bmp");
}
BENCHMARK(ExactCopyPage)->Unit(benchmark::kMillisecond)->Iterations(3)->Repetitions(3);

void CopyOfThePage(benchmark::State& state) {
  for (auto _ : state)
    fs::copy_file(Folder() / "pagina.bmp", Folder() / "copia.bmp", fs::copy_options::overwrite_existing);
}
BENCHMARK(CopyOfThePage)->Unit(benchmark::kMillisecond)->Iterations(3)->Repetitions(3);

// 100 MB in 200 frames; the folder takes every "*.bmp" with it at the end.
const fs::path& LargeGif() {
  static const fs::path file = [] {
    std::string gif = "GIF89a";
    Random random(2);
    for (int frame = 0; frame < 200; ++frame) {
      gif += "\x21\xF9\x04";
      for (int i = 0; i < 500'000; ++i) {
        const char c = random.Bits() >> 24;
        gif += c == 0x21 ? ' ' : c;
      }
    }
    EscribirArchivo(Folder() / "grande.bmp", gif);
    return Folder() / "grande.bmp";
  }();
  return file;
}

void CutGif100MB(benchmark::State& state) {
  fs::create_directory(Folder() / "fotogramas");
  BasGif gif{.carpeta = Folder() / "fotogramas", .FramesList = {}, .Seleccionados = {}};
  LargeGif();
  for (auto _ : state) CortarGif(gif, LargeGif());
  fs::remove_all(Folder() / "fotogramas");
}
BENCHMARK(CutGif100MB)->Unit(benchmark::kMillisecond)->Iterations(3)->Repetitions(3);

void CopyOfTheGif(benchmark::State& state) {
  for (auto _ : state)
    fs::copy_file(LargeGif(), Folder() / "copia.bmp", fs::copy_options::overwrite_existing);
}
BENCHMARK(CopyOfTheGif)->Unit(benchmark::kMillisecond)->Iterations(3)->Repetitions(3);

}  // namespace
