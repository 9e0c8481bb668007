// The left part of the status bar: a sentence with a link; and what long work shows and allows.
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QToolBar>

#include "app/frmMain.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Named.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

constexpr int kAnchoDeNombre = 240;  // pixels of a file's name in a sentence

}  // namespace

void frmMain::CrearEstados() {
  lblEnlace_ = named<QLabel>("lblEnlace");
  lblEnlace_->setTextFormat(Qt::RichText);
  lblEnlace_->setTextInteractionFlags(Qt::TextBrowserInteraction);
  lblEnlace_->setMinimumWidth(1);
  statusBar()->addWidget(lblEnlace_, 1);
  connect(lblEnlace_, &QLabel::linkActivated, this, Con(desktop_.dialogos, [this](const QString&) {
            // What it does may say something else, and end the one that is kept.
            if (const auto follow = alSeguirEnlace_) follow();
          }));
  cmdCancelar_ = named<QPushButton>("cmdCancelar", QStringLiteral("Cancelar"));
  cmdCancelar_->setToolTip(QStringLiteral("Deja el trabajo en curso sin terminar (Escape)"));
  cmdCancelar_->setShortcut(Qt::Key_Escape);
  cmdCancelar_->hide();
  statusBar()->insertPermanentWidget(1, cmdCancelar_);
  connect(cmdCancelar_, &QAbstractButton::clicked, this, &frmMain::Cancelar);
  progreso_.PonerBoton(cmdCancelar_);
}

void frmMain::Decir(const QString& text, const QString& link, std::function<void()> follow) {
  alSeguirEnlace_ = std::move(follow);
  const QString anchor = link.isEmpty() ? QString() : " <a href=\"#\">" + link.toHtmlEscaped() + "</a>";
  lblEnlace_->setText(text.toHtmlEscaped() + anchor);
  lblEnlace_->setToolTip(text);
  HacerSitio();
}

void frmMain::HacerSitio() {
  constexpr int kEntrePaneles = 8, kAsa = 32;
  const bool silent = lblEnlace_->text().isEmpty();
  int room = width() - kAsa - lblEnlace_->sizeHint().width() - panelModo_->sizeHint().width();
  for (QLabel* panel : {panelTamaño_, panelFuente_, panelFiglet_}) {
    room -= panel->sizeHint().width() + kEntrePaneles;
    panel->setVisible(silent || room >= 0);
  }
}

void frmMain::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  HacerSitio();
}

void frmMain::NombrarArchivo(const QString& what, const std::string& file) {
  const QString name = Q(std::filesystem::path(file).filename().string());
  Decir(what + ": " + fontMetrics().elidedText(name, Qt::ElideMiddle, kAnchoDeNombre) + ".",
        QStringLiteral("Abrir"), [this, file] { AbrirPagina(file); });
}

void frmMain::Ocupar(bool busy) {
  ocupada_ = busy;
  cancelada_ = cerrarDespues_ = false;
  for (QToolBar* bar : barras_) bar->setEnabled(!busy);
  menuBar()->setEnabled(!busy);
  PicAlgoritmos_->setEnabled(!busy);
  txtAscii_->setReadOnly(busy);
  setAcceptDrops(!busy);
  cmdCancelar_->setVisible(busy);
  if (busy) {
    Decir({});
    progreso_.Show();
  } else {
    progreso_.Hide();
  }
}

void frmMain::Cancelar() {
  cancelada_ = true;
  if (!ocupada_) Decir(QStringLiteral("Cancelado: la imagen queda como estaba."));
}

}  // namespace pixmosa
