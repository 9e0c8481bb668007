#include "platform/qt/QtFont.h"

#include <algorithm>
#include <array>

#include <QFontDatabase>

namespace pixmosa {
namespace {

constexpr std::array<const char*, 6> kStandIns = {"DejaVu Sans Mono", "Bitstream Vera Sans Mono",
                                                  "Liberation Mono",  "Noto Sans Mono",
                                                  "FreeMono",         "Courier New"};

}  // namespace

bool FontInstalled(const std::string& name) {
  return QFontDatabase::hasFamily(QString::fromStdString(name));
}

QString FamilyFor(const std::string& name) {
  if (FontInstalled(name)) return QString::fromStdString(name);
  for (const char* family : kStandIns)
    if (FontInstalled(family)) return QString::fromLatin1(family);
  return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

QFont QtFontOf(const Font& font) {
  QFont f(FamilyFor(font.name));
  f.setPixelSize(std::max(1, PixelHeight(font)));
  f.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::NoAntialias | QFont::NoFontMerging));
  f.setHintingPreference(QFont::PreferFullHinting);
  f.setKerning(false);
  return f;
}

QFont SmoothQtFontOf(const Font& font, int scale) {
  QFont f(FamilyFor(font.name));
  f.setPixelSize(std::max(1, PixelHeight(font)) * scale);
  f.setStyleStrategy(QFont::PreferAntialias);
  f.setHintingPreference(QFont::PreferNoHinting);
  f.setKerning(false);
  return f;
}

}  // namespace pixmosa
