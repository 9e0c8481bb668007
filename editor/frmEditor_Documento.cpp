// The drawing as a document: opened, sent, saved, kept, and not lost without a question.
#include <chrono>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QStatusBar>
#include <QTimer>

#include "editor/TextoDelEditor.h"
#include "editor/frmEditor.h"
#include "editor/frmEditor_Superficie.h"
#include "platform/AtomicFile.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

constexpr int kAviso = 4000;  // milliseconds

}  // namespace

bool frmEditor::Abrir(std::string_view text) {
  if (isVisible() && !PuedePerderse()) return false;
  picDraw_->Soltar();
  if (!editor_.Grid.HayTinta() || DrawingText(editor_) != text) {
    AbrirTexto(editor_, text);
    history_ = Historial();
  }
  picDraw_->Seleccionar(std::nullopt);
  picDraw_->Refrescar();
  shiftedIsFine_ = false;
  lost_ = !kept_.Huerfanos().empty();
  Actualizar();
  saved_ = DrawingText(editor_);
  show();
  raise();
  activateWindow();
  picDraw_->setFocus();
  return true;
}

void frmEditor::Actualizar() {
  deshacer_->setEnabled(history_.PuedeDeshacer() || picDraw_->Flota());
  rehacer_->setEnabled(history_.PuedeRehacer());
  QString size = QStringLiteral("%1 x %2").arg(editor_.Grid.Columnas()).arg(editor_.Grid.Filas());
  if (const auto& zone = picDraw_->Seleccion())
    size += QStringLiteral(" (%1 x %2)").arg(zone->Columnas()).arg(zone->Filas());
  lblMedidas_->setText(size);
  lblRecuperar_->setVisible(lost_);
  const TextoAbierto* opened = editor_.Abierto.get();
  const bool shifted = opened && opened->desplazado && !opened->alineado;
  alinear_->setEnabled(shifted);
  lblDesplazado_->setVisible(shifted && !shiftedIsFine_);
  lblNoCabe_->setVisible(opened && !opened->cabe);
  if (!opened || opened->cabe) return;
  lblNoCabe_->setText(
      QStringLiteral("El texto tiene %1 columnas y %2 líneas, y aquí caben %3 y %4. Lo que queda fuera "
                     "no se ve, pero se conserva: al enviar, copiar o guardar vuelve tal como estaba.")
          .arg(opened->columnas)
          .arg(opened->lineas)
          .arg(kLadoMayor - 1)
          .arg(kLadoMayor));
}

void frmEditor::Mover(bool back) {
  if (picDraw_->Soltar()) return;
  if (back) {
    history_.Deshacer(editor_);
  } else {
    history_.Rehacer(editor_);
  }
  picDraw_->Refrescar();
  emit picDraw_->Cambiado();
}

void frmEditor::Enviar() {
  picDraw_->Asentar();
  saved_ = DrawingText(editor_);
  emit Enviado(saved_);
  statusBar()->showMessage(QStringLiteral("El dibujo está en la ventana principal."), kAviso);
}

bool frmEditor::Guardar() {
  picDraw_->Asentar();
  const std::string file = dialogs_.SaveFile("Guardar el dibujo...", "*.txt", "txt");
  if (file.empty()) return false;
  try {
    std::string text = DrawingText(editor_);
    const TextoDePagina page = EnPagina(text);
    EscribirArchivo(file, page.bytes + (text.ends_with("\r\n") ? "" : "\r\n"));
    saved_ = std::move(text);
    statusBar()->showMessage(QStringLiteral("Guardado: ") + Q(file), kAviso);
    if (page.cambiados > 0)
      dialogs_.Inform(
          "El dibujo tiene caracteres que no están en la página de códigos (" +
              std::to_string(page.cambiados) +
              "): las líneas, flechas y bloques se han guardado con los signos ASCII más parecidos y los "
              "demás como \"?\".\r\nEn la ventana principal y en lo que se exporta están todos.",
          "Guardar el dibujo");
    return true;
  } catch (const FileError& e) {
    dialogs_.Fail(e.what(), "Error al guardar");
    return false;
  }
}

void frmEditor::Exportar() {
  picDraw_->Asentar();
  means_.exportar(DrawingCells(editor_));
}

void frmEditor::Resguardar() {
  using std::chrono_literals::operator""s;
  if (means_.resguardo.empty()) return;
  if (keeping_.valid() && keeping_.wait_for(0s) != std::future_status::ready) return timer_->start();
  // Of a copy and beside the drawing, which goes on.
  keeping_ = std::async(std::launch::async, [kept = kept_, copy = editor_] {
    try {
      kept.Guardar(copy);
    } catch (const std::exception&) {
      // Nobody asked for it.
    }
  });
}

void frmEditor::Recuperar() {
  const auto files = kept_.Huerfanos();
  if (files.empty() || !PuedePerderse()) return;
  BasEditor found;
  const bool whole = LeerDibujo(LeerArchivo(files.front()), found);
  if (whole) {
    picDraw_->Hacer([&] {
      editor_.Grid.Sustituir(std::move(found.Grid));
      editor_.Abierto = found.Abierto;
    });
    kept_.Guardar(editor_);
  }
  std::filesystem::remove(files.front());
  lost_ = files.size() > 1;
  Actualizar();
  if (!whole) dialogs_.Fail("El archivo del dibujo que se conservaba está dañado.", "Recuperar");
}

bool frmEditor::PuedePerderse() {
  picDraw_->Asentar();
  if (DrawingText(editor_) == saved_) return true;
  raise();
  activateWindow();
#if QT_VERSION < QT_VERSION_CHECK(6, 5, 0)
  QApplication::setActiveWindow(this);  // at once: the question opens over it
#endif
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
  if (!event->isAccepted()) return;
  timer_->stop();
  if (keeping_.valid()) keeping_.wait();
  kept_.Retirar();
}

}  // namespace pixmosa
