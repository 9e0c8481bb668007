// The size of the text as a number of columns, and the rows that it gives.
#include <QComboBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

#include "app/PiezasDePanel.h"
#include "app/frmOpcAlgoritmo.h"
#include "programa/Ajustes.h"
#include "programa/Generar.h"

namespace pixmosa {
namespace {

constexpr int kMasColumnas = 20'000;

struct Medida {
  const char* texto;
  int columnas;
};
constexpr Medida kMedidas[] = {
    {"80, de un terminal", 80},
    {"72, de un correo", 72},
    {"120", 120},
    {"El ancho de la ventana", 0},  // which changes
};

}  // namespace

QLayout* frmOpcAlgoritmo::CrearColumnas() {
  numColumnas_ = named<QSpinBox>("numColumnas");
  numColumnas_->setRange(1, kMasColumnas);
  numColumnas_->setKeyboardTracking(false);
  numColumnas_->setToolTip(QStringLiteral("Caracteres de cada línea del dibujo"));
  numColumnas_->setAccessibleName(QStringLiteral("Columnas"));
  lblFilas_ = named<QLabel>("lblFilas");
  lblFilas_->setMinimumWidth(lblFilas_->fontMetrics().horizontalAdvance("x 999 filas"));
  lblFilas_->setToolTip(QStringLiteral("Las filas que tendrá el dibujo de la imagen"));
  cboPresetColumnas_ = named<QComboBox>("cboPresetColumnas");
  for (const Medida& m : kMedidas) cboPresetColumnas_->addItem(QString::fromUtf8(m.texto), m.columnas);
  cboPresetColumnas_->setPlaceholderText(QStringLiteral("Para..."));
  cboPresetColumnas_->setCurrentIndex(-1);
  cboPresetColumnas_->setMinimumContentsLength(6);
  cboPresetColumnas_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  cboPresetColumnas_->setToolTip(QStringLiteral("Las columnas que caben donde se leerá el dibujo"));
  cboPresetColumnas_->setAccessibleName(QStringLiteral("Columnas para"));
  auto* row = new QHBoxLayout;
  row->addWidget(Titulo("Co&lumnas", numColumnas_));
  row->addWidget(numColumnas_);
  row->addWidget(lblFilas_);
  row->addWidget(cboPresetColumnas_, 1);
  return row;
}

void frmOpcAlgoritmo::ConectarColumnas() {
  connect(numColumnas_, &QSpinBox::valueChanged, this, &frmOpcAlgoritmo::PonerColumnas);
  connect(cboPresetColumnas_, &QComboBox::activated, this, [this] {
    if (cboPresetColumnas_->currentIndex() == cboPresetColumnas_->count() - 1) {
      emit AnchoPedido();
    } else {
      PonerColumnas(cboPresetColumnas_->currentData().toInt());
    }
  });
}

void frmOpcAlgoritmo::PonerAncho(int columns) {
  cboPresetColumnas_->setItemData(cboPresetColumnas_->count() - 1, columns);
  PonerColumnas(columns);
}

void frmOpcAlgoritmo::PonerColumnas(int columns) {
  pixmosa::PonerColumnas(program_, columns);
  {
    const QSignalBlocker quiet(sldTamaño_);
    sldTamaño_->setValue(program_.ajustes.size);
  }
  MostrarColumnas();
  program_.vistaPrevia = false;
  emit TextoCaducado(MetodoDe(program_));
}

void frmOpcAlgoritmo::MostrarColumnas() {
  const int columns = program_.basAscii.AsciiColumns;
  const QSignalBlocker quiet(numColumnas_);
  numColumnas_->setValue(columns);
  if (cboPresetColumnas_->currentData() != columns) cboPresetColumnas_->setCurrentIndex(-1);
  QString rows;
  if (const int method = MetodoDe(program_); method >= 0 && HayImagen(program_)) try {
      rows = QStringLiteral("x %1 filas").arg(MedidasDelTexto(program_, method).height);
    } catch (const TextoExcesivo&) {
      rows = QStringLiteral("x demasiadas filas");
    }
  lblFilas_->setText(rows);
}

}  // namespace pixmosa
