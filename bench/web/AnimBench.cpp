// The animation page and the player page of 300 frames of 500 x 400 at 100 columns, each beside the decoding
// of the same frames; the player's are composited.
#include <benchmark/benchmark.h>

#include "conversion/basAscii.h"
#include "platform/PrivateFolder.h"
#include "platform/Random.h"
#include "platform/png/Png.h"
#include "platform/qt/QtPictureCodec.h"
#include "platform/qt/QtTextSurface.h"
#include "programa/Ajustes.h"
#include "programa/Pelicula.h"
#include "tests/support/GuiApplication.h"
#include "web/AnimArt.h"
#include "web/basGIF.h"

using namespace pixmosa;
namespace fs = std::filesystem;

namespace {

constexpr int kFrames = 300, kWidth = 500, kHeight = 400, kColumns = 100;

// The pixels of a picture as GIF data of nine-bit codes: a clear code before the table could grow.
std::string PixelData(Random& random) {
  constexpr unsigned kClear = 256, kEnd = 257, kPixelsBetweenClears = 250;
  std::string bytes;
  unsigned bits = 0, count = 0;
  const auto put = [&](unsigned code) {
    bits |= code << count;
    for (count += 9; count >= 8; count -= 8, bits >>= 8) bytes += static_cast<char>(bits & 0xFF);
  };
  for (unsigned i = 0; i < kWidth * kHeight; ++i) {
    if (i % kPixelsBetweenClears == 0) put(kClear);
    put((i % kWidth / 2 + (random.Bits() & 7)) & 0xFF);
  }
  put(kEnd);
  bytes += static_cast<char>(bits);
  std::string blocks = "\x08";
  for (std::size_t at = 0; at < bytes.size(); at += 255) {
    const std::string block = bytes.substr(at, 255);
    blocks += static_cast<char>(block.size()) + block;
  }
  return blocks + '\0';
}

std::string AnimatedGif() {
  const auto word = [](int n) { return std::string{static_cast<char>(n & 0xFF), static_cast<char>(n >> 8)}; };
  const std::string size = word(kWidth) + word(kHeight);
  std::string gif = "GIF89a" + size + std::string("\xF7\0\0", 3);
  for (int gray = 0; gray < 256; ++gray) gif += std::string(3, static_cast<char>(gray));
  Random random(3);
  for (int frame = 0; frame < kFrames; ++frame)
    gif += std::string("\x21\xF9\x04\0\x08\0\0\0\x2C\0\0\0\0", 13) + size + '\0' + PixelData(random);
  return gif + ";";
}

// The frames as loading the GIF leaves them.
struct Frames {
  PrivateFolder folder{fs::temp_directory_path(), "pixmosa-bench-anim"};
  BasGif gif{.carpeta = folder.Path(), .FramesList = {}, .Seleccionados = {}};
  QtPictureCodec pictures;

  Frames() {
    test::NeedGuiApplication();
    EscribirArchivo(folder.Path() / "animado", AnimatedGif());
    CortarGif(gif, folder.Path() / "animado");
    fs::remove(folder.Path() / "animado");
  }

  Picture Read(std::size_t k) { return pictures.Read(ArchivoDeFotograma(gif.carpeta, gif.Seleccionados[k])); }
};

void DecodingOfTheFrames(benchmark::State& state) {
  Frames frames;
  for (auto _ : state)
    for (std::size_t k = 0; k < frames.gif.Seleccionados.size(); ++k)
      benchmark::DoNotOptimize(frames.Read(k).Pixels());
  state.counters["frames"] = frames.gif.Seleccionados.size();
}
BENCHMARK(DecodingOfTheFrames)->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(3);

void AnimationPage(benchmark::State& state) {
  Frames frames;
  QtTextSurface surface;
  BasAscii ascii;
  const AsciiSettings settings;
  RebuildCharacterTables(ascii, settings, surface);
  ascii.AsciiColumns = kColumns;
  for (auto _ : state)
    EscribirAnimArt(frames.folder.Path() / "pagina.bmp", frames.gif.Seleccionados.size(), "Lucida Console",
                    [&](std::size_t k) -> std::string& {
                      GenerateAscii(ascii, settings, frames.Read(k), kGrayscale);
                      return ascii.ProducedText;
                    });
  state.counters["frames"] = frames.gif.Seleccionados.size();
}
BENCHMARK(AnimationPage)->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(3);

void CompositingOfTheFrames(benchmark::State& state) {
  test::NeedGuiApplication();
  QtPictureCodec pictures;
  const std::string gif = AnimatedGif();
  for (auto _ : state)
    for (const auto frames = pictures.AbrirAnimacion(gif, "x"); const auto frame = frames->Siguiente();)
      benchmark::DoNotOptimize(frame->imagen.Pixels());
}
BENCHMARK(CompositingOfTheFrames)->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(3);

// On one thread; with an argument of 1 in the pictures' colours.
void PlayerPage(benchmark::State& state) {
  test::NeedGuiApplication();
  QtPictureCodec pictures;
  QtTextSurface surface;
  const PrivateFolder folder{fs::temp_directory_path(), "pixmosa-bench-pelicula"};
  Programa p{surface, pictures, folder.Path()};
  Medir(p);
  p.basAscii.AsciiColumns = kColumns;
  Revelado how{.metodo = kGrayscale,
               .opciones = {},
               .medios = {surface,
                          p.ajustes.font,
                          surface.GetTextSize(p.ajustes.font, "A"),
                          [](const Picture& picture) { return EscribirPng(picture, Empaquetado::Pequeno); },
                          {}}};
  how.opciones.color = state.range(0) == 1;
  const std::string gif = AnimatedGif();
  for (auto _ : state)
    EscribirPelicula(p, PeliculaDeArchivo(pictures, gif, "x"), folder.Path() / "pagina.bmp",
                     *FormatoDePeliculaDe("html"), how, [](std::size_t, const std::string&) { return true; });
}
BENCHMARK(PlayerPage)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(3);

}  // namespace
