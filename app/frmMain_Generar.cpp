// Generating the text and showing it.
#include <QCheckBox>
#include <QScrollBar>

#include "app/MarcoDeImagen.h"
#include "app/Muestra.h"
#include "app/frmMain.h"
#include "app/frmPreview.h"
#include "platform/qt/AreaDeTexto.h"
#include "programa/Generar.h"

namespace pixmosa {

void frmMain::Play() {
  switch (QueGenerar(p_)) {
    case Trabajo::PedirImagen:
      if (desktop_.dialogos.Ask("Antes debe cargar una imagen\r\n¿Desea cargarla ahora?")) CargarImagen();
      break;
    case Trabajo::Texto:
      Generar(MetodoDe(p_.modo));
      break;
    case Trabajo::AnimArt:
      AnimArtDeGif();
      break;
    case Trabajo::WebArt:
      GenerarWebArt();
      break;
    case Trabajo::Ninguno:
      break;
  }
}

void frmMain::Generar(int method) {
  if (!pixmosa::Generar(p_, method)) return;
  MostrarTexto();
  if (p_.vistaPrevia && !p_.animArt) ShowPreview();
}

void frmMain::Caducar(int method) {
  chkAsciiPrev_->setChecked(p_.vistaPrevia);
  caducadoPor_ = method;
  regeneracion_.Pedir();
}

void frmMain::ShowPreview() {
  if (p_.basAscii.ProducedText.empty()) return;
  if (!preview_) preview_ = new frmPreview(this);
  preview_->Mostrar(p_.basAscii.ProducedText, p_.ajustes.font);
}

void frmMain::MostrarImagen() {
  marco_->Mostrar(p_.imagen.picMain);
}

void frmMain::MostrarTexto() {
  // The part in view stays in view, so that a dragged slider shows its effect there.
  QScrollBar *across = txtAscii_->horizontalScrollBar(), *down = txtAscii_->verticalScrollBar();
  const int x = across->value(), y = down->value();
  txtAscii_->PonerTexto(p_.basAscii.ProducedText);
  across->setValue(x);
  down->setValue(y);
}

void frmMain::MostrarColores() {
  txtAscii_->PonerColores(QColorOf(p_.fondoTexto), QColorOf(p_.colorTexto));
}

}  // namespace pixmosa
