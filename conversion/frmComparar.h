// The picture beside the texts that two conversions make of it, drawn again, with how near each comes.
#pragma once

#include <array>
#include <map>

#include <QDialog>
#include <QImage>

#include "conversion/Semejanza.h"
#include "platform/Dialogs.h"
#include "programa/Programa.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace pixmosa {

class VistaComparada;

class frmComparar final : public QDialog {
  Q_OBJECT

 public:
  // There is a working picture; it, the settings and the produced text stay as they are.
  frmComparar(Programa& program, Dialogs& dialogs, QWidget* parent);

 signals:
  void Elegida(int method);  // the conversion to go on with; the dialog closes

 private:
  struct Lado {
    QComboBox* cboConversion;
    VistaComparada* vista;
    QLabel* lblPuntos;
    QPushButton* cmdUsar;
  };
  // What one conversion makes of the picture.
  struct Prueba {
    QImage dibujo;
    Semejanza semejanza;
  };

  Lado CrearLado(QGridLayout* grid, int column, const char* which, int method);
  void Mostrar();  // both sides, by what is chosen
  const Prueba& Probar(int method);

  Programa& program_;
  Dialogs& dialogs_;
  std::array<Lado, 2> lados_;
  std::map<int, Prueba> pruebas_;
};

}  // namespace pixmosa
