// Generating the text and showing it.
#include <QCheckBox>
#include <QScrollBar>

#include "app/MarcoDeImagen.h"
#include "app/Modos.h"
#include "app/frmMain.h"
#include "app/frmOpcAlgoritmo.h"
#include "app/frmPreview.h"
#include "platform/qt/AreaDeTexto.h"

namespace pixmosa {

void frmMain::Play() {
  if (!HayImagen()) {
    if (programa_.plataforma.dialogos.Ask("Antes debe cargar una imagen\r\n¿Desea cargarla ahora?"))
      CargarImagen();
    return;
  }
  switch (IndiceDelModo()) {
    case kModoGrises:
      if (opciones_->AnimArt()) {
        AnimArtDeGif();
      } else {
        GenerateAscii(kGrayscale);
      }
      break;
    case kModoBordes:
    case kModoAntialias:
      GenerateAscii(IndiceDelModo());
      break;
    case kModoMosaico:
      GenerarWebArt(false);
      break;
    case kModoCopiaExacta:
      GenerarWebArt(true);
      break;
    default:
      break;
  }
}

void frmMain::GenerateAscii(int method) {
  opciones_->LlenarAjustes(programa_.ajustes);
  pixmosa::GenerateAscii(programa_.basAscii, programa_.ajustes, Imagen(), method);
  // The part in view stays in view, so that a dragged slider shows its effect there.
  QScrollBar *across = txtAscii_->horizontalScrollBar(), *down = txtAscii_->verticalScrollBar();
  const int x = across->value(), y = down->value();
  txtAscii_->PonerTexto(programa_.basAscii.ProducedText);
  across->setValue(x);
  down->setValue(y);
  if (chkAsciiPrev_->isChecked() && !opciones_->AnimArt()) ShowPreview();
}

void frmMain::ShowPreview() {
  if (programa_.basAscii.ProducedText.empty()) return;
  if (!preview_) preview_ = new frmPreview(this);
  preview_->Mostrar(programa_.basAscii.ProducedText, programa_.ajustes.font);
}

bool frmMain::HayImagen() const {
  return !programa_.imagen.picMain.IsEmpty();
}

const Picture& frmMain::Imagen() const {
  return programa_.imagen.picMain;
}

void frmMain::MostrarImagen() {
  marco_->Mostrar(Imagen());
}

}  // namespace pixmosa
