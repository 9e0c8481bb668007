// The other windows that the menus open.
#include "app/frmAbout.h"
#include "app/frmImagePreview.h"
#include "app/frmMain.h"

namespace pixmosa {

void frmMain::MapaDeCaracteres() {
  if (!programa_.plataforma.entorno.StartCharacterMap())
    programa_.plataforma.dialogos.Fail("No se ha encontrado el mapa de caracteres del sistema.",
                                       "Mapa de caracteres");
}

void frmMain::MostrarImagenCompleta() {
  if (!HayImagen()) {
    programa_.plataforma.dialogos.Inform("No hay ninguna imagen cargada.");
    return;
  }
  auto* window = new frmImagePreview(Imagen(), this);
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->show();
}

void frmMain::AcercaDe() {
  frmAbout(programa_.plataforma.entorno, this).exec();
}

}  // namespace pixmosa
