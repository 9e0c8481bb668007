#include "app/frmHistorial.h"

#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "platform/qt/Named.h"
#include "platform/qt/QtText.h"

namespace pixmosa {

frmHistorial::frmHistorial(QWidget* parent) : QDialog(parent) {
  setObjectName("frmHistorial");
  setWindowTitle(QStringLiteral("Historial de la imagen"));
  lsvHistorial_ = named<QListWidget>("lsvHistorial");
  lsvHistorial_->setAccessibleName(windowTitle());
  lsvHistorial_->setToolTip(QStringLiteral("Un clic en un paso deja la imagen como estaba en él"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(lsvHistorial_);
  resize(280, 320);
  connect(lsvHistorial_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) emit PasoElegido(row);
  });
}

void frmHistorial::Mostrar(const HistorialDeImagen& history) {
  const QSignalBlocker quiet(lsvHistorial_);
  // A click on a step comes back here: the list that it came from stays as it is.
  QStringList names;
  for (const PasoDeImagen& step : history.pasos) names += Q(step.nombre);
  if (names != nombres_) {
    lsvHistorial_->clear();
    lsvHistorial_->addItems(names);
    nombres_ = names;
  }
  lsvHistorial_->setCurrentRow(static_cast<int>(history.actual));
}

}  // namespace pixmosa
