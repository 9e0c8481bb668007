#include "platform/qt/FormatoDeCeldas.h"

#include <QFontMetricsF>
#include <QTextDocument>

#include "platform/qt/TextoRetenido.h"

namespace pixmosa {

FormatoDeCeldas::FormatoDeCeldas(QTextDocument* document) : QSyntaxHighlighter(document) {
  Medir();
}

void FormatoDeCeldas::Medir() {
  propia_ = prestada_ = document()->defaultFont();
  prestada_.setStyleStrategy(QFont::NoAntialias);  // glyphs lent by other families
  prestada_.setLetterSpacing(QFont::PercentageSpacing, 100);
  espacios_.clear();
  rehighlight();
}

FormatoDeCeldas::Espacio FormatoDeCeldas::EspacioDe(char32_t c) {
  const auto [at, isNew] = espacios_.try_emplace(c);
  const QFontMetricsF own(propia_);
  if (isNew && !own.inFontUcs4(c))
    at->second =
        own.horizontalAdvance(u'A') - QFontMetricsF(prestada_).horizontalAdvance(QString::fromUcs4(&c, 1));
  return at->second;
}

void FormatoDeCeldas::Prestar(int begin, int end, qreal space) {
  QTextCharFormat lent;
  lent.setFontStyleStrategy(QFont::NoAntialias);
  lent.setFontLetterSpacingType(QFont::AbsoluteSpacing);
  lent.setFontLetterSpacing(space);
  setFormat(begin, end - begin, lent);
}

void FormatoDeCeldas::highlightBlock(const QString& text) {
  QTextCharFormat clear;
  clear.setForeground(Qt::transparent);
  const int size = static_cast<int>(text.size());
  int begin = 0;  // of the run of characters that share a space
  Espacio shared;
  for (int i = 0, next = 0; i < size; i = next) {
    next = i + 1;
    const char16_t c = text[i].unicode();
    Espacio space;
    if (EsSuplente(c)) {
      setFormat(i, 1, clear);
    } else if (EsAjeno(c)) {
      const bool pair = text[i].isHighSurrogate() && next < size && text[next].isLowSurrogate();
      space = EspacioDe(pair ? QChar::surrogateToUcs4(text[i], text[next]) : c);
      if (pair) ++next;
    }
    if (space == shared) continue;
    if (shared) Prestar(begin, i, *shared);
    begin = i;
    shared = space;
  }
  if (shared) Prestar(begin, size, *shared);
}

}  // namespace pixmosa
