#include "programa/Ajustes.h"

#include <algorithm>

#include "platform/Rounding.h"

namespace pixmosa {
namespace {

void MedirBrillo(Programa& p) {
  MeasureCharacterSet(p.basAscii, p.ajustes.font, p.superficie);
  BuildGrayLookup(p.basAscii);
}

void ContarColumnas(Programa& p) {
  if (p.columnas > 0) {
    p.basAscii.AsciiColumns = p.columnas;
  } else {
    ComputeColumnCount(p.basAscii, p.ajustes.size, p.superficie.ScreenWidth());
  }
}

}  // namespace

void Medir(Programa& p) {
  RebuildCharacterTables(p.basAscii, p.ajustes, p.superficie);
  ContarColumnas(p);
}

void PonerFuente(Programa& p, const Font& font) {
  p.ajustes.font = font;
  MedirBrillo(p);
  ContarColumnas(p);
}

void PonerPaleta(Programa& p, int palette) {
  p.ajustes.palette = palette;
  RebuildCharacterTables(p.basAscii, p.ajustes, p.superficie);
}

void PonerNegativo(Programa& p, bool negative) {
  p.basAscii.CountedColour = negative ? kBlack : kWhite;
  MedirBrillo(p);
}

void PonerTamaño(Programa& p, int percent) {
  p.ajustes.size = percent;
  p.columnas = 0;
  ContarColumnas(p);
}

void PonerColumnas(Programa& p, int columns) {
  const double whole = static_cast<double>(p.superficie.ScreenWidth()) / p.basAscii.CellWidth;
  p.ajustes.size = std::clamp(RoundHalfEven(100 * columns / whole), 1, kMayorPorcentaje);
  p.columnas = columns;
  ContarColumnas(p);
}

void PonerLuminosidad(Programa& p, int luminosity) {
  p.ajustes.luminosity = luminosity;
}

void PonerConversion(Programa& p, int method) {
  p.ajustes.conversion = method;
}

void PonerCaracteres(Programa& p, std::string_view utf8) {
  p.ajustes.caracteres = JuegoDeCaracteres(utf8);
  RebuildCharacterTables(p.basAscii, p.ajustes, p.superficie);
}

void PonerContrasteLocal(Programa& p, int percent) {
  p.ajustes.formas.contrasteLocal = percent;
}

void PonerNitidez(Programa& p, int sharpness) {
  p.ajustes.formas.nitidez = sharpness;
}

void PonerAjusteDeTono(Programa& p, bool adjust) {
  p.ajustes.formas.ajustarTono = adjust;
}

void PonerProporcion(Programa& p, double proportion) {
  p.basAscii.Proporcion = proportion;
}

}  // namespace pixmosa
