#include <array>
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
  for (const auto& [lines, keys] : {
           std::pair{
               "# nota\r\n[Uno]\r\n[Uno|Sub]resto\r\nletra\r\n\r\n[Dos]\r\notra\r\n[Dos|Sub]\r\nletra\r\n",
               "0:Uno 1:Uno;Sub 2:Uno;Sub;letra 0:Dos 2:Uno;Sub;otra 1:Dos;Sub 2:Dos;Sub;letra "},
           {"# solo notas\r\n#\r\n", ""},
           {"suelta\r\n[A|B]\r\nx\r\n[A]\r\n", "0:A "},  // without their parents nothing is attached
           {"[A]\r\n[A]\r\n[A|B]\r\nx\r\nx\r\n[A|B]\r\n x\r\n", "0:A 1:A;B 2:A;B;x 2:A;B; x "},
           {"[A\r\n[A|B\r\n[]\r\n", "0: "},
       })
    EXPECT_EQ(Keys(lines), keys);
  std::string many = "[A]\r\n[A|B]\r\n", shared = "[A]\r\n[A|" + std::string(1 << 20, 'b') + "]\r\n";
  for (int i = 0; i < 500; ++i) shared += std::to_string(i) + "\r\n";
  for (int i = 0; i < 50'000; ++i) many += std::to_string(i) + "\r\n";
  std::vector<NodoDeFuentes> nodes, large;
  FillFontTree(nodes, many);
  EXPECT_EQ(nodes.size(), 50'002U);
  FillFontTree(large, shared);
  EXPECT_LE(large.size(), 70U) << "each font's key holds the long name";
}

TEST(Catalogo, AddedFontsStandInTheirOwnCategory) {
  const std::string own = "[A\361adidas]\r\n[A\361adidas|Propias]\r\n", sub = own.substr(own.find("[A", 1));
  for (const auto& [before, name, after] : std::vector<std::array<std::string, 3>>{
           {"", "ñu", own + "\361u\r\n"},
           {"[A]\r\n[A|B]\r\nc", "c", "[A]\r\n[A|B]\r\nc\r\n" + own + "c\r\n"},
           {own + "b\r\n[C]\r\na\r\n", "a", own + "a\r\nb\r\n[C]\r\na\r\n"},
           {own + "[C]\r\na\r\n", "a", own + "a\r\n[C]\r\na\r\n"},
           {own + "b", "b", own + "b\r\n"},               // listed once
           {"x" + sub, "x", "x" + sub + own + "x\r\n"}})  // not a line of its own
    EXPECT_EQ(ConFuente(before, name), after);
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
  for (const test::TestFolder* f : {&a, &b})
    EscribirArchivo(f->File("categoriestree.txt"), "[A]\r\n[A|B]\r\nbeta\r\n");
  EXPECT_EQ(ArbolDeFuentes(folders).size(), 3U) << "keys stand once";
}
