// The other windows that the menus open.
#include <QCloseEvent>

#include "app/frmAbout.h"
#include "app/frmImagePreview.h"
#include "app/frmMain.h"
#include "app/frmSistema.h"
#include "conversion/frmComparar.h"
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

void frmMain::Guia() {
  const std::filesystem::path page = p_.carpeta / "guia" / "index.html";
  std::error_code none;
  if (std::filesystem::exists(page, none)) {
    AbrirPagina(page.string());
  } else {
    desktop_.dialogos.Fail("La guía no está donde debería: \"" + page.string() + "\".", "Guía");
  }
}

void frmMain::AcercaDe() {
  frmAbout(desktop_.entorno, this).exec();
}

void frmMain::Comparar() {
  if (!HayImagen(p_)) {
    desktop_.dialogos.Inform("No hay ninguna imagen cargada.");
    return;
  }
  frmComparar window(p_, desktop_.dialogos, this);
  connect(&window, &frmComparar::Elegida, this,
          Con(desktop_.dialogos, [this](int method) { ElegirConversion(method); }));
  window.exec();
}

void frmMain::closeEvent(QCloseEvent* event) {
  if (p_.mFiltros.EffectBusy) progreso_.Cancelar();
  if (ocupada_) {
    cerrarDespues_ = true;
    progreso_.Cancelar();
    event->ignore();
    return;
  }
  // The editor may hold changes that only it knows of; it asks.
  const bool editorClosed = !editor_ || !editor_->isVisible() || editor_->close();
  event->setAccepted(editorClosed && PuedePerderseElTexto());
  if (event->isAccepted()) GuardarRecuerdos();
}

bool frmMain::PuedePerderseElTexto() {
  const bool now = txtAscii_->SinGuardar();
  if (!now && !txtAscii_->HayApartada()) return true;
  switch (desktop_.dialogos.AskToSave(now ? "El texto editado a mano no se ha guardado."
                                          : "Un texto editado a mano, que otro sustituyó, no se ha guardado.",
                                      "Pixmosa")) {
    case Respuesta::Guardar:
      if (!now) txtAscii_->RecuperarApartada();
      return Guardar();
    case Respuesta::Descartar:
      return true;
    case Respuesta::Cancelar:
      break;
  }
  return false;
}

void frmMain::MostrarEstadisticas() {
  if (!txtAscii_->CabeEnLaPagina())
    Decir("Las estadísticas cuentan como \"?\" los caracteres que no están en la página de códigos.");
  frmEstadisticas(txtAscii_->Texto(), desktop_.entorno, this).exec();
}

void frmMain::MostrarSistema() {
  frmSistema(desktop_.registro, this).exec();
}

}  // namespace pixmosa
