// Sheets: alphabets drawn by hand, as text.
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace pixmosa::letras {

using Filas = std::vector<std::string>;

inline constexpr int kPrimero = 32, kUltimo = 255;

// Shapes that no code of the page stands for lie below 32, at their place in this text: the dotless i, the
// marks that lie over letters only, and the lower capitals that carry marks.
inline constexpr std::string_view kAparte = "ıˇ˚ᴀᴇɪɴᴏꜱᴜʏᴢ";
inline constexpr std::size_t kSinPunto = 1, kCaron = 2, kAnillo = 3;

// The shape of every code of Windows-1252, all of `filas` rows, `linea` of them over the base line, without
// blank columns at the sides; a shape that is not drawn has no rows. Marks stand `hueco` rows over a letter.
struct Hoja {
  int filas = 0, linea = 0, hueco = 0;
  std::array<Filas, 256> formas;
  Filas& operator[](std::size_t code) { return formas[code]; }
  const Filas& operator[](std::size_t code) const { return formas[code]; }
};

// Reads "NAME.txt". The first line counts: "filas 10 linea 8 hueco 1 blanco 3", and "resto NAME 2" names the
// sheet that has what this one lacks, each of its columns twice ("inclina": made to lean). Then come blocks
// of a line that has each character (UTF-8) over the left edge of its shape, and the rows. What is not drawn
// is put together from what is (letters with marks, paired signs). Throws std::runtime_error for a sheet that
// cannot be read.
Hoja LeerHoja(const std::filesystem::path& folder, const std::string& name);

// The lower capital that carries the marks of a capital, or the letter itself.
std::size_t Portadora(const Hoja& sheet, std::size_t letter);

// Without blank columns at the sides; all blank, it keeps one.
Filas Recortadas(const Filas& rows);

bool EsBlanca(std::string_view row);

}  // namespace pixmosa::letras
