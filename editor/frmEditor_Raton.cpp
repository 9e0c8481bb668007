// The pointer on the drawing surface.
#include <utility>

#include <QMouseEvent>

#include "editor/frmEditor_Superficie.h"

namespace pixmosa {
namespace {

QPoint Donde(const QMouseEvent* event) {
  return event->position().toPoint();
}

ZonaDeCeldas ZonaDeFigura(const std::vector<Pintada>& cells, ZonaDeCeldas from) {
  for (const Pintada& p : cells) from = Unida(from, {p.celda, p.celda});
  return from;
}

}  // namespace

void Superficie::Trazar(Cell c) {
  // A stroke that leaves the canvas begins anew where it comes back.
  const bool joined = opciones.continuo && last_ && editor_.Grid.Tiene(*last_) && editor_.Grid.Tiene(c);
  for (const Cell at : joined ? CeldasDeLinea(*last_, c) : std::vector{c}) {
    if (tool_ == Tool::Libre) PintarCaracter(editor_, at.column, at.row, editor_.CurrentChar.caracter);
    if (tool_ == Tool::Borrar) pixmosa::Borrar(editor_, at, opciones);
  }
  last_ = c;
  Refrescar();
}

void Superficie::TerminarTrazo() {
  if (!std::exchange(stroke_, false)) return;
  history_.Terminar(editor_);
  emit Cambiado();
}

void Superficie::MoverGoma(Point corner) {
  const QRect before = RectDeGoma();
  corner_ = SnapToLattice(corner);
  update(before.united(RectDeGoma()).adjusted(-2, -2, 2, 2));
}

void Superficie::MoverFigura(Cell to, bool straight) {
  const ZonaDeCeldas whole = ZonaEntera(editor_.Grid);
  if (straight && (tool_ == Tool::Linea || tool_ == Tool::Flecha)) to = Enderezada(*from_, to);
  // A box or an ellipse may hang over the edge; far away there is nothing to draw.
  to = {std::clamp(to.column, -whole.hasta.column, 2 * whole.hasta.column),
        std::clamp(to.row, -whole.hasta.row, 2 * whole.hasta.row)};
  update(Alrededor(figureZone_));
  figure_ = FiguraDe(editor_, tool_, opciones, *from_, to);
  figureZone_ = ZonaDeFigura(figure_, {*from_, *from_});
  update(Alrededor(figureZone_));
}

void Superficie::PulsarSeleccion(Cell c, bool copy) {
  from_ = c;
  cursor_ = EnElLienzo(editor_.Grid, {c, c}).desde;
  moving_ = selection_ && selection_->Contiene(c);
  copying_ = copy;
  if (moving_) return;
  Asentar();
  Seleccionar(std::nullopt);
}

void Superficie::ArrastrarSeleccion(Cell c) {
  if (!moving_) {
    if (c != *from_ || selection_) Seleccionar(EnElLienzo(editor_.Grid, ZonaEntre(*from_, c)));
    return;
  }
  if (c == *from_ && !floating_) return;
  if (std::exchange(copying_, false)) {
    Asentar();  // one stays where it is
    Levantar(true);
  } else {
    Levantar(false);
  }
  if (!floating_) return;
  MoverFlotante({floating_->en.column + c.column - from_->column, floating_->en.row + c.row - from_->row});
  from_ = c;
}

void Superficie::OlvidarRegion() {
  MarcarRegion();
  region_ = {};
}

void Superficie::MarcarRegion() {
  if (!region_.Vacia()) update(RectDe(region_.Alrededor()));
}

void Superficie::MostrarRegion(Cell c) {
  if (region_.Contiene(c)) return;
  MarcarRegion();
  region_ = RegionQueSeRellena(editor_, c);
  MarcarRegion();
}

void Superficie::Tomar(Cell c) {
  if (!editor_.Grid.SePinta(c)) return;
  const char32_t ch = editor_.Grid.Visto(c);
  emit Tomado(ch < 32 ? U' ' : ch, editor_.Grid.Tinta(c));
}

void Superficie::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) pan_ = event->globalPosition().toPoint();
  if (event->button() != Qt::LeftButton) return;
  const QPoint at = Donde(event);
  const Cell c = CeldaDeHerramienta(at);
  const bool control = event->modifiers().testFlag(Qt::ControlModifier);
  if (tool_ == Tool::Seleccionar) {
    PulsarSeleccion(c, control);
  } else if (tool_ == Tool::Cuentagotas || (control && tool_ != Tool::Texto)) {
    Tomar(CeldaEn(at));
  } else if (tool_ == Tool::Texto) {
    PonerCursor(c);
    margin_ = cursor_;
  } else if (EsFigura(tool_)) {
    from_ = c;
    figureZone_ = {c, c};
    MoverFigura(c, false);
  } else if (EsCaja()) {
    const Point p = PuntoDe(at);
    corner_ = SnapToLattice(p);
    anchor_ = corner_;
    MoverGoma(p);
  } else if (EsTrazo()) {
    history_.Empezar(editor_);
    stroke_ = true;
    last_.reset();
    Trazar(c);
  }
}

