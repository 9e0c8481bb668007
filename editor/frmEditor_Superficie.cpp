#include "editor/frmEditor_Superficie.h"

#include <cmath>
#include <utility>

namespace pixmosa {

Superficie::Superficie(BasEditor& editor, Historial& history, const Font& font, QWidget* parent)
    : QWidget(parent), editor_(editor), history_(history), glyphs_(font) {
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::CrossCursor);
  PonerEscala(kTamanoReal);
}

QSize Superficie::sizeHint() const {
  const Escala& scale = kEscalas[scaleIndex_];
  return {scale.ancho * editor_.Grid.Columnas(), scale.alto * (editor_.Grid.Filas() + 1)};
}

void Superficie::PonerHerramienta(Tool tool) {
  TerminarTrazo();
  if (tool != Tool::Seleccionar) {
    Asentar();
    Seleccionar(std::nullopt);
  }
  tool_ = tool;
  anchor_.reset();
  from_.reset();
  figure_.clear();
  OlvidarRegion();
  setAttribute(Qt::WA_InputMethodEnabled, tool == Tool::Texto);
  setCursor(tool == Tool::Texto ? Qt::IBeamCursor : Qt::CrossCursor);
  if (tool == Tool::Texto) setFocus();
  update();
}

void Superficie::Hacer(const std::function<void()>& action) {
  Asentar();
  history_.Empezar(editor_);
  action();
  history_.Terminar(editor_);
  Refrescar();
  emit Cambiado();
}

void Superficie::Refrescar() {
  if (size() != sizeHint()) {
    setFixedSize(sizeHint());
    tracingScaled_ = {};
    cursor_ = EnElLienzo(editor_.Grid, {cursor_, cursor_}).desde;
    if (selection_ && !floating_) selection_ = EnElLienzo(editor_.Grid, *selection_);
    update();
  }
  const std::vector<ZonaDeCeldas> changed = editor_.Grid.Cambiadas();
  if (!changed.empty()) OlvidarRegion();
  for (const ZonaDeCeldas& zone : changed) update(Alrededor(zone));
}

Point Superficie::PuntoDe(QPoint position) const {
  const Escala& scale = kEscalas[scaleIndex_];
  return {static_cast<int>(std::floor(position.x() * CellWidth / static_cast<double>(scale.ancho))),
          static_cast<int>(std::floor(position.y() * CellHeight / static_cast<double>(scale.alto)))};
}

Cell Superficie::CeldaDeHerramienta(QPoint position) const {
  const bool specified = EsTrazo() || tool_ == Tool::Rellenar;
  return specified ? CellFromPoint(PuntoDe(position)) : CeldaEn(position);
}

Cell Superficie::CeldaEn(QPoint position) const {
  const Escala& scale = kEscalas[scaleIndex_];
  return {static_cast<int>(std::floor(position.x() / static_cast<double>(scale.ancho))) + 1,
          static_cast<int>(std::floor(position.y() / static_cast<double>(scale.alto))) + 1};
}

QRect Superficie::RectDe(const ZonaDeCeldas& zone) const {
  const Escala& scale = kEscalas[scaleIndex_];
  return {(zone.desde.column - 1) * scale.ancho, (zone.desde.row - 1) * scale.alto,
          zone.Columnas() * scale.ancho, zone.Filas() * scale.alto};
}

QRect Superficie::Alrededor(const ZonaDeCeldas& zone) const {
  const Escala& scale = kEscalas[scaleIndex_];
  const int x = scale.ancho / 4 + 2, y = scale.alto / 4 + 2;
  return RectDe(zone).adjusted(-x, -y, x, y);
}

void Superficie::PonerEscala(int index) {
  scaleIndex_ = std::clamp(index, 0, static_cast<int>(std::size(kEscalas)) - 1);
  glyphs_.PonerEscala(kEscalas[scaleIndex_], devicePixelRatioF());
  tracingScaled_ = {};
  setFixedSize(sizeHint());
  update();
}

void Superficie::PonerRejilla(bool shown) {
  grid_ = shown;
  update();
}

void Superficie::PonerCalco(const QImage& picture) {
  tracing_ = picture;
  tracingScaled_ = {};
  update();
}

void Superficie::PonerOpacidad(int percent) {
  opacity_ = percent / 100.0;
  update();
}

}  // namespace pixmosa
