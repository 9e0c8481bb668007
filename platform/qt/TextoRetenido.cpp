#include "platform/qt/TextoRetenido.h"

#include <algorithm>

#include "platform/CodePage.h"

namespace pixmosa {
namespace {

constexpr char16_t kSuplentes = 0xF800;
constexpr char16_t kGuion = 0x2010;  // for the soft hyphen
constexpr char32_t kGuionOpcional = 0xAD;
constexpr char16_t kParrafo = 0x2029, kRenglon = 0x2028;

// Text layout would give them no width.
bool EsControl(char32_t c) {
  return (c < 32 && c != U'\t') || (c >= 127 && c < 160);
}

char32_t Retenido(char32_t c) {
  if (c == kGuionOpcional) return kGuion;
  const auto code = EsControl(c) ? ByteOfUnicode(c) : std::nullopt;
  return code ? kSuplentes + *code : c;
}

char32_t DeSuplente(char16_t c) {
  return UnicodeOfByte(static_cast<unsigned char>(c - kSuplentes));
}

template <typename Is>
bool Alguno(const QString& held, Is is) {
  return std::any_of(held.begin(), held.end(), [&](QChar c) { return is(c.unicode()); });
}

}  // namespace

bool EsSuplente(char16_t c) {
  return c >= kSuplentes && c < kSuplentes + 256 && EsControl(DeSuplente(c));
}

bool EsAjeno(char16_t c) {
  return c > 127 && c != kGuion && c != kParrafo && c != kRenglon && !EsSuplente(c) && !ByteOfUnicode(c);
}

bool NecesitaFormato(const QString& held) {
  return Alguno(held, [](char16_t c) { return EsSuplente(c) || EsAjeno(c); });
}

bool TieneAjenos(const QString& held) {
  return Alguno(held, EsAjeno);
}

QString RetenidoDeUtf8(std::string_view utf8) {
  QString held;
  held.reserve(static_cast<qsizetype>(utf8.size()));
  while (!utf8.empty()) {
    const char32_t c = NextUtf8(utf8);
    const bool lineEnd = c == U'\r' && utf8.starts_with('\n');
    if (lineEnd) utf8.remove_prefix(1);
    const char32_t shown = lineEnd ? U'\n' : Retenido(c);
    if (QChar::requiresSurrogates(shown)) {
      held += QChar(QChar::highSurrogate(shown));
      held += QChar(QChar::lowSurrogate(shown));
    } else {
      held += QChar(static_cast<char16_t>(shown));
    }
  }
  return held;
}

std::string Utf8DeRetenido(const QString& held) {
  std::string utf8;
  utf8.reserve(static_cast<std::size_t>(held.size()));
  for (qsizetype i = 0; i < held.size(); ++i) {
    const char16_t c = held[i].unicode();
    if (c == kParrafo || c == kRenglon) {
      utf8 += "\r\n";
    } else if (EsSuplente(c)) {
      AppendUtf8(utf8, DeSuplente(c));
    } else if (c == kGuion) {
      AppendUtf8(utf8, kGuionOpcional);
    } else if (held[i].isHighSurrogate() && i + 1 < held.size() && held[i + 1].isLowSurrogate()) {
      AppendUtf8(utf8, QChar::surrogateToUcs4(held[i], held[i + 1]));
      ++i;
    } else {
      AppendUtf8(utf8, held[i].isSurrogate() ? U'?' : c);
    }
  }
  return utf8;
}

}  // namespace pixmosa
