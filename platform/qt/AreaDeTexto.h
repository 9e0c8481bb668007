// A text area for character art: it shows 8-bit text in a fixed-pitch font and gives back every byte it was
// given.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <QPlainTextEdit>

#include "platform/Font.h"

class QSyntaxHighlighter;

namespace pixmosa {

// A line break of the document is CR LF; a CR or LF on its own, the other control codes and the soft hyphen
// are held as characters of the private use area (shown as a blank of one cell, the soft hyphen as a hyphen),
// because text layout would give them no width and the columns would no longer stand below one another.
class AreaDeTexto : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit AreaDeTexto(QWidget* parent = nullptr);
  ~AreaDeTexto() override;

  // Replaces the whole text; bytes of the 8-bit code page. The history of edits starts anew.
  void PonerTexto(std::string_view bytes);

  // The whole text with every code and line break as it was given; characters typed or pasted that the code
  // page lacks read as "?".
  std::string Texto() const;

  bool EstaVacia() const { return document()->isEmpty(); }

  void PonerFuente(const Font& font);
  void PonerColores(QColor background, QColor text);

  // How each line lies within the visible width.
  void Alinear(Qt::Alignment alignment);

 protected:
  QMimeData* createMimeDataFromSelection() const override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::unique_ptr<QSyntaxHighlighter> blanqueador_;
};

}  // namespace pixmosa
