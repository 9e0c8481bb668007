// How the drawing is exported: the format and what it can be told.
#pragma once

#include <QDialog>

#include "programa/Programa.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace pixmosa {

class Dialogs;

// Shows the program's settings of the last export; to accept writes them back.
class frmExportar final : public QDialog {
  Q_OBJECT

 public:
  // `text` is the drawing's size in characters; `picture` whether it has colours to take.
  frmExportar(Programa& program, Dialogs& dialogs, Extent text, bool picture, QWidget* parent);

  // What the colours of the drawing are called where they are not the picture's.
  void LlamarColores(const QString& text, const QString& help);

 public slots:
  void accept() override;

 private:
  void CrearControles(bool picture);
  void CrearColores();
  void MostrarFormato();  // the options of the chosen format alone
  void MostrarTamano();

  Programa& program_;
  Dialogs& dialogs_;
  Extent text_;
  OpcionesDeExportar chosen_;
  QFormLayout* form_;
  QComboBox* cboFormato_;
  QCheckBox* chkColor_;
  QLineEdit* txtTitulo_;
  QCheckBox* chkSinImagenes_;
  QCheckBox* chkTrazos_;
  QSpinBox* numEscala_;
  QLabel* lblTamano_;
  QComboBox* cboColores_;
  QCheckBox* chkColoresPropios_;
  QWidget* muestras_;
};

}  // namespace pixmosa
