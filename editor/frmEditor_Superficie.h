// The editor's drawing surface: shows the cells over light grid lines and turns pointer and keys into the
// tools' work.
#pragma once

#include <functional>
#include <optional>

#include <QPixmap>
#include <QWidget>

#include "editor/Bloque.h"
#include "editor/Herramientas.h"
#include "editor/Historial.h"
#include "editor/Relleno.h"
#include "editor/frmEditor_Glifos.h"

namespace pixmosa {

class Superficie final : public QWidget {
  Q_OBJECT

 public:
  Superficie(BasEditor& editor, Historial& history, const Font& font, QWidget* parent = nullptr);

  OpcionesDeHerramienta opciones;

  void PonerHerramienta(Tool tool);
  Tool Herramienta() const { return tool_; }

  // One action, to be undone as a whole; what floats is put down first. Then shows what it changed.
  void Hacer(const std::function<void()>& action);

  // Shows the cells that changed since the last time, and a canvas of another size.
  void Refrescar();

  // --- what is selected ---
  const std::optional<ZonaDeCeldas>& Seleccion() const { return selection_; }
  void Seleccionar(const std::optional<ZonaDeCeldas>& zone);
  // What is selected, or the whole drawing; as it is seen, with what floats.
  Bloque Copia() const;
  // Lets a block float: over the selection's corner, else where the user last clicked, else what is in sight.
  void Pegar(const Bloque& block);
  // Changes the selected block, floating or not, or all that is drawn.
  void Transformar(const std::function<Bloque(const Bloque&)>& change);
  void BorrarSeleccion();
  // Puts down what floats; or takes it back to where it was. False where nothing floats.
  bool Asentar();
  bool Soltar();
  bool Flota() const { return floating_.has_value(); }

  // --- how it is seen ---
  void PonerEscala(int index);
  int IndiceDeEscala() const { return scaleIndex_; }
  void PonerRejilla(bool shown);
  void PonerCalco(const QImage& picture);  // a null one shows none
  void PonerOpacidad(int percent);
  Cell CeldaEn(QPoint position) const;  // of the widget; may lie outside
  QRect RectDe(const ZonaDeCeldas& zone) const;
  QRect Alrededor(const ZonaDeCeldas& zone) const;  // with what its glyphs and marks reach
  Cell Senalada() const { return pointed_; }

  QSize sizeHint() const override;
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

 signals:
  void CeldaSenalada(int column, int row);  // the pointer moved over a cell with the free-drawing tool
  void PunteroEn(int column, int row);      // the same of every tool; 0, 0 where it left
  void Cambiado();                          // an action changed the drawing or the history
  void SeleccionCambiada();
  void Tomado(char32_t ch, Colour ink);  // picked from the canvas
  void Terminado();                      // Escape leaves the text tool
  void Reciente(int number);             // a digit asks for a recent character, 0 the first
  void Visible(QRect area);              // to be scrolled to
  void Arrastrada(QPoint by);            // with the middle button

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;

 private:
  struct Flotante {
    Bloque bloque;
    Cell en;
    std::optional<ZonaDeCeldas> origen;  // that it leaves empty
  };

  bool EsCaja() const { return tool_ == Tool::Caja || tool_ == Tool::CajaR; }
  bool EsTrazo() const { return tool_ == Tool::Libre || tool_ == Tool::Borrar; }
  Point PuntoDe(QPoint position) const;
  Cell CeldaDeHerramienta(QPoint position) const;  // as the specified tools round

  // --- _Raton.cpp ---
  void Trazar(Cell c);
  void TerminarTrazo();
  void MoverGoma(Point corner);
  void MoverFigura(Cell to, bool straight);
  void PulsarSeleccion(Cell c, bool copy);
  void ArrastrarSeleccion(Cell c);
  void MostrarRegion(Cell c);
  void MarcarRegion();
  void OlvidarRegion();
  void Tomar(Cell c);

  // --- _Teclado.cpp ---
  void Escribir(const QString& text);
  void PonerCursor(Cell c);
  bool TeclaDeTexto(const QKeyEvent& event);
  bool TeclaDeSeleccion(const QKeyEvent& event);

  void Levantar(bool copy);
  void MoverFlotante(Cell to);
  ZonaDeCeldas ZonaDe(const Flotante& f) const;

  // --- _Pintar.cpp ---
  void PintarArea(QPainter& painter, const QRect& area);
  void PintarEncima(QPainter& painter, const QRect& area);
  QRect RectDeGoma() const;
  QRect RectDeCalco() const;

  BasEditor& editor_;
  Historial& history_;
  Glifos glyphs_;
  Tool tool_ = Tool::Libre;
  int scaleIndex_ = kTamanoReal;
  bool grid_ = true;
  QImage tracing_;
  QPixmap tracingScaled_;
  double opacity_ = 0.4;

  std::optional<Point> anchor_;  // of the rubber band, while the button is held
  Point corner_{};
  std::optional<Cell> from_;  // of a figure, a selection or a move, while the button is held
  bool stroke_ = false;       // a stroke is being drawn
  std::optional<Cell> last_;  // its last cell
  std::vector<Pintada> figure_;
  ZonaDeCeldas figureZone_{};
  Region region_;  // that a fill would take
  std::optional<ZonaDeCeldas> selection_;
  std::optional<Flotante> floating_;
  bool moving_ = false, copying_ = false;  // what is selected is dragged, or a copy of it is to be
  Cell cursor_{1, 1}, margin_{1, 1};       // of the text tool, and where its lines begin
  Cell pointed_{};
  std::optional<QPoint> pan_;  // on the screen, while the middle button is held
};

}  // namespace pixmosa
