// The steps of the working picture as a list; a click on one goes there.
#pragma once

#include <QDialog>
#include <QStringList>

#include "programa/HistorialDeImagen.h"

class QListWidget;

namespace pixmosa {

class frmHistorial final : public QDialog {
  Q_OBJECT

 public:
  explicit frmHistorial(QWidget* parent);

  void Mostrar(const HistorialDeImagen& history);

 signals:
  void PasoElegido(int k);  // from 0

 private:
  QListWidget* lsvHistorial_;
  QStringList nombres_;
};

}  // namespace pixmosa
