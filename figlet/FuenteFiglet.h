// A FIGlet font as the layout beside the specified one takes it: characters of all Unicode and the header's
// rules of layout, after the standard "FIGfont Version 2" (J. Cowan and P. Burton, 1997).
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "figlet/basFigLet.h"

namespace pixmosa {

// Stands for the font's hard blank in artwork; no character has this number.
inline constexpr char32_t kBlancoDuro = 0x110000;

// No row of a character is longer.
inline constexpr std::size_t kMasColumnasDeLetra = 4096;

// A character's rows; a shorter one is blank to the length of the longest.
using Glifo = std::vector<std::u32string>;

// What the header's "full layout" is the sum of.
enum Regla : std::int32_t {
  kIguales = 1,
  kSubrayado = 2,
  kJerarquia = 4,
  kParejas = 8,
  kEquis = 16,
  kBlancosDuros = 32,
  kReglasHorizontales = 63,
  kJuntarHorizontal = 64,
  kFundirHorizontal = 128,
  kIgualesVertical = 256,
  kSubrayadoVertical = 512,
  kJerarquiaVertical = 1024,
  kLineaHorizontal = 2048,
  kLineaVertical = 4096,
  kReglasVerticales = 7936,
  kJuntarVertical = 8192,
  kFundirVertical = 16384,
};

struct Disposicion {
  std::int32_t reglas = 0;  // a sum of Regla; full width and height without any
  bool haciaLaIzquierda = false;
};

struct FuenteFiglet {
  std::size_t altura = 1;
  Disposicion disposicion;
  std::map<char32_t, Glifo> letras;  // each of `altura` rows
  std::string comentario;            // in the 8-bit code page, each line preceded by CR LF

  // The character; where the font lacks it the one that it has for such, or none at all.
  const Glifo& De(char32_t c) const;
};

// The numbers of a header line behind its hard blank; a wrong one ends them.
std::vector<std::int32_t> NumerosDeCabecera(std::string_view text);

// What the fourth number says, and the sixth and seventh where they are there.
Disposicion DisposicionDe(std::span<const std::int32_t> header);

// What the specified reader has read, "$" as hard blank, with the layout of the header's line.
FuenteFiglet FuenteLeida(const BasFigLet& font);

// A standard font straight from the bytes of its file: "flf2" or "tlf2", its own hard blank, end marks and
// code tags, any line ends, in UTF-8 or the 8-bit code page. A font of the specified reader's own form has
// its characters in the order of the code page. `name` stands for the file in messages. Throws
// FuenteRechazada.
FuenteFiglet LeerFuente(std::string_view font, const std::string& name);

// Every letter of Spanish and its signs (ñ, accented vowels, ü, ¿ ¡ « » €), small and capital, has something
// to be seen.
bool CompletaParaEspanol(const FuenteFiglet& font);

// Columns of its longest row.
std::size_t AnchoDe(const Glifo& letter);

// Columns of a small letter, on the average.
std::size_t AnchoDeLetra(const FuenteFiglet& font);

}  // namespace pixmosa
