// The window of the character editor, and its drawing on the way back.
#include "app/frmMain.h"
#include "editor/frmEditor.h"
#include "exportar/frmExportar.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Intentar.h"

namespace pixmosa {

void frmMain::AbrirEditor() {
  // A window closed by the user is gone; one that is open asks before it takes another text.
  if (!editor_ || !editor_->isVisible()) {
    delete editor_;
    MediosDelEditor means{p_.carpetaDeDibujos, [this] { return p_.imagen.picMain; },
                          [this] {
                            const std::string file = ElegirArchivoDeImagen();
                            return file.empty() ? Picture() : p_.codec.Read(file);
                          },
                          [this](const Dibujo& drawing) { ExportarDelEditor(drawing); }};
    editor_ = new frmEditor(p_.basEditor, p_.ajustes.font, desktop_.dialogos, desktop_.entorno, this,
                            std::move(means));
    connect(editor_, &frmEditor::Enviado, this, Con(desktop_.dialogos, [this](const std::string& text) {
              txtAscii_->RecibirUtf8(text);
              Decir("El dibujo del editor ha sustituido al texto.", "Deshacer",
                    [this] { txtAscii_->Deshacer(); });
            }));
  }
  editor_->Abrir(txtAscii_->Utf8());
}

void frmMain::ExportarDelEditor(const Dibujo& drawing) {
  const Extent size{static_cast<int>(drawing.Columnas()), static_cast<int>(drawing.filas.size())};
  bool inks = false;
  for (const Fila& row : drawing.filas)
    for (const Celda& cell : row) inks |= cell.tinta != kNoColour;
  // Who gave it colours wants them; the choice for the picture's own is another.
  const bool before = std::exchange(p_.exportar.color, inks);
  frmExportar dialog(p_, desktop_.dialogos, size, inks, editor_);
  dialog.LlamarColores(QStringLiteral("Con los &colores del dibujo"),
                       QStringLiteral("Cada carácter con la tinta que se le ha dado en el editor"));
  if (dialog.exec() == QDialog::Accepted) EscribirDibujo([&] { return drawing; });
  p_.exportar.color = before;
}

void frmMain::AvisarDeDibujo() {
  if (Resguardo(p_.carpetaDeDibujos).Huerfanos().empty()) return;
  Decir("El programa terminó de golpe con un dibujo del editor sin guardar.", "Abrir el editor",
        [this] { AbrirEditor(); });
}

}  // namespace pixmosa
