// The editor's drawing surface: shows the cells over light grid lines and turns pointer events into the
// tools' work.
#pragma once

#include <functional>
#include <optional>

#include <QWidget>

#include "editor/Historial.h"
#include "platform/Font.h"

namespace pixmosa {

// The tools, by the keys of their buttons.
enum class Tool { Libre, Borrar, Caja, CajaR, Rellenar };

class Superficie final : public QWidget {
  Q_OBJECT

 public:
  Superficie(BasEditor& editor, Historial& history, const Font& font, QWidget* parent = nullptr);

  void PonerHerramienta(Tool tool);

  // One action, to be undone as a whole; then shows what it changed.
  void Hacer(const std::function<void()>& action);

  // Shows the cells that changed since the last time.
  void Refrescar();

  QSize sizeHint() const override;

 signals:
  void CeldaSenalada(int column, int row);  // the pointer moved over a cell with the free-drawing tool
  void Cambiado();                          // an action changed the drawing or the history

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  bool EsCaja() const { return tool_ == Tool::Caja || tool_ == Tool::CajaR; }
  void Trazar(Cell c);
  void MoverGoma(Point corner);

  BasEditor& editor_;
  Historial& history_;
  QFont font_;
  Tool tool_ = Tool::Libre;
  std::optional<Point> anchor_;  // of the rubber band, while the button is held
  Point corner_{};
};

}  // namespace pixmosa
