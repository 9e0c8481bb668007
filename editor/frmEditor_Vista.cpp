// Nearer and farther, and the picture beneath the drawing.
#include <QAction>
#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QWheelEvent>

#include "editor/frmEditor.h"
#include "editor/frmEditor_Superficie.h"
#include "platform/qt/QtPicture.h"

namespace pixmosa {

// What is at `about` (of the surface; the middle for a null one) stays where it is.
void frmEditor::Escalar(int index, QPoint about) {
  auto* scroll = findChild<QScrollArea*>("desplazamiento");
  const QPoint corner = -picDraw_->pos();
  if (about.isNull()) about = corner + scroll->viewport()->rect().center();
  const QPoint offset = about - corner;
  const double before = kEscalas[picDraw_->IndiceDeEscala()].ancho;
  picDraw_->PonerEscala(index);
  const double nearer = kEscalas[picDraw_->IndiceDeEscala()].ancho / before;
  scroll->horizontalScrollBar()->setValue(qRound(about.x() * nearer) - offset.x());
  scroll->verticalScrollBar()->setValue(qRound(about.y() * nearer) - offset.y());
  cboEscala_->setCurrentIndex(picDraw_->IndiceDeEscala());
}

void frmEditor::VerTodo() {
  const QSize room = findChild<QScrollArea*>("desplazamiento")->maximumViewportSize();
  int index = static_cast<int>(std::size(kEscalas)) - 1;
  const Lienzo& grid = editor_.Grid;
  while (index > 0 && (kEscalas[index].ancho * grid.Columnas() > room.width() ||
                       kEscalas[index].alto * (grid.Filas() + 1) > room.height()))
    --index;
  Escalar(index, {});
}

bool frmEditor::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Wheel) {
    auto* wheel = static_cast<QWheelEvent*>(event);
    if (wheel->modifiers().testFlag(Qt::ControlModifier)) {
      const int turn = wheel->angleDelta().y();
      if (turn != 0)
        Escalar(picDraw_->IndiceDeEscala() + (turn > 0 ? 1 : -1),
                picDraw_->mapFromGlobal(wheel->globalPosition().toPoint()));
      return true;
    }
  }
  return QMainWindow::eventFilter(watched, event);
}

void frmEditor::Calcar(bool shown) {
  if (shown) {
    const Picture working = means_.imagen ? means_.imagen() : Picture();
    if (!working.IsEmpty()) {
      picDraw_->PonerCalco(ImageOf(working));
    } else if (!ElegirCalco()) {
      calco_->setChecked(false);
      return;
    }
  } else {
    picDraw_->PonerCalco({});
  }
  sldCalco_->setVisible(shown);
}

bool frmEditor::ElegirCalco() {
  const Picture chosen = means_.elegirImagen ? means_.elegirImagen() : Picture();
  if (chosen.IsEmpty()) return false;
  const QSignalBlocker quiet(calco_);
  calco_->setChecked(true);
  picDraw_->PonerCalco(ImageOf(chosen));
  sldCalco_->setVisible(true);
  return true;
}

}  // namespace pixmosa
