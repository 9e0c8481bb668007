// What the menus do to the selection.
#include "editor/frmEditor.h"
#include "editor/frmEditor_Superficie.h"
#include "editor/frmReemplazar.h"

namespace pixmosa {

void frmEditor::Copiar() {
  copied_ = picDraw_->Copia();
  copiedAs_ = TextoDe(copied_);
  shell_.CopyUtf8(copiedAs_);
}

void frmEditor::Cortar() {
  if (!picDraw_->Seleccion()) return;
  Copiar();
  picDraw_->BorrarSeleccion();
}

void frmEditor::Pegar() {
  const Bloque block = BloqueDe(shell_.ClipboardUtf8());
  if (block.Vacio()) return;
  ElegirHerramienta(Tool::Seleccionar);
  // What was copied here comes back as it was, with its colours and the blanks at the ends of its rows.
  const bool own = !copied_.Vacio() && block == BloqueDe(copiedAs_);
  picDraw_->Pegar(own ? copied_ : block);
  picDraw_->setFocus();
}

void frmEditor::SeleccionarTodo() {
  ElegirHerramienta(Tool::Seleccionar);
  picDraw_->Asentar();
  picDraw_->Seleccionar(ZonaEntera(editor_.Grid));
  picDraw_->setFocus();
}

void frmEditor::Voltear(Eje axis) {
  picDraw_->Transformar([axis](const Bloque& block) { return Volteado(block, axis); });
}

void frmEditor::AbrirReemplazar() {
  if (!replace_) {
    replace_ = new frmReemplazar(this);
    connect(replace_, &frmReemplazar::Pedido, this, [this](char32_t find, char32_t with) {
      picDraw_->Asentar();
      const ZonaDeCeldas zone = picDraw_->Seleccion() ? *picDraw_->Seleccion() : ZonaEntera(editor_.Grid);
      int count = 0;
      picDraw_->Hacer([&] { count = Reemplazar(editor_, zone, find, with); });
      replace_->Decir(count);
    });
  }
  const Cell at = picDraw_->Senalada();
  const char32_t under = editor_.Grid.SePinta(at) ? editor_.Grid.Visto(at) : U' ';
  replace_->Mostrar(under, editor_.CurrentChar.caracter, picDraw_->Seleccion().has_value());
}

}  // namespace pixmosa
