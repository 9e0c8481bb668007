// Keeps the columns of character art below one another where characters need more than the font to do so.
#pragma once

#include <map>
#include <optional>

#include <QSyntaxHighlighter>

namespace pixmosa {

// Draws the stand-ins of TextoRetenido in no colour, so that they leave a blank cell. Gives a character that
// the document's font lacks one of another family, spaced to the width of a cell.
class FormatoDeCeldas final : public QSyntaxHighlighter {
 public:
  explicit FormatoDeCeldas(QTextDocument* document);

  // The document has got another font.
  void Medir();

 protected:
  void highlightBlock(const QString& text) override;

 private:
  using Espacio = std::optional<qreal>;  // nothing where the font has the character
  Espacio EspacioDe(char32_t c);
  void Prestar(int begin, int end, qreal space);

  QFont propia_, prestada_;
  std::map<char32_t, Espacio> espacios_;
};

}  // namespace pixmosa
