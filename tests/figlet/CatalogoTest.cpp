#include <gtest/gtest.h>

#include "figlet/Catalogo.h"
#include "platform/AtomicFile.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;

namespace {

std::string Keys(std::string_view lines) {
  std::vector<NodoDeFuentes> nodes;
  FillFontTree(nodes, lines);
  std::string s;
  for (const NodoDeFuentes& n : nodes) s += std::to_string(n.nivel) + ":" + n.key + " ";
  return s;
}

}  // namespace

TEST(Catalogo, LinesMakeNodes) {
  EXPECT_EQ(Keys("# nota\r\n[Uno]\r\n[Uno|Sub]resto\r\nletra\r\n\r\n[Dos]\r\notra\r\n[Dos|Sub]\r\nletra\r\n"),
            "0:Uno 1:Uno;Sub 2:Uno;Sub;letra 0:Dos 2:Uno;Sub;otra 1:Dos;Sub 2:Dos;Sub;letra ");
  EXPECT_EQ(Keys("# solo notas\r\n#\r\n"), "");
  EXPECT_EQ(Keys("suelta\r\n[A|B]\r\nx\r\n[A]\r\n"), "0:A ") << "without their parents nothing is attached";
  EXPECT_EQ(Keys("[A]\r\n[A]\r\n[A|B]\r\nx\r\nx\r\n[A|B]\r\n x\r\n"), "0:A 1:A;B 2:A;B;x 2:A;B; x ")
      << "keys stand once; lines are not trimmed";
  EXPECT_EQ(Keys("[A\r\n[A|B\r\n[]\r\n"), "0: ");
}

TEST(Catalogo, LargeOnesStayWithinBounds) {
  std::string many = "[A]\r\n[A|B]\r\n", shared = "[A]\r\n[A|" + std::string(1 << 20, 'b') + "]\r\n";
  for (int i = 0; i < 50'000; ++i) many += std::to_string(i) + "\r\n";
  for (int i = 0; i < 500; ++i) shared += std::to_string(i) + "\r\n";
  std::vector<NodoDeFuentes> nodes;
  FillFontTree(nodes, many);
  EXPECT_EQ(nodes.size(), 50'002U);
  nodes.clear();
  FillFontTree(nodes, shared);
  EXPECT_LE(nodes.size(), 70U) << "each font's key holds the long name";
}

TEST(Catalogo, AddedFontsStandInTheirOwnCategory) {
  const std::string own =
      "[A\xF1"
      "adidas]\r\n[A\xF1"
      "adidas|Propias]\r\n";
  EXPECT_EQ(ConFuente("", "ñu"), own + "\xF1u\r\n");
  EXPECT_EQ(ConFuente("[A]\r\n[A|B]\r\nc", "c"), "[A]\r\n[A|B]\r\nc\r\n" + own + "c\r\n");
  EXPECT_EQ(ConFuente(own + "b\r\n[C]\r\na\r\n", "a"), own + "a\r\nb\r\n[C]\r\na\r\n");
  EXPECT_EQ(ConFuente(own + "b", "b"), own + "b\r\n") << "listed once";
  EXPECT_EQ(ConFuente(own, "x"), own + "x\r\n");
  EXPECT_EQ(ConFuente("x" + own.substr(own.find("[A", 1)), "x"),
            "x" + own.substr(own.find("[A", 1)) + own + "x\r\n")
      << "not a line of its own";
}

TEST(Catalogo, FontsOfSeveralFolders) {
  const test::TestFolder a, b;
  for (const std::string& file :
       {a.File("beta.flf"), a.File("Alfa.FLF"), b.File("beta.flf"), b.File("gama.flf"), b.File("x.txt")})
    EscribirArchivo(file, "x");
  const std::vector<std::filesystem::path> folders = {a.Path(), b.Path(), a.Path() / "no"};
  EXPECT_EQ(FillFontList(folders), (std::vector<std::string>{"Alfa.FLF", "beta.flf", "gama.flf"}));
  EXPECT_EQ(ArchivoDeFuente(folders, "beta.flf"), a.Path() / "beta.flf");
  EXPECT_EQ(ArchivoDeFuente(folders, "gama.flf"), b.Path() / "gama.flf");
  EXPECT_EQ(ArchivoDeFuente(folders, "nada.flf"), a.Path() / "nada.flf");
  EXPECT_TRUE(ArbolDeFuentes(folders).empty()) << "no catalogue";
}
