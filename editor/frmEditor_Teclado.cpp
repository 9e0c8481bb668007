// The keyboard on the drawing surface: text at a cursor, and what is selected.
#include <QInputMethodEvent>
#include <QKeyEvent>

#include "editor/frmEditor_Superficie.h"

namespace pixmosa {
namespace {

// What a key types; nothing for a command.
QString Tecleado(const QKeyEvent& event) {
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return {};
  const QString text = event.text();
  return text.isEmpty() || text[0].isPrint() || text[0].isSurrogate() ? text : QString();
}

std::optional<Cell> Paso(int key) {
  switch (key) {
    case Qt::Key_Left:
      return Cell{-1, 0};
    case Qt::Key_Right:
      return Cell{1, 0};
    case Qt::Key_Up:
      return Cell{0, -1};
    case Qt::Key_Down:
      return Cell{0, 1};
    default:
      return std::nullopt;
  }
}

}  // namespace

bool Superficie::event(QEvent* event) {
  // What is typed goes to the drawing, not to the one-key shortcuts.
  if (event->type() == QEvent::ShortcutOverride && tool_ == Tool::Texto &&
      !Tecleado(*static_cast<QKeyEvent*>(event)).isEmpty()) {
    event->accept();
    return true;
  }
  return QWidget::event(event);
}

void Superficie::PonerCursor(Cell c) {
  update(RectDe({cursor_, cursor_}).adjusted(-1, -1, 1, 1));
  cursor_ = EnElLienzo(editor_.Grid, {c, c}).desde;
  const QRect place = RectDe({cursor_, cursor_}).adjusted(-1, -1, 1, 1);
  update(place);
  emit Visible(place);
  emit PunteroEn(cursor_.column, cursor_.row);
}

void Superficie::Escribir(const QString& text) {
  const auto letters = text.toUcs4();
  if (letters.isEmpty()) return;
  Hacer([&] {
    for (const char32_t c : letters) {
      PintarCaracter(editor_, cursor_.column, cursor_.row, c);
      PonerCursor({cursor_.column + 1, cursor_.row});
    }
  });
}

bool Superficie::TeclaDeTexto(const QKeyEvent& event) {
  if (const auto step = Paso(event.key())) {
    PonerCursor({cursor_.column + step->column, cursor_.row + step->row});
    return true;
  }
  switch (event.key()) {
    case Qt::Key_Escape:
      emit Terminado();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      PonerCursor({margin_.column, cursor_.row + 1});
      return true;
    case Qt::Key_Home:
      PonerCursor({cursor_.column == margin_.column ? 1 : margin_.column, cursor_.row});
      return true;
    case Qt::Key_End: {
      Cell c{editor_.Grid.Columnas(), cursor_.row};
      while (c.column > 1 && editor_.Grid.Visto({c.column - 1, c.row}) == U' ') --c.column;
      PonerCursor(c);
      return true;
    }
    case Qt::Key_Backspace:
      if (cursor_.column == 1) return true;
      PonerCursor({cursor_.column - 1, cursor_.row});
      [[fallthrough]];
    case Qt::Key_Delete:
      Hacer([&] { PintarCelda(editor_, cursor_, U' ', kNoColour); });
      return true;
    default:
      break;
  }
  const QString text = Tecleado(event);
  if (text.isEmpty()) return false;
  Escribir(text);
  return true;
}

bool Superficie::TeclaDeSeleccion(const QKeyEvent& event) {
  if (const auto step = Paso(event.key()); step && selection_) {
    Levantar(false);
    MoverFlotante({floating_->en.column + step->column, floating_->en.row + step->row});
    return true;
  }
  switch (event.key()) {
    case Qt::Key_Escape:
      if (!Soltar()) Seleccionar(std::nullopt);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Asentar();
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
      BorrarSeleccion();
      return true;
    default:
      return false;
  }
}

void Superficie::keyPressEvent(QKeyEvent* event) {
  // A figure that is being drawn is given up.
  if (event->key() == Qt::Key_Escape && (from_ || anchor_) && !selection_) {
    update();
    from_.reset();
    anchor_.reset();
    figure_.clear();
    return;
  }
  if (tool_ == Tool::Texto ? TeclaDeTexto(*event) : TeclaDeSeleccion(*event)) return;
  const QString text = Tecleado(*event);
  if (text.size() == 1 && text[0] >= u'1' && text[0] <= u'9') {
    emit Reciente(text[0].unicode() - u'1');
    return;
  }
  QWidget::keyPressEvent(event);
}

void Superficie::inputMethodEvent(QInputMethodEvent* event) {
  if (tool_ == Tool::Texto) Escribir(event->commitString());
  event->accept();
}

QVariant Superficie::inputMethodQuery(Qt::InputMethodQuery query) const {
  if (query == Qt::ImCursorRectangle) return RectDe({cursor_, cursor_});
  if (query == Qt::ImEnabled) return tool_ == Tool::Texto;
  return QWidget::inputMethodQuery(query);
}

}  // namespace pixmosa
