// How near the picture and the drawing are seen, and the line that measures the drawing.
#include <QLabel>
#include <QToolButton>

#include "app/MarcoDeImagen.h"
#include "app/frmMain.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Named.h"

namespace pixmosa {

void frmMain::PrepararVista() {
  QAction* fit = acciones_.at("mnuAjustarImagen");
  fit->setCheckable(true);
  fit->setChecked(true);
  fit->setIconVisibleInMenu(false);  // the tick is seen there
  auto* button = named<QToolButton>("cmdAjustarImagen");
  button->setDefaultAction(fit);
  button->setAutoRaise(true);
  button->setIconSize({12, 12});
  button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  button->setFocusPolicy(Qt::TabFocus);
  marco_->PonerBoton(button);
  connect(marco_, &MarcoDeImagen::AjustePedido, fit, &QAction::trigger);
  // On most keyboards "+" stands above "=".
  acciones_.at("mnuAcercar")->setShortcuts({QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")});
}

QLabel* frmMain::CrearMedidas() {
  lblMedidas_ = named<QLabel>("lblMedidas");
  lblMedidas_->setMinimumWidth(1);
  connect(txtAscii_, &QPlainTextEdit::textChanged, this, [this] { MostrarMedidas({}); });
  connect(txtAscii_, &AreaDeTexto::Senalada, this, &frmMain::MostrarMedidas);
  return lblMedidas_;
}

void frmMain::MostrarMedidas(QPoint cell) {
  const QSize text = txtAscii_->Medidas();
  QString line;
  if (!text.isEmpty()) line = QStringLiteral("%1 columnas x %2 filas").arg(text.width()).arg(text.height());
  if (!cell.isNull()) line += QStringLiteral(" · columna %1, fila %2").arg(cell.x()).arg(cell.y());
  lblMedidas_->setText(line);
}

void frmMain::AjustarImagen() {
  marco_->PonerAjustada(acciones_.at("mnuAjustarImagen")->isChecked());
}

void frmMain::VerTodo() {
  txtAscii_->VerTodo();
}

void frmMain::Acercar() {
  txtAscii_->Acercar(1);
}

void frmMain::Alejar() {
  txtAscii_->Acercar(-1);
}

void frmMain::TamañoReal() {
  txtAscii_->TamañoReal();
}

}  // namespace pixmosa
