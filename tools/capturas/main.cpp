// Uses the real window by the names of its controls and keeps pictures of it, for the guide. No display is
// needed. Run by docs/guia/hacer.py:
//   capturas < STEPS
// A step a line, its words between tabs:
//   medida WIDTH HEIGHT [CLASS of the window]      foto FILE [CLASS]      cerrar CLASS      esperar
//   MILLISECONDS cargar FILE      elegir ACTION      pulsar BUTTON      poner CONTROL VALUE      reducir FILE
#include <algorithm>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>

#include "app/frmMain.h"
#include "platform/PrivateFolder.h"
#include "platform/ProgramFolder.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Estilo.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtPictureCodec.h"
#include "platform/qt/QtRegistry.h"
#include "platform/qt/QtShell.h"
#include "platform/qt/QtTextSurface.h"
#include "programa/Generar.h"

namespace {

using namespace pixmosa;

[[noreturn]] void Fallar(const QString& what) {
  std::cerr << what.toStdString() << '\n';
  std::_Exit(1);
}

QWidget& Ventana(const QString& kind) {
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && QString(window->metaObject()->className()).endsWith(kind)) return *window;
  Fallar("no window " + kind);
}

template <typename Thing>
Thing& Hallar(const QString& name) {
  for (const QWidget* window : QApplication::topLevelWidgets())
    if (auto* found = window->findChild<Thing*>(name)) return *found;
  Fallar("no control " + name);
}

void Poner(QWidget& control, const QString& value) {
  if (auto* list = qobject_cast<QComboBox*>(&control)) {
    const int row = list->findText(value);
    if (row < 0 && !list->isEditable()) Fallar("no choice " + value);
    if (row < 0) {
      list->setEditText(value);
      emit list->lineEdit()->returnPressed();
    } else {
      list->setCurrentIndex(row);
      emit list->activated(row);
    }
  } else if (auto* number = qobject_cast<QSpinBox*>(&control)) {
    number->setValue(value.toInt());
  } else if (auto* slider = qobject_cast<QSlider*>(&control)) {
    slider->setValue(value.toInt());
  } else if (auto* line = qobject_cast<QLineEdit*>(&control)) {
    line->setText(value);
  } else if (auto* area = qobject_cast<AreaDeTexto*>(&control)) {
    area->setPlainText(value);
  } else {
    Fallar("cannot set " + control.objectName());
  }
}

using Cuenta = std::pair<QRgb, int>;  // a colour, and of how many points

// The at most 256 colours that stand for those of a picture: boxes of colours, cut where they are widest,
// each with the most frequent one, so that the greys of a window stay as they are.
QList<QRgb> Colores(const QImage& image) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
  std::vector<std::vector<Cuenta>> boxes = {{counts.begin(), counts.end()}};
  const auto below = [](int shift) {
    return [shift](const Cuenta& a, const Cuenta& b) {
      return (a.first >> shift & 0xFF) < (b.first >> shift & 0xFF);
    };
  };
  const auto widest = [&](const std::vector<Cuenta>& box) {
    std::pair<int, int> best{-1, 0};  // how wide, of which part
    for (const int shift : {0, 8, 16}) {
      const auto [least, most] = std::minmax_element(box.begin(), box.end(), below(shift));
      best = std::max(best, {static_cast<int>(most->first >> shift & 0xFF) -
                                 static_cast<int>(least->first >> shift & 0xFF),
                             shift});
    }
    return best;
  };
  while (boxes.size() < 256) {
    auto box = std::max_element(boxes.begin(), boxes.end(),
                                [&](const auto& a, const auto& b) { return widest(a) < widest(b); });
    const auto [width, shift] = widest(*box);
    if (width == 0) break;
    std::sort(box->begin(), box->end(), below(shift));
    const auto half = box->begin() + static_cast<std::ptrdiff_t>(box->size() / 2);
    std::vector<Cuenta> rest(half, box->end());
    box->erase(half, box->end());
    boxes.push_back(std::move(rest));
  }
  QList<QRgb> colours;
  for (const auto& box : boxes)
    colours.append(std::max_element(box.begin(), box.end(), [](const Cuenta& a, const Cuenta& b) {
                     return a.second < b.second;
                   })->first);
  return colours;
}

// Small enough for a page; what a browser drew is made so too.
void Guardar(const QImage& image, const QString& file) {
  const QImage few =
      image.convertToFormat(QImage::Format_Indexed8, Colores(image), Qt::ThresholdDither | Qt::AvoidDither);
  if (!few.save(file, "png", 0)) Fallar("no file " + file);
}

void Dar(frmMain& window, const QStringList& w) {
  if (w[0] == "medida") Ventana(w.value(3, "frmMain")).resize(w[1].toInt(), w[2].toInt());
  if (w[0] == "cargar" && !window.AbrirImagen(w[1].toStdString())) Fallar("no picture " + w[1]);
  if (w[0] == "elegir") Hallar<QAction>(w[1]).trigger();
  if (w[0] == "pulsar") Hallar<QAbstractButton>(w[1]).click();
  if (w[0] == "poner") Poner(Hallar<QWidget>(w[1]), w[2]);
  if (w[0] == "cerrar") Ventana(w[1]).close();
  if (w[0] == "reducir") Guardar(QImage(w[1]), w[1]);
  if (w[0] == "foto") Guardar(Ventana(w.value(2, "frmMain")).grab().toImage(), w[1]);
}

// The next step waits in the event loop while a step has a dialog open.
void PasoSiguiente(frmMain& window) {
  std::string line;
  if (!std::getline(std::cin, line)) std::_Exit(0);
  const QStringList words = QString::fromStdString(line).split('\t');
  const int pause = words[0] == "esperar" ? words[1].toInt() : 120;
  QTimer::singleShot(pause, &window, [&window] { PasoSiguiente(window); });
  Dar(window, words);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QtDialogs dialogs;
  QApplication app(argc, argv);
  QApplication::setStyle(new Estilo);
  const QTemporaryDir own;
  QtTextSurface surface;
  QtPictureCodec pictures;
  QtShell shell;
  QtRegistry registry(own.filePath("registro"));
  Programa program{surface, pictures, ProgramFolder(), {ProgramFolder() / "Fonts"}};
  CargarPaleta3x2(program);
  const PrivateFolder scratch(std::filesystem::temp_directory_path(), "KTW");
  program.basGif.carpeta = scratch.Path();
  frmMain window(program, {dialogs, shell, registry});
  dialogs.SetOwner(&window);
  window.show();
  QTimer::singleShot(0, &window, [&window] { PasoSiguiente(window); });
  return QApplication::exec();
}
