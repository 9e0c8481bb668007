#include "platform/qt/QtTextSurface.h"

#include <algorithm>
#include <iterator>

#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
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

// One character as text to draw; nothing for one that no font draws.
QString Drawable(char32_t c) {
  if (c < 32 || c - 127 <= 159 - 127) return {};
  return c == 0xAD ? QStringLiteral("-") : QString::fromUcs4(&c, 1);
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

std::vector<std::uint8_t> QtTextSurface::PrintSmooth(const Font& font, Extent cell, int scale,
                                                     std::u32string_view characters) {
  const int width = cell.width * scale, height = cell.height * scale;
  const QFont f = SmoothQtFontOf(font, scale);
  const QPointF start(0, QFontMetrics(QtFontOf(font)).ascent() * scale);
  std::vector<std::uint8_t> ink;
  ink.reserve(characters.size() * width * height);
  QImage image(width, height, QImage::Format_Grayscale8);
  for (const char32_t c : characters) {
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(f);
    painter.setPen(Qt::black);
    painter.drawText(start, Drawable(c));
    painter.end();
    for (int y = 0; y < height; ++y)
      std::transform(image.constScanLine(y), image.constScanLine(y) + width, std::back_inserter(ink),
                     [](uchar light) { return static_cast<std::uint8_t>(255 - light); });
  }
  return ink;
}

std::string QtTextSurface::Outline(const Font& font, Extent, char32_t character) {
  QPainterPath path;
  path.addText(0, QFontMetrics(QtFontOf(font)).ascent(), SmoothQtFontOf(font, 1), Drawable(character));
  if (path.elementCount() < 2) return {};
  std::string data;
  const auto put = [&data](char command, int first, int points, const QPainterPath& p) {
    data += command;
    for (int i = first; i < first + points; ++i)
      data += (i > first ? " " : "") + QString::number(p.elementAt(i).x, 'f', 2).toStdString() + " " +
              QString::number(p.elementAt(i).y, 'f', 2).toStdString();
  };
  for (int i = 0; i < path.elementCount(); ++i) {
    const QPainterPath::ElementType type = path.elementAt(i).type;
    if (type == QPainterPath::MoveToElement && i > 0) data += 'Z';
    if (type == QPainterPath::CurveToElement) {
      put('C', i, 3, path);
      i += 2;
    } else {
      put(type == QPainterPath::MoveToElement ? 'M' : 'L', i, 1, path);
    }
  }
  return data + 'Z';
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
