// Between the 8-bit code page and the platform's strings.
#pragma once

#include <string>
#include <string_view>

#include <QString>

#include "platform/CodePage.h"

namespace pixmosa {

inline QString QStringOfBytes(std::string_view bytes) {
  QString s;
  s.reserve(static_cast<qsizetype>(bytes.size()));
  for (const char c : bytes) s += QChar(static_cast<char16_t>(UnicodeOfByte(static_cast<unsigned char>(c))));
  return s;
}

// Characters that the page lacks become "?".
inline std::string BytesOfQString(const QString& s) {
  return BytesOfUtf8(s.toStdString());
}

inline QString Q(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// What is drawn for a code: the character itself, but a hyphen for the soft hyphen, which text layout hides.
inline QChar VisibleChar(unsigned char code) {
  return code == 0xAD ? QChar(u'-') : QChar(static_cast<char16_t>(UnicodeOfByte(code)));
}

}  // namespace pixmosa
