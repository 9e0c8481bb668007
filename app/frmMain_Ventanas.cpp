// The other windows that the menus open.
#include <QCloseEvent>

#include "app/frmAbout.h"
#include "app/frmImagePreview.h"
#include "app/frmMain.h"
#include "app/frmSistema.h"
#include "editor/frmEditor.h"
#include "platform/qt/AreaDeTexto.h"
#include "stats/frmEstadisticas.h"

namespace pixmosa {

void frmMain::Salir() {
  close();
}

void frmMain::MapaDeCaracteres() {
  if (!desktop_.entorno.StartCharacterMap())
    desktop_.dialogos.Fail("No se ha encontrado el mapa de caracteres del sistema.", "Mapa de caracteres");
}

void frmMain::MostrarImagenCompleta() {
  if (!HayImagen(p_)) {
    desktop_.dialogos.Inform("No hay ninguna imagen cargada.");
    return;
  }
  auto* window = new frmImagePreview(p_.imagen.picMain, this);
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->show();
}

void frmMain::AcercaDe() {
  frmAbout(desktop_.entorno, this).exec();
}

void frmMain::AbrirEditor() {
  // A window closed by the user is gone; one that is open gets the text painted over its drawing.
  if (!editor_ || !editor_->isVisible()) {
    delete editor_;
    editor_ = new frmEditor(p_.basEditor, p_.ajustes.font, desktop_.dialogos, desktop_.entorno, this);
    connect(editor_, &frmEditor::Enviado, this,
            [this](const std::string& text) { txtAscii_->PonerTexto(text); });
  }
  editor_->Abrir(txtAscii_->Texto());
}

void frmMain::closeEvent(QCloseEvent* event) {
  if (ocupada_) {
    cerrarDespues_ = true;
    event->ignore();
    return;
  }
  // The editor may hold changes that only it knows of; it asks.
  event->setAccepted(!editor_ || !editor_->isVisible() || editor_->close());
}

void frmMain::MostrarEstadisticas() {
  frmEstadisticas(txtAscii_->Texto(), desktop_.entorno, this).exec();
}

void frmMain::MostrarSistema() {
  frmSistema(desktop_.registro, this).exec();
}

}  // namespace pixmosa
