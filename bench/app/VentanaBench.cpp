// The window at work on 12 megapixels: loading and drawing beside decoding alone, a dragged slider and
// zooming.
#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QSlider>
#include <QSpinBox>

#include "conversion/basAscii.h"
#include "tests/support/MainWindow.h"

using namespace pixmosa;
using test::Find;

namespace {

// Waves of many sizes, so that decoding has something to do.
std::string Fotografia(const test::TestFolder& folder) {
  QImage image(4000, 3000, QImage::Format_RGB32);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      reinterpret_cast<QRgb*>(image.scanLine(y))[x] =
          qRgb((x * x + y) >> 7 & 255, (x + y * y) >> 8 & 255, ((x ^ y) * 3) >> 4 & 255);
  const std::string file = folder.File("foto.jpg");
  image.save(QString::fromStdString(file), "JPG", 90);
  return file;
}

struct Ventana : test::MainWindow {
  std::string foto = Fotografia(folder);
  Ventana() {
    window.resize(1366, 768);
    Find<QSpinBox>(window, "numColumnas").setValue(250);
    Find<QCheckBox>(window, "chkAlMomento").setChecked(true);
    QApplication::processEvents();
  }
  void Conversion(int method) {
    auto& list = Find<QComboBox>(window, "cboConversion");
    list.setCurrentIndex(list.findData(method));
    QApplication::processEvents();
  }
  // As on the screen.
  void Pintar() {
    QApplication::processEvents();
    Area().viewport()->repaint();
  }
};

void Decodificar(benchmark::State& state) {
  Ventana v;
  for (auto _ : state) benchmark::DoNotOptimize(v.pictures.Read(v.foto));
}
BENCHMARK(Decodificar)->Unit(benchmark::kMillisecond)->Iterations(5);

void CargarYDibujar(benchmark::State& state) {
  Ventana v;
  v.Conversion(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    v.window.AbrirImagen(v.foto);
    v.Pintar();
  }
}
BENCHMARK(CargarYDibujar)->Arg(kGrayscale)->Arg(kFormas)->Unit(benchmark::kMillisecond)->Iterations(5);

void ArrastrarDeslizador(benchmark::State& state) {
  Ventana v;
  v.Conversion(static_cast<int>(state.range(0)));
  v.window.AbrirImagen(v.foto);
  auto& slider =
      Find<QSlider>(v.window, state.range(0) == kGrayscale ? "sldLuminosidad" : "sldContrasteLocal");
  for (int value = 0; auto _ : state) {
    slider.setValue(++value % 50);
    v.Pintar();
  }
}
BENCHMARK(ArrastrarDeslizador)->Arg(kGrayscale)->Arg(kFormas)->Unit(benchmark::kMillisecond)->Iterations(30);

void Acercar(benchmark::State& state) {
  Ventana v;
  v.window.AbrirImagen(v.foto);
  for (int k = 0; auto _ : state) {
    v.Trigger(k++ % 2 == 0 ? "mnuAcercar" : "mnuAlejar");
    v.Pintar();
  }
}
BENCHMARK(Acercar)->Unit(benchmark::kMillisecond)->Iterations(30);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
