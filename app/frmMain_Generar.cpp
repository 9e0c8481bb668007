// Generating the text and showing it.
#include <QCheckBox>
#include <QScrollBar>

#include "app/MarcoDeImagen.h"
#include "app/MenuDeImagen.h"
#include "app/Muestra.h"
#include "app/frmMain.h"
#include "app/frmOpcAlgoritmo.h"
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
      if (const int method = MetodoDe(p_); QuiereElTexto(method)) Generar(method);
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

bool frmMain::QuiereElTexto(int method) {
  const std::optional<Extent> huge = TextoEnorme(p_, method);
  return !huge ||
         desktop_.dialogos.Ask("El dibujo tendría " + std::to_string(huge->width) + " columnas y " +
                               std::to_string(huge->height) +
                               " filas: puede tardar mucho y no caber en la memoria.\r\n¿Desea generarlo?");
}

void frmMain::Regenerar() {
  if (!HayImagen(p_) || caducadoPor_ < 0) return;
  if (const std::optional<Extent> huge = TextoEnorme(p_, caducadoPor_)) {
    Decir(QStringLiteral("El dibujo tendría %1 columnas y %2 filas: no se genera solo.")
              .arg(huge->width)
              .arg(huge->height));
  } else {
    Generar(caducadoPor_);
  }
}

void frmMain::Generar(int method) {
  if (!pixmosa::Generar(p_, method)) return;
  if (!txtAscii_->PuedeDeshacer()) Decir({});
  txtAscii_->Alinear(Qt::AlignLeft);
  MostrarTexto();
  AvisarSiHaSalidoEnBlanco(method);
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
  preview_->Mostrar(p_.basAscii.ProducedText, p_.ajustes.font, p_.fondoTexto, p_.colorTexto);
}

void frmMain::MostrarImagen() {
  marco_->Mostrar(p_.imagen.picMain);
  ActualizarAcciones();
}

void frmMain::AvisarSiHaSalidoEnBlanco(int method) {
  if (method == kGrayscale || EsDeFormas(method) || p_.basAscii.ProducedText.find_first_not_of(" \r\n") != std::string::npos)
    return;
  Decir(
      QStringLiteral("El dibujo ha salido en blanco: este modo necesita una imagen en blanco y negro puros."),
      QStringLiteral("Ponerla en blanco y negro"), [this, method] {
        imagen_->PonerEnBlancoYNegro();
        Generar(method);
      });
}

void frmMain::ActualizarAcciones() {
  const bool picture = HayImagen(p_), text = !txtAscii_->EstaVacia();
  imagen_->PonerDisponible(picture);
  opciones_->PonerImagenDisponible(picture);
  acciones_.at("mnuGuardar")->setEnabled(text);
  acciones_.at("mnuClipboard")->setEnabled(text);
  acciones_.at("mnuPreviewAsciiArt")->setEnabled(!p_.basAscii.ProducedText.empty());
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
