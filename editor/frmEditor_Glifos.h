// The glyphs of the drawing at the size at which it is seen, each drawn once.
#pragma once

#include <QFont>
#include <QHash>
#include <QPainter>
#include <QPixmap>

#include "platform/Colour.h"
#include "platform/Font.h"

namespace pixmosa {

// The cell as it is seen, in pixels.
struct Escala {
  int ancho, alto;
  int PorCiento() const { return ancho * 100 / 8; }
};

// From the farthest to the nearest; the cell's own size is kTamanoReal.
inline constexpr Escala kEscalas[] = {{2, 3},   {4, 6},   {6, 9},   {8, 12},
                                      {12, 18}, {16, 24}, {24, 36}, {32, 48}};
inline constexpr int kTamanoReal = 3;

class Glifos {
 public:
  explicit Glifos(const Font& font) : font_(font) {}

  void PonerEscala(const Escala& scale, double pixelRatio);

  // Draws a character in the cell whose top left pixel is `at`; kNoColour is black.
  void Dibujar(QPainter& painter, QPoint at, char32_t c, Colour ink);

 private:
  QPixmap Hacer(char32_t c, Colour ink) const;
  void Pintar(QPainter& painter, char32_t c) const;
  QPoint Margen() const { return {scale_.ancho / 4 + 2, scale_.alto / 4 + 2}; }

  Font font_;
  Escala scale_ = kEscalas[kTamanoReal];
  double ratio_ = 1;
  QHash<quint64, QPixmap> made_;
};

}  // namespace pixmosa
