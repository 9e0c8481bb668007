// What the editor does to a canvas, each within the 16 ms of a frame, and statistics over a large text,
// beside a memcpy.
#include <benchmark/benchmark.h>
#include <cstring>

#include "editor/Figuras.h"
#include "editor/Historial.h"
#include "editor/Recuperacion.h"
#include "editor/Relleno.h"
#include "editor/TextoDelEditor.h"
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
    benchmark::DoNotOptimize(e.Grid.Cambiadas());
  }
}
BENCHMARK(Paint)->Unit(benchmark::kMillisecond);

// A canvas of 1,000 x 1,000 cells.
BasEditor Large() {
  BasEditor e;
  e.Grid = Lienzo(1000, 1000);
  return e;
}

// A stroke across it, as one action.
void Stroke(benchmark::State& state) {
  BasEditor e = Large();
  Historial history;
  for (auto _ : state) {
    e.CurrentChar.caracter = e.CurrentChar.caracter == U'#' ? U'o' : U'#';
    history.Empezar(e);
    for (const Cell c : CeldasDeLinea({1, 1}, {1000, 700}))
      PintarCaracter(e, c.column, c.row, e.CurrentChar.caracter);
    history.Terminar(e);
    benchmark::DoNotOptimize(e.Grid.Cambiadas());
  }
}
BENCHMARK(Stroke)->Unit(benchmark::kMillisecond);

// All of it, empty or full of lone characters between connected blanks.
void Fill(benchmark::State& state) {
  BasEditor e = Large();
  for (int i = 0; i < 1'000'000; i += static_cast<int>(state.range(0)))
    PintarCaracter(e, 1 + i % 1000, 1 + i / 1000, U'@');
  Historial history;
  for (auto _ : state) {
    e.CurrentChar.caracter = e.CurrentChar.caracter == U'#' ? U'o' : U'#';
    history.Empezar(e);
    FloodFill(e, {500, 403});
    history.Terminar(e);
    benchmark::DoNotOptimize(e.Grid.Cambiadas());
  }
}
BENCHMARK(Fill)->Arg(2'000'000)->Arg(3)->Unit(benchmark::kMillisecond);

// The fill taken back and done again, or a flip of a canvas without two equal neighbours.
void Undo(benchmark::State& state) {
  BasEditor e = Large();
  for (int i = 0; i < 1'000'000; ++i)
    PintarCaracter(e, 1 + i % 1000, 1 + i / 1000, static_cast<char32_t>(state.range(0) ? 33 + i % 90 : 32));
  Historial history;
  history.Empezar(e);
  if (state.range(0)) {
    FlipHorizontal(e);
  } else {
    FloodFill(e, {500, 403});
  }
  history.Terminar(e);
  bool back = true;
  for (auto _ : state) {
    if (back) {
      history.Deshacer(e);
    } else {
      history.Rehacer(e);
    }
    back = !back;
    benchmark::DoNotOptimize(e.Grid.Cambiadas());
  }
}
BENCHMARK(Undo)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void Text(benchmark::State& state) {
  BasEditor e = Large();
  AbrirTexto(e, FullText());
  for (auto _ : state) benchmark::DoNotOptimize(DrawingText(e));
}
BENCHMARK(Text)->Unit(benchmark::kMillisecond);

void Keep(benchmark::State& state) {
  BasEditor e = Large();
  for (int i = 0; i < 1'000'000; ++i) PintarCaracter(e, 1 + i % 1000, 1 + i / 1000, 33U + i % 90U);
  for (auto _ : state) benchmark::DoNotOptimize(BytesDelDibujo(e));
}
BENCHMARK(Keep)->Unit(benchmark::kMillisecond);

void Flip(benchmark::State& state) {
  BasEditor e;
  PaintText(e, FullText());
  for (auto _ : state) {
    FlipHorizontal(e);
    benchmark::DoNotOptimize(e.Grid.Cambiadas());
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
