// A full text, a full fill and a flip of the editor's grid, and statistics over a large text, beside a
// memcpy.
#include <benchmark/benchmark.h>
#include <cstring>

#include "editor/basEditor.h"
#include "stats/Estadisticas.h"

using namespace pixmosa;

namespace {

std::string FullText() {
  std::string text;
  for (int row = 0; row < 75; ++row) text += std::string(100, static_cast<char>('a' + row % 26)) + "\r\n";
  return text;
}

void Paint(benchmark::State& state) {
  const std::string text = FullText();
  BasEditor e;
  for (auto _ : state) {
    Clear(e);
    PaintText(e, text);
    e.Changed.clear();
  }
}
BENCHMARK(Paint)->Unit(benchmark::kMillisecond);

void Fill(benchmark::State& state) {
  BasEditor e;
  for (auto _ : state) {
    e.CurrentChar = e.CurrentChar == '#' ? 'o' : '#';
    FloodFill(e, {50, 40});
    e.Changed.clear();
  }
}
BENCHMARK(Fill)->Unit(benchmark::kMillisecond);

void Flip(benchmark::State& state) {
  BasEditor e;
  PaintText(e, FullText());
  for (auto _ : state) {
    FlipHorizontal(e);
    e.Changed.clear();
  }
}
BENCHMARK(Flip)->Unit(benchmark::kMillisecond);

const std::string& LargeText() {
  static const std::string text = [] {
    std::string t;
    while (t.size() < 100'000'000) t += FullText();
    return t;
  }();
  return text;
}

void Memcpy100MB(benchmark::State& state) {
  std::string copy(LargeText().size(), ' ');
  for (auto _ : state) {
    std::memcpy(copy.data(), LargeText().data(), copy.size());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(Memcpy100MB)->Unit(benchmark::kMillisecond);

void Statistics100MB(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(ShowStatistics(LargeText()));
}
BENCHMARK(Statistics100MB)->Unit(benchmark::kMillisecond);

}  // namespace
