// Keeps the columns of character art below one another where characters need more than the font to do so.
#pragma once

#include <map>
#include <optional>

#include <QSyntaxHighlighter>

#include "platform/CodePage.h"

namespace pixmosa {

// What a text area holds for codes that text layout would not show: U+E000 + code, and for the soft hyphen a
// hyphen.
inline constexpr char16_t kSuplentes = 0xE000;
inline constexpr char16_t kGuion = 0x2010;

inline bool EsSuplente(char16_t c) {
  return c >= kSuplentes && c < kSuplentes + 256;
}

// A character that the code page lacks; each half of one beyond 16 bits is.
inline bool EsAjeno(char16_t c) {
  constexpr char16_t kParagraph = 0x2029, kLine = 0x2028;
  return c > 127 && c != kGuion && c != kParagraph && c != kLine && !EsSuplente(c) && !ByteOfUnicode(c);
}

// Draws the stand-ins in no colour, so that they leave a blank cell. Gives a character that the document's
// font lacks one of another family, spaced to the width of a cell.
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
