// Every effect on a 12-megapixel picture, the whole dispatch into a fresh block, beside a memcpy of the
// picture's bytes.
#include <benchmark/benchmark.h>
#include <cstring>
#include <vector>

#include "effects/Giros.h"
#include "effects/basFiltrosConfig.h"
#include "effects/mFiltros.h"
#include "platform/Pixel.h"

using namespace pixmosa;

namespace {

// 4000 x 3000 pixels: slow waves of colour under noise, every level present.
const Picture& Photograph() {
  static const Picture photograph = [] {
    Picture p(4000, 3000);
    Random random(1);
    std::uint32_t* to = p.Writable();
    for (int y = 0; y < p.Height(); ++y)
      for (int x = 0; x < p.Width(); ++x) {
        const std::uint32_t noise = random.Bits();
        const auto level = [&](int wave, int shift) { return wave % 256 * 15 / 16 + (noise >> shift & 15); };
        *to++ = Opaco(Unir(level(x / 16, 0), level((x + y) / 27, 4), level(y / 12, 8)));
      }
    return p;
  }();
  return photograph;
}

void Memcpy(benchmark::State& state) {
  const Picture& p = Photograph();
  std::vector<std::uint32_t> copy(p.PixelCount());
  for (auto _ : state) {
    std::memcpy(copy.data(), p.Pixels(), p.PixelCount() * 4);
    benchmark::ClobberMemory();
  }
}

// Each time from the loaded picture: the result always needs a block of its own.
void Dispatch(benchmark::State& state, int effect, std::int32_t argument) {
  MFiltros m;
  NoProgress progress;
  for (auto _ : state) {
    ImagenDeTrabajo image;
    image.Cargar(Photograph());
    ApplyEffect(m, image, effect, image, argument, progress, false);
    benchmark::DoNotOptimize(image.picMain.Pixels());
  }
}

void Turn(benchmark::State& state, const Giro& giro) {
  for (auto _ : state) {
    ImagenDeTrabajo image;
    image.Cargar(Photograph());
    Girar(image, giro);
    benchmark::DoNotOptimize(image.picMain.Pixels());
  }
}

[[maybe_unused]] const bool registered = [] {
  const auto ms = [](benchmark::internal::Benchmark* b) { b->Unit(benchmark::kMillisecond)->MinTime(0.2); };
  ms(benchmark::RegisterBenchmark("Memcpy", Memcpy));
  for (int n = 1; n <= kEfectos; ++n) {
    const EffectConfig& e = *Efecto(n);
    const std::int32_t argument = e.argumento == Argumento::Exigido ? 50 : e.menu;
    ms(benchmark::RegisterBenchmark((std::to_string(n) + " " + NombreDeOrden(e.caption)).c_str(), Dispatch, n,
                                    argument));
  }
  ms(benchmark::RegisterBenchmark("17 contraste (100)", Dispatch, 17, 100));
  ms(benchmark::RegisterBenchmark("15 pixelizar (20)", Dispatch, 15, 20));
  for (const Giro& g : Giros()) ms(benchmark::RegisterBenchmark(g.orden, Turn, g));
  return true;
}();

}  // namespace