void Superficie::mouseMoveEvent(QMouseEvent* event) {
  if (pan_ && event->buttons().testFlag(Qt::MiddleButton)) {
    const QPoint here = event->globalPosition().toPoint();
    emit Arrastrada(here - *pan_);
    pan_ = here;
    return;
  }
  const QPoint at = Donde(event);
  const Cell c = CeldaDeHerramienta(at);
  pointed_ = CeldaEn(at);
  if (tool_ == Tool::Libre) emit CeldaSenalada(c.column, c.row);
  const bool inside = editor_.Grid.SePinta(c) && c.column > 0 && c.row > 0;
  emit PunteroEn(inside ? c.column : 0, inside ? c.row : 0);
  if (tool_ == Tool::Seleccionar)
    setCursor(selection_ && selection_->Contiene(c) ? Qt::SizeAllCursor : Qt::CrossCursor);
  if (tool_ == Tool::Rellenar) MostrarRegion(c);
  if (!event->buttons().testFlag(Qt::LeftButton)) return;
  if (anchor_) {
    MoverGoma(PuntoDe(at));
  } else if (stroke_) {
    Trazar(c);
  } else if (from_ && EsFigura(tool_)) {
    MoverFigura(c, event->modifiers().testFlag(Qt::ShiftModifier));
  } else if (from_) {
    ArrastrarSeleccion(c);
  }
  if (from_ || anchor_) emit Visible(RectDe({pointed_, pointed_}).intersected(rect()));
}

void Superficie::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const QPoint at = Donde(event);
  const Cell c = CeldaDeHerramienta(at);
  if (anchor_) {
    MoverGoma(PuntoDe(at));
    const Point from = *anchor_;
    const QRect rubber = RectDeGoma();
    anchor_.reset();
    update(rubber.adjusted(-2, -2, 2, 2));
    Hacer([&] { DrawBox(editor_, from, corner_, tool_ == Tool::CajaR); });
  } else if (tool_ == Tool::Rellenar && !event->modifiers().testFlag(Qt::ControlModifier)) {
    MostrarRegion(c);
    Hacer([&] { RellenarRegion(editor_, std::exchange(region_, {})); });
  } else if (stroke_) {
    TerminarTrazo();
  } else if (from_ && EsFigura(tool_)) {
    MoverFigura(c, event->modifiers().testFlag(Qt::ShiftModifier));
    const std::vector<Pintada> figure = std::exchange(figure_, {});
    update(Alrededor(figureZone_));
    Hacer([&] { Pintar(editor_, figure); });
  } else if (from_) {
    ArrastrarSeleccion(c);
  }
  from_.reset();
}

void Superficie::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  OlvidarRegion();
  emit PunteroEn(0, 0);
}

}  // namespace pixmosa
