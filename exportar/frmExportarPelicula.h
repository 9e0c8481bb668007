// How a film is exported: from which pictures, in which format.
#pragma once

#include <QDialog>

#include "programa/Pelicula.h"

class QCheckBox;
class QComboBox;
class QRadioButton;
class QSpinBox;

namespace pixmosa {

struct PedidoDePelicula {
  bool deCarpeta = false;
  int milisegundos = kMilisegundosDeSiempre;  // each picture of a folder
  std::string terminacion;
};

// To accept writes colour and scale into the program's settings of exports.
class frmExportarPelicula final : public QDialog {
  Q_OBJECT

 public:
  // `animated`: the name of the animated picture at hand; empty: there is none, only folders.
  frmExportarPelicula(Programa& program, const std::string& animated, QWidget* parent);

  PedidoDePelicula Pedido() const;

 public slots:
  void accept() override;

 private:
  Programa& program_;
  QRadioButton* optAnimada_;
  QRadioButton* optCarpeta_;
  QSpinBox* numRitmo_;
  QComboBox* cboFormato_;
  QCheckBox* chkColor_;
  QSpinBox* numEscala_;
};

}  // namespace pixmosa
