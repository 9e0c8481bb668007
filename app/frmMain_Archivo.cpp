// Pictures in, text out: loading, saving, clipboard.
#include <QLabel>
#include <QStatusBar>

#include "app/frmMain.h"
#include "conversion/TextoGuardado.h"
#include "platform/AtomicFile.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

constexpr char kFiltroDeImagenes[] = "Imagenes (*.bmp;*.gif;*.jpg;*.ico;*.wmf)|*.bmp;*.gif;*.jpg;*.ico;*.wmf";
constexpr int kMilisegundosDeAviso = 10000;

}  // namespace

void frmMain::CargarImagen() {
  const std::string file =
      programa_.plataforma.dialogos.OpenFile("Seleccione una imagen...", kFiltroDeImagenes);
  if (!file.empty()) AbrirImagen(file);
}

bool frmMain::AbrirImagen(const std::filesystem::path& file) {
  try {
    Picture loaded = programa_.plataforma.imagenes.Read(file);
    CortarFotogramas(file);
    programa_.imagen.Cargar(std::move(loaded));
  } catch (const std::exception& e) {
    // The message is the program's own; the reason stands in the status bar.
    statusBar()->showMessage(Q(e.what()), kMilisegundosDeAviso);
    programa_.plataforma.dialogos.Fail("No se ha podido cargar la imagen", "Error en la carga");
    return false;
  }
  statusBar()->clearMessage();
  MostrarImagen();
  return true;
}

void frmMain::Guardar() {
  if (txtAscii_->EstaVacia()) return;
  Dialogs& dialogs = programa_.plataforma.dialogos;
  const std::string file = dialogs.SaveFile("Guardar el AsciiArt...", "*.txt", "txt");
  if (file.empty()) return;
  try {
    EscribirArchivo(file, TextoGuardado(panelFuente_->text().toStdString(),
                                        panelTamaño_->text().toStdString(), txtAscii_->Texto()));
  } catch (const FileError& e) {
    dialogs.Fail(e.what(), "Error al guardar");
  }
}

void frmMain::CopiarTexto() {
  if (txtAscii_->EstaVacia()) return;
  programa_.plataforma.entorno.CopyText(programa_.basAscii.ProducedText);
  const Font& font = programa_.ajustes.font;
  programa_.plataforma.dialogos.Inform("Dibujo copiado en el portapapeles.\r\nUsar fuente: " + font.name +
                                       ". Tamaño: " + std::to_string(font.points));
}

}  // namespace pixmosa
