#include <gtest/gtest.h>

#include "figlet/Agregar.h"
#include "figlet/Catalogo.h"
#include "figlet/basFigLet.h"
#include "platform/AtomicFile.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;

namespace {

// A standard font of two rows: each required character shows itself and a hard blank, then the additional
// ones and three code-tagged ones.
std::string Standard(char hardBlank, const std::string& mark, const std::string& end,
                     bool additional = true) {
  std::string font = std::string("flf2a") + hardBlank + " 2 1 8 15 2 0 143 3" + end + "Hecha, para probar" +
                     end + "$ y @" + end;
  const auto glyph = [&](const std::string& art) {
    font += art + mark + end + hardBlank + "_" + mark + mark + end;
  };
  for (char c = 32; c < 127; ++c) glyph(std::string(1, c));
  if (!additional) return font;
  for (int i = 0; i < 7; ++i) glyph("a" + std::to_string(i));
  font += "0x00F1 LATIN SMALL LETTER N WITH TILDE" + end;
  glyph("n~");
  font += "8364  EURO SIGN" + end;
  glyph("E=");
  font += "-5 nothing" + end;
  glyph("??");
  font += "0277 octal" + end;
  glyph("?%");
  return font;
}

std::string Shown(const std::string& rewritten, const std::string& text) {
  BasFigLet font;
  std::string failures;
  LoadFontBytes(font, rewritten, [&](const std::string& f) { failures += f; });
  return failures + RenderBanner(font, text);
}

std::string Fault(const std::string& font) {
  try {
    ReescribirFuente(font, "f.flf");
    return "";
  } catch (const FuenteRechazada& e) {
    return e.what();
  }
}

}  // namespace

TEST(Agregar, EveryAwkwardVariantIsReadWhole) {
  for (const char hardBlank : {'$', '#', '\x7F'})
    for (const char* mark : {"@", "!", "@@"})
      for (const char* end : {"\n", "\r\n", "\r"}) {
        const std::string own = ReescribirFuente(Standard(hardBlank, mark, end), "f");
        EXPECT_EQ(Shown(own, "aB"), "aB\r\n _ _\r\n") << hardBlank << mark;
        EXPECT_EQ(Shown(own, "\xC4\xDF"), "a0a6\r\n _ _\r\n") << "additional characters at their own codes";
        EXPECT_EQ(Shown(own, "\xF1\x80\xBF"), "n~E=?%\r\n _ _ _\r\n")
            << "code tags: hexadecimal, decimal, octal";
        EXPECT_EQ(Shown(own, "\xE1"), "\r\n\r\n") << "what the font has not is empty";
        EXPECT_TRUE(own.starts_with("flf2a$ 2 1 4 -1 2\r\nHecha, para probar\r\n$ y @\r\n"));
      }
}

TEST(Agregar, DollarsOfTheArtworkStayReadable) {
  EXPECT_EQ(Shown(ReescribirFuente(Standard('#', "@", "\n"), "f"), "$"), "S\r\n _\r\n");
  EXPECT_EQ(Shown(ReescribirFuente(Standard('$', "@", "\n", false), "f"), "z"), "z\r\n _\r\n")
      << "required ones alone";
}

TEST(Agregar, RefusalsNameTheLineAndTheFault) {
  const std::string head = "No se ha añadido \"f.flf\": línea ";
  EXPECT_EQ(Fault(""), head + "1: el archivo termina antes de la cabecera.");
  EXPECT_EQ(Fault("hola\n"), head + "1: no empieza como una fuente FIGlet (flf2).");
  EXPECT_EQ(Fault("flf2a$ 2 1 8\n"), head + "1: a la cabecera le faltan números.");
  EXPECT_EQ(Fault("flf2a$ 999999999 1 8 15 0\n"), head + "1: la altura 999999999 no está entre 1 y 256.");
  EXPECT_EQ(Fault("flf2a$ 1 1 8 15 -2\n"), head + "1: el número de líneas de comentario es negativo.");
  EXPECT_EQ(Fault("flf2a$ 1 1 8 15 900000\nx\n"),
            head + "3: el archivo termina antes de acabar los comentarios.");
  EXPECT_EQ(Fault("flf2a$ 1 1 8 15 0\na@@\n\n"), head + "3: falta la marca de fin de fila.");
  EXPECT_EQ(Fault("flf2a$ 1 1 8 15 0\na@@\nb@@\n"),
            head + "4: el archivo termina antes de acabar un carácter.");
  EXPECT_EQ(Fault(Standard('$', "@", "\n") + "xyz\na@\nb@@\n"),
            head + "220: se esperaba el código de un carácter.");
}

TEST(Agregar, LandsInTheFirstFolderThatCanBeWritten) {
  const test::TestFolder folder;
  const std::vector<std::filesystem::path> folders = {"/proc/no", folder.Path() / "Propias"};
  EscribirArchivo(folder.File("x"), "");
  const std::string own = ReescribirFuente(Standard('$', "@", "\n"), "f");
  GuardarFuente(folders, "una.flf", own);
  GuardarFuente(folders, "dos.flf", own);
  GuardarFuente(folders, "una.flf", own);
  EXPECT_EQ(LeerArchivo(folder.File("Propias/una.flf")), own);
  std::string fonts;
  for (const NodoDeFuentes& n : ArbolDeFuentes(folders))
    if (n.nivel == NodoDeFuentes::kFuente) fonts += n.key + " ";
  EXPECT_EQ(fonts,
            "A\xF1"
            "adidas;Propias;dos A\xF1"
            "adidas;Propias;una ");
  EXPECT_THROW(GuardarFuente({"/proc/no"}, "una.flf", own), FileError);
}
