// The drawing as a document: opened, sent, saved, and not lost without a question.
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>

#include "editor/TextoDelEditor.h"
#include "editor/frmEditor.h"
#include "editor/frmEditor_Superficie.h"
#include "platform/AtomicFile.h"

namespace pixmosa {

bool frmEditor::Abrir(std::string_view text) {
  if (isVisible() && !PuedePerderse()) return false;
  AbrirTexto(editor_, text);
  history_ = Historial();
  picDraw_->Refrescar();
  Actualizar();
  saved_ = DrawingText(editor_);
  show();
  raise();
  activateWindow();
  return true;
}

void frmEditor::Actualizar() {
  deshacer_->setEnabled(history_.PuedeDeshacer());
  rehacer_->setEnabled(history_.PuedeRehacer());
  const TextoAbierto* opened = editor_.Abierto.get();
  lblNoCabe_->setVisible(opened && !opened->cabe);
  if (!opened || opened->cabe) return;
  lblNoCabe_->setText(
      QStringLiteral("El texto tiene %1 columnas y %2 líneas, y aquí caben %3 y %4. Lo que queda fuera "
                     "no se ve, pero se conserva: al enviar, copiar o guardar vuelve tal como estaba.")
          .arg(opened->columnas)
          .arg(opened->lineas)
          .arg(kColumns - 2)
          .arg(kPaintableRows - 1));
}

void frmEditor::Enviar() {
  saved_ = DrawingText(editor_);
  emit Enviado(saved_);
}

bool frmEditor::Guardar() {
  const std::string file = dialogs_.SaveFile("Guardar el dibujo...", "*.txt", "txt");
  if (file.empty()) return false;
  try {
    std::string text = DrawingText(editor_);
    EscribirArchivo(file, text + (text.ends_with("\r\n") ? "" : "\r\n"));
    saved_ = std::move(text);
    return true;
  } catch (const FileError& e) {
    dialogs_.Fail(e.what(), "Error al guardar");
    return false;
  }
}

bool frmEditor::PuedePerderse() {
  if (DrawingText(editor_) == saved_) return true;
  raise();
  activateWindow();
  QApplication::setActiveWindow(this);  // at once: the question opens over it
  switch (dialogs_.AskToSave(
      "El dibujo tiene cambios que no se han guardado ni enviado a la ventana principal.\r\n"
      "¿Desea guardarlo en un archivo?",
      "Editor Ascii")) {
    case Respuesta::Guardar:
      return Guardar();
    case Respuesta::Descartar:
      return true;
    case Respuesta::Cancelar:
      break;
  }
  return false;
}

void frmEditor::closeEvent(QCloseEvent* event) {
  event->setAccepted(PuedePerderse());
}

}  // namespace pixmosa
