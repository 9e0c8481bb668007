// What is selected on the drawing surface, and what floats over it until it is put down.
#include "editor/frmEditor_Superficie.h"

namespace pixmosa {

ZonaDeCeldas Superficie::ZonaDe(const Flotante& f) const {
  return {f.en, {f.en.column + f.bloque.columnas - 1, f.en.row + f.bloque.filas - 1}};
}

void Superficie::Seleccionar(const std::optional<ZonaDeCeldas>& zone) {
  if (zone == selection_) return;
  for (const auto& z : {selection_, zone})
    if (z) update(Alrededor(*z));
  selection_ = zone;
  emit SeleccionCambiada();
}

Bloque Superficie::Copia() const {
  if (floating_) return floating_->bloque;
  return Copiado(editor_.Grid, selection_ ? *selection_ : ZonaUsada(editor_.Grid));
}

void Superficie::Levantar(bool copy) {
  if (floating_ || !selection_) return;
  floating_ =
      Flotante{Copiado(editor_.Grid, *selection_), selection_->desde, copy ? std::nullopt : selection_};
  update(Alrededor(*selection_));
}

void Superficie::MoverFlotante(Cell to) {
  if (!floating_ || floating_->en == to) return;
  floating_->en = to;
  const ZonaDeCeldas zone = ZonaDe(*floating_);
  Seleccionar(zone);
}

void Superficie::Pegar(const Bloque& block) {
  if (block.Vacio()) return;
  Asentar();
  Cell at = selection_ ? selection_->desde : cursor_;
  const QRect seen = visibleRegion().boundingRect();
  if (!seen.isEmpty() && !seen.intersects(RectDe({at, at}))) at = CeldaEn(seen.topLeft());
  floating_ = Flotante{block, at, std::nullopt};
  Seleccionar(ZonaDe(*floating_));
  update(Alrededor(*selection_));
  emit Cambiado();
}

bool Superficie::Asentar() {
  TerminarTrazo();
  if (!floating_) return false;
  const Flotante f = std::move(*floating_);
  floating_.reset();
  Hacer([&] {
    if (f.origen)
      for (int row = f.origen->desde.row; row <= f.origen->hasta.row; ++row)
        editor_.Grid.PonerTramo({f.origen->desde.column, row}, f.origen->Columnas(), {});
    Poner(editor_, f.bloque, f.en, opciones.porosa);
  });
  // What hangs over the edge is gone.
  const ZonaDeCeldas zone = ZonaDe(f), whole = ZonaEntera(editor_.Grid);
  const bool inside = zone.hasta.column >= 1 && zone.hasta.row >= 1 &&
                      zone.desde.column <= whole.hasta.column && zone.desde.row <= whole.hasta.row;
  Seleccionar(inside ? std::optional(EnElLienzo(editor_.Grid, zone)) : std::nullopt);
  update(Alrededor(zone));
  return true;
}

bool Superficie::Soltar() {
  TerminarTrazo();
  if (!floating_) return false;
  const Flotante f = std::move(*floating_);
  floating_.reset();
  update(Alrededor(ZonaDe(f)));
  if (f.origen) update(Alrededor(*f.origen));
  Seleccionar(f.origen);
  emit Cambiado();
  return true;
}

void Superficie::Transformar(const std::function<Bloque(const Bloque&)>& change) {
  if (floating_) {
    floating_->bloque = change(floating_->bloque);
    update(Alrededor(ZonaDe(*floating_)));
    return;
  }
  const ZonaDeCeldas zone = selection_ ? *selection_ : ZonaUsada(editor_.Grid);
  Hacer([&] { Poner(editor_, change(Copiado(editor_.Grid, zone)), zone.desde, false); });
}

void Superficie::BorrarSeleccion() {
  if (floating_) {
    Flotante f = std::move(*floating_);
    floating_.reset();
    update(Alrededor(ZonaDe(f)));
    Seleccionar(f.origen);
    if (!f.origen) {
      emit Cambiado();
      return;
    }
  }
  if (!selection_) return;
  Hacer([&] {
    for (int row = selection_->desde.row; row <= selection_->hasta.row; ++row)
      editor_.Grid.PonerTramo({selection_->desde.column, row}, selection_->Columnas(), {});
  });
}

}  // namespace pixmosa
