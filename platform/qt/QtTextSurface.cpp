#include "platform/qt/QtTextSurface.h"

#include <algorithm>

#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QScreen>

#include "platform/qt/QtFont.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

// Codes that no font draws: control characters and the five that the code page leaves undefined. They stay
// blank.
bool IsControl(int code) {
  return code < 32 || UnicodeOfByte(static_cast<unsigned char>(code)) - 127 <= 159 - 127;
}

}  // namespace

Extent QtTextSurface::GetTextSize(const Font& font, std::string_view text) {
  const QFontMetrics metrics(QtFontOf(font));
  return {std::max(1, metrics.horizontalAdvance(QStringOfBytes(text))), std::max(1, metrics.height())};
}

Picture QtTextSurface::PrintCharacters(const Font& font, Extent cell, int first, int last) {
  Picture cells = Picture::Filled(cell.width, cell.height * (last - first + 1), kWhite);
  QImage image(reinterpret_cast<uchar*>(cells.Writable()), cells.Width(), cells.Height(),
               QImage::Format_RGB32);
  QPainter painter(&image);
  const QFont f = QtFontOf(font);
  painter.setFont(f);
  painter.setPen(Qt::black);
  const int ascent = QFontMetrics(f).ascent();
  for (int code = first; code <= last; ++code) {
    if (IsControl(code)) continue;
    const int top = (code - first) * cell.height;
    painter.setClipRect(0, top, cell.width, cell.height);
    painter.drawText(0, top + ascent, QString(VisibleChar(static_cast<unsigned char>(code))));
  }
  return cells;
}

std::vector<std::string> QtTextSurface::ListFixedFonts() {
  std::vector<std::string> names;
  for (const QString& family : QFontDatabase::families()) {
    // An alias such as "Monospace" is listed too, and is no family that could be asked for by its name.
    const std::string name = family.toStdString();
    if (QFontDatabase::isFixedPitch(family) && !QFontDatabase::isPrivateFamily(family) && FontInstalled(name))
      names.push_back(name);
  }
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
    return QString::compare(QString::fromStdString(a), QString::fromStdString(b), Qt::CaseInsensitive) < 0;
  });
  return names;
}

int QtTextSurface::ScreenWidth() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen ? screen->size().width() : 1024;
}

}  // namespace pixmosa
