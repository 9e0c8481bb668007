// A text area for character art: it shows text in a fixed-pitch font, nearer or farther, and gives back every
// byte of the 8-bit code page, and every other character, that it was given.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <QPlainTextEdit>

#include "platform/Font.h"

namespace pixmosa {

class FormatoDeCeldas;

// The window's own font, whole: what lies on a text area takes nothing of the text's over.
QFont FuenteDeVentana();

// A line break of the document is CR LF; a CR or LF on its own, the other control codes and the soft hyphen
// are held as characters of the private use area (shown as a blank of one cell, the soft hyphen as a hyphen),
// because text layout would give them no width and the columns would no longer stand below one another. So a
// hyphen U+2010 of the user's reads as a soft hyphen. Characters that the font lacks are lent by another
// family and take the width of a cell.
class AreaDeTexto : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit AreaDeTexto(QWidget* parent = nullptr);
  ~AreaDeTexto() override;

  // Replaces the whole text; bytes of the 8-bit code page. The history of edits starts anew, but a text that
  // was edited by hand is kept, and Undo brings it back; so are those before it.
  void PonerTexto(std::string_view bytes);

  // The same of UTF-8.
  void PonerUtf8(std::string_view utf8);

  // The same as PonerUtf8 for a text that the user drew elsewhere: it counts as edited by hand, and Undo
  // brings back what stood here before.
  void RecibirUtf8(std::string_view utf8);

  // The whole text with every code and line break as it was given; characters that the code page lacks read
  // as "?".
  std::string Texto() const;

  // The same as UTF-8, with all its characters.
  std::string Utf8() const;

  // Texto() says all.
  bool CabeEnLaPagina() const;

  bool EstaVacia() const { return document()->isEmpty(); }

  // The text differs from the last one that was put, and was not saved since.
  bool SinGuardar() const;
  void DarPorGuardada();

  // A text edited by hand gave way to another and was neither saved nor brought back; brings it back.
  bool HayApartada() const { return !apartada_.empty(); }
  void RecuperarApartada();

  // There is something that Undo takes back: an edit by hand, or a replaced text that was edited.
  bool PuedeDeshacer() const;
  void Deshacer();

  // A few words shown while the text is empty, in the window's own font.
  void PonerPista(const QString& hint);

  void PonerFuente(const Font& font);

  // Shows the text nearer or farther by so many steps, in cells of the font's own proportions; what is in the
  // middle stays there. Ctrl with the wheel and two fingers do the same about the pointer. The font and the
  // text stay what they are.
  void Acercar(int steps);
  void TamañoReal();

  // As near as the whole text can be seen, and no nearer than its real size.
  void VerTodo();

  // The longest line's characters, and the lines; 0 x 0 where it is empty.
  QSize Medidas() const;

  // As many characters as a line may have and be seen whole, as near as it is seen now; 1 at least.
  int ColumnasVisibles() const;

  void PonerColores(QColor background, QColor text);

  // How each line lies within the visible width. Text wider than that lies at the left and scrolls.
  void Alinear(Qt::Alignment alignment);

 signals:
  void Senalada(QPoint cell);  // column and row under the pointer, from 1; 0, 0 where there is none
  void TextoSustituido();      // a text edited by hand gave way to another; Undo brings it back

 protected:
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  QMimeData* createMimeDataFromSelection() const override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool EditadaAMano() const;
  void Conservar();
  void Mostrar(std::string_view utf8);
  void CuidarCeldas(int position, int added);
  void AjustarAlineacion();

  // --- AreaDeTexto_Vista.cpp: nearer and farther, and what the pointer is on ---
  void MostrarFuente();
  double Margen() const;  // beside the lines, both sides together
  double Alto() const;    // of a row, in whole pixels
  void AcercarA(int steps, QPointF about);
  void PonerEscala(double scale, QPointF about);
  QPoint CeldaEn(QPoint position) const;

  Font fuente_{};
  double escala_ = 1;                        // of what is shown; 1 is the font's own size
  int giro_ = 0;                             // of the wheel, not yet followed
  std::unique_ptr<FormatoDeCeldas> celdas_;  // where there are characters that need it
  std::string puesta_;                       // the text that was put last, UTF-8 as those below
  std::string guardada_;                     // the text that was saved last
  std::string apartada_;
  std::vector<std::string> editadas_;  // texts that gave way to others, the last one last
  QString pista_;
  Qt::Alignment alineacion_ = Qt::AlignLeft;
};

}  // namespace pixmosa
