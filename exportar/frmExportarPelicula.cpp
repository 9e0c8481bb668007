#include "exportar/frmExportarPelicula.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include "platform/qt/Named.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

constexpr int kMayorRitmo = 60'000, kMayorEscala = 8;

}  // namespace

frmExportarPelicula::frmExportarPelicula(Programa& program, const std::string& animated, QWidget* parent)
    : QDialog(parent), program_(program) {
  setObjectName("frmExportarPelicula");
  setWindowTitle(QStringLiteral("Exportar una película"));
  const bool have = !animated.empty();
  optAnimada_ = named<QRadioButton>("optAnimada",
                                    have ? QStringLiteral("La imagen &animada \"%1\"").arg(Q(animated))
                                         : QStringLiteral("La imagen &animada (la imagen cargada no lo es)"));
  optCarpeta_ = named<QRadioButton>("optCarpeta", QStringLiteral("Las imágenes de una &carpeta"));
  optAnimada_->setEnabled(have);
  (have ? optAnimada_ : optCarpeta_)->setChecked(true);
  numRitmo_ = named<QSpinBox>("numRitmo");
  numRitmo_->setRange(kMenosMilisegundos, kMayorRitmo);
  numRitmo_->setValue(kMilisegundosDeSiempre);
  numRitmo_->setSuffix(QStringLiteral(" ms"));
  numRitmo_->setToolTip(QStringLiteral("Lo que se ve cada imagen de la carpeta"));
  numRitmo_->setEnabled(!have);
  cboFormato_ = named<QComboBox>("cboFormatoDePelicula");
  for (const FormatoDePelicula& f : FormatosDePelicula())
    cboFormato_->addItem(Q(std::string(f.rotulo) + " (." + f.terminacion + ")"),
                         QString::fromUtf8(f.terminacion));
  chkColor_ = named<QCheckBox>("chkColorDePelicula", QStringLiteral("Con los c&olores de las imágenes"));
  chkColor_->setToolTip(
      QStringLiteral("Cada carácter toma el color medio de la parte de la imagen que está debajo"));
  chkColor_->setChecked(program.exportar.color);
  numEscala_ = named<QSpinBox>("numEscalaDePelicula");
  numEscala_->setRange(1, kMayorEscala);
  numEscala_->setValue(program.exportar.escala);
  numEscala_->setToolTip(QStringLiteral("Del GIF: veces el tamaño de la fuente elegida"));

  auto* form = new QFormLayout;
  form->addRow(optAnimada_);
  form->addRow(optCarpeta_);
  form->addRow(QStringLiteral("&Ritmo:"), numRitmo_);
  form->addRow(QStringLiteral("&Formato:"), cboFormato_);
  form->addRow(chkColor_);
  form->addRow(QStringLiteral("&Escala:"), numEscala_);
  auto* buttons = named<QDialogButtonBox>("botones", QDialogButtonBox::Save | QDialogButtonBox::Cancel);
  buttons->button(QDialogButtonBox::Save)->setText(QStringLiteral("&Guardar en..."));
  buttons->button(QDialogButtonBox::Save)->setObjectName("cmdExportarPelicula");
  buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Cancelar"));
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addStretch(1);
  layout->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &frmExportarPelicula::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(optCarpeta_, &QRadioButton::toggled, numRitmo_, &QWidget::setEnabled);
  const auto scale = [this] { numEscala_->setEnabled(cboFormato_->currentData().toString() == "gif"); };
  connect(cboFormato_, &QComboBox::currentIndexChanged, this, scale);
  scale();
}

PedidoDePelicula frmExportarPelicula::Pedido() const {
  return {optCarpeta_->isChecked(), numRitmo_->value(), cboFormato_->currentData().toString().toStdString()};
}

void frmExportarPelicula::accept() {
  program_.exportar.color = chkColor_->isChecked();
  program_.exportar.escala = numEscala_->value();
  QDialog::accept();
}

}  // namespace pixmosa
