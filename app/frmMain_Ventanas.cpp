// The other windows that the menus open.
#include <QCloseEvent>

#include "app/frmAbout.h"
#include "app/frmImagePreview.h"
#include "app/frmMain.h"
#include "app/frmSistema.h"
#include "editor/frmEditor.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Intentar.h"
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
  // A window closed by the user is gone; one that is open asks before it takes another text.
  if (!editor_ || !editor_->isVisible()) {
    delete editor_;
    editor_ = new frmEditor(p_.basEditor, p_.ajustes.font, desktop_.dialogos, desktop_.entorno, this);
    connect(editor_, &frmEditor::Enviado, this, Con(desktop_.dialogos, [this](const std::string& text) {
              txtAscii_->RecibirTexto(text);
              Decir("El dibujo del editor ha sustituido al texto.", "Deshacer",
                    [this] { txtAscii_->Deshacer(); });
            }));
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
  const bool editorClosed = !editor_ || !editor_->isVisible() || editor_->close();
  event->setAccepted(editorClosed && PuedePerderseElTexto());
}

bool frmMain::PuedePerderseElTexto() {
  if (!txtAscii_->SinGuardar()) return true;
  switch (desktop_.dialogos.AskToSave("El texto editado a mano no se ha guardado.", "Pixmosa")) {
    case Respuesta::Guardar:
      return Guardar();
    case Respuesta::Descartar:
      return true;
    case Respuesta::Cancelar:
      break;
  }
  return false;
}

void frmMain::MostrarEstadisticas() {
  frmEstadisticas(txtAscii_->Texto(), desktop_.entorno, this).exec();
}

void frmMain::MostrarSistema() {
  frmSistema(desktop_.registro, this).exec();
}

}  // namespace pixmosa
