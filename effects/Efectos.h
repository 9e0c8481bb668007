// The effect workers, one for each number of the effect table. Rows from the top, columns from the left;
// blue, green and red apart with the same formula unless a line says otherwise; the fourth byte stays. x \ y
// divides toward zero, round() rounds half to even, S8 is the sum of the eight neighbours. An argument
// outside its range counts as the nearest end of it.
#pragma once

#include <cstdint>

#include "effects/PixelBuffers.h"

namespace pixmosa {

using Worker = void (*)(PixelBuffers&, std::int32_t argument);

// --- Colores.cpp: each pixel on its own ---
void Negativo(PixelBuffers& b, std::int32_t);           // 2: 255 - c; the bar shows only the final 100
void EscalaDeGrises(PixelBuffers& b, std::int32_t);     // 12: (R + G + B) \ 3
void IntercambiarRGB(PixelBuffers& b, std::int32_t i);  // 16: order i = 1..5; any other leaves the picture
void FotoAntigua(PixelBuffers& b, std::int32_t);        // 32: sepia

// --- Intensidad.cpp ---
void Brillo(PixelBuffers& b, std::int32_t a);      // 14: c x (a + 100) / 100, a = -100..100 percent
void Saturacion(PixelBuffers& b, std::int32_t a);  // 30: distance from the grey x (a + 100) / 100, -100..100
void Gamma(PixelBuffers& b, std::int32_t a);       // 31: c / 255 to the power 1 / a, a = 1..100

// --- Contraste.cpp ---
// 17: distance from the mean grey x (a + 100) / 100, -100..100; what a component has too much or too little
// goes to the other two.
void Contraste(PixelBuffers& b, std::int32_t a);

// --- BlancoYNegro.cpp ---
void Metodo1(PixelBuffers& b, std::int32_t colour);  // 18: black where all parts lie below those of a colour
void Metodo2(PixelBuffers& b, std::int32_t);  // 19: sharpened grey against the mean, a quarter carried on
void Metodo3(PixelBuffers& b, std::int32_t);  // 20: ordered dither, 4 x 4 (Bayer 1973)

// --- Difusion.cpp: error diffusion against the mean grey, a = 1..1000 damps the carried error by 10 / a ---
void Metodo4(PixelBuffers& b, std::int32_t a);  // 21: Floyd and Steinberg 1976
void Metodo5(PixelBuffers& b, std::int32_t a);  // 22: Burkes 1988
void Metodo6(PixelBuffers& b, std::int32_t a);  // 23: Stucki 1981

// --- EnSitio.cpp: in place, interior only ---
void Nitidez(PixelBuffers& b, std::int32_t a);      // 1: (c (a + 24) - 2 S8) \ (a + 8), a = 0..100
void Desenfocar(PixelBuffers& b, std::int32_t);     // 3: S8 \ 8
void Humo(PixelBuffers& b, std::int32_t);           // 5: the pixel and its four neighbours \ 5
void RealceBorde(PixelBuffers& b, std::int32_t a);  // 6: (c (a + 9) - S8) \ (a + 1), a = 1..100

// --- Bordes.cpp: from the source, interior only; `colour` gives each component's offset ---
void Contornos(PixelBuffers& b, std::int32_t colour);  // 7: 8 c - S8 + offset
void Realzar(PixelBuffers& b,
             std::int32_t colour);  // 8: |c - lower right + offset|; last row and column stay
void RealzarMas(PixelBuffers& b, std::int32_t colour);  // 9: left column - right column + offset
void Grabado(PixelBuffers& b, std::int32_t colour);     // 10: |lower right - c + offset|; the same
void MasGrabado(PixelBuffers& b, std::int32_t colour);  // 11: right column - left column + offset
void Relieve(PixelBuffers& b, std::int32_t);            // 13: weighted sum \ 2 + 50

// --- Rango.cpp: order statistics of the 3 x 3 block, from the source, interior only ---
void Dilatar(PixelBuffers& b, std::int32_t);          // 25: maximum
void Erosionar(PixelBuffers& b, std::int32_t);        // 26: minimum
void ContornosUnidos(PixelBuffers& b, std::int32_t);  // 27: c - minimum
// 28: median (Tukey 1977). Nothing else in the table takes away specks and noise while edges stay sharp, and
// both help a picture that is about to become text; it also takes back what "Añadir ruido" does.
void Mediana(PixelBuffers& b, std::int32_t);

// --- Acuarela.cpp ---
void Acuarela(PixelBuffers& b, std::int32_t);  // 24: mean of the most uniform corner block (Kuwahara 1976)

// --- Azar.cpp ---
void Difuminar(PixelBuffers& b, std::int32_t a);  // 4: in place, a pixel from up to a / 2 away, 0..100 pixels
void AñadirRuido(PixelBuffers& b, std::int32_t a);  // 29: from the source, c + [-a, a + 1), a = 1..100 levels

// --- Pixelizar.cpp ---
void Pixelizar(PixelBuffers& b, std::int32_t n);  // 15: mean of each n x n block from the top left, n = 1..20

}  // namespace pixmosa
