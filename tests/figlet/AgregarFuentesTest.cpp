#include <algorithm>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "figlet/AgregarFuentes.h"
#include "figlet/Catalogo.h"
#include "figlet/Reescribir.h"
#include "platform/AtomicFile.h"
#include "platform/ProgramFolder.h"
#include "tests/support/FigletFont.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;
using test::StandardFont;
namespace fs = std::filesystem;

class AgregarFuentesTest : public testing::Test {
 protected:
  test::TestFolder folder;
  std::vector<fs::path> folders{"/proc/no", folder.Path() / "Propias"};
  std::vector<ArchivoComprimido> zip;  // what every archive holds

  std::string File(const std::string& name, const std::string& bytes) {
    fs::create_directories(fs::path(folder.File(name)).parent_path());
    EscribirArchivo(folder.File(name), bytes);
    return folder.File(name);
  }
  // The sentences, without the test's own folder in them.
  std::string Add(const std::vector<fs::path>& chosen) {
    std::string all;
    for (const FuenteAgregada& f : AgregarFuentes(folders, chosen, [&](std::string_view) { return zip; }))
      all += f.frase + (f.hayQueDecirlo ? "!\n" : "\n");
    for (std::size_t at; (at = all.find(folder.Path().string() + "/")) != std::string::npos;)
      all.erase(at, folder.Path().string().size() + 1);
    return all;
  }
  std::string Listed() {
    std::string fonts;
    for (const NodoDeFuentes& n : ArbolDeFuentes(folders))
      if (n.nivel == NodoDeFuentes::kFuente) fonts += n.text + " ";
    return fonts;
  }
};

TEST_F(AgregarFuentesTest, NeitherFontTakesTheOthersName) {
  const std::string other = StandardFont("Ä@\nx@@\n");
  folders.insert(folders.begin() + 1, folder.Path() / "Programa");
  const std::string theirs = File("Programa/Sombra.flf", "la del programa");
  EXPECT_EQ(Add({File("Sombra.flf", StandardFont())}),
            "Se ha añadido \"Sombra.flf\" como \"Sombra 2\": ya hay otra fuente \"Sombra\".!\n");
  EXPECT_EQ(Add({File("otra/Sombra.TLF", other), folder.File("Sombra.flf"), File("Luz.flf", other)}),
            "Se ha añadido \"otra/Sombra.TLF\" como \"Sombra 3\": ya hay otra fuente \"Sombra\".!\n"
            "\"Sombra.flf\" ya está entre las fuentes como \"Sombra 2\".!\n"
            "Se ha añadido \"Luz.flf\" como \"Luz\".\n");
  EXPECT_EQ(LeerArchivo(theirs), "la del programa");
  EXPECT_EQ(LeerArchivo(folder.File("Programa/Sombra 2.flf")), ReescribirFuente(StandardFont(), "f").bytes);
  EXPECT_EQ(Listed(), "Luz Sombra 3 Sombra 2 ");
  folders = {"/proc/no"};
  EXPECT_EQ(Add({File("s.flf", other)}),
            "No se ha añadido \"s.flf\". No se ha podido escribir en \"/proc/no\": no existe.!\n");
}

TEST_F(AgregarFuentesTest, SaysWhatIsNotAsItWas) {
  const std::string file = File("a.flf", StandardFont("█@\n▀▒@@\nfin\n"));
  fs::create_directory(folder.File("vacía"));
  EXPECT_EQ(
      Add({file, folder.File("no-esta.flf"), folder.File("vacía")}),
      "En \"vacía\" no hay ninguna fuente FIGlet.!\n"
      "Se ha añadido \"a.flf\" como \"a\". 3 caracteres de su dibujo se han reemplazado por otros parecidos. "
      "La última línea no es de ningún carácter y se ha pasado por alto.!\n"
      "No se ha podido leer \"no-esta.flf\": no existe.!\n");
  for (const char* name : {"a[1]", "a]", "a|b", "a;b", "#a", "a\nb", "a\rb", "日本", "\xFF", ""}) {
    const std::string bad = std::string("malos/") + name + ".flf";
    EXPECT_TRUE(
        Add({File(bad, StandardFont())}).starts_with("No se ha añadido \"" + bad + "\": el catálogo no"));
  }
  EXPECT_EQ(Listed(), "a ");
  std::vector<FuenteAgregada> many(25, {FuenteAgregada::kAgregada, "", "", 0, "x.", true});
  many[3].hayQueDecirlo = false;
  const std::string text = ResumenDeFuentes(many);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 20);
  EXPECT_TRUE(text.ends_with("x.\r\nY 4 más."));
}

TEST_F(AgregarFuentesTest, EveryFontOfAZipAndOfAFolder) {
  const std::string chosen = File("z.zip", "PK\x03\x04"), font = StandardFont(), added = "Se ha añadido \"",
                    refused = "No se ha añadido \"z.zip";
  zip = {{"LEEME.txt", "Fuentes", ""},
         {"serie/uno.flf", font, ""},
         {"serie\\dos.TLF", font + "x", ""},
         {"__MACOSX/._uno.flf", "\x05", ""},
         {"tres.flf", "", "está dañado"},
         {"foto.png", "", "está cifrado"},
         {"cuatro.flf", "no", ""}};
  EXPECT_EQ(Add({chosen}),
            added + "z.zip: serie/uno.flf\" como \"uno\".\n" + added +
                "z.zip: serie\\dos.TLF\" como \"dos\". La última línea no es de ningún carácter y "
                "se ha pasado por alto.!\n" +
                refused + "\": \"tres.flf\" está dañado.!\n" + refused +
                ": cuatro.flf\": línea 1: no empieza como una fuente FIGlet (flf2).!\n");
  zip = {{"sin nombre", font, ""}};
  EXPECT_EQ(Add({File("cinco.flf", "PK\x03\x04")}), added + "cinco.flf: sin nombre\" como \"cinco\".\n");
  zip.clear();
  EXPECT_EQ(Add({chosen}), refused + "\": el archivo zip no contiene ninguna fuente FIGlet.!\n");
  for (const char* name : {"carpeta/b.flf", "carpeta/a.tlf", "carpeta/LEEME"}) File(name, font);
  EXPECT_EQ(Add({folder.File("carpeta")}),
            added + "carpeta/a.tlf\" como \"a\".\n" + added + "carpeta/b.flf\" como \"b\".\n");
}

TEST_F(AgregarFuentesTest, ThirtyProcessesAtOnceLoseNothing) {
  for (int i = 0; i < 30; ++i) {
    const std::string file = File(std::to_string(i) + "/F.flf", StandardFont(std::to_string(i) + "@\nx@@\n"));
    if (::fork() > 0) continue;
    Add({file});
    ::_exit(0);
  }
  while (::wait(nullptr) > 0) {
  }
  const std::string listed = Listed();
  EXPECT_EQ(std::count(listed.begin(), listed.end(), 'F'), 30) << listed;
  EXPECT_EQ(FillFontList(folders).size(), 30U);
}

TEST_F(AgregarFuentesTest, WithoutHomeTheSystemKnowsTheFolder) {
  ::setenv("XDG_DATA_HOME", "relativa", 1);
  ::unsetenv("HOME");
  for (const fs::path& f : FontFolders()) EXPECT_TRUE(f.is_absolute()) << f;
  ::setenv("HOME", "/casa", 1);
  EXPECT_EQ(FontFolders().at(1), "/casa/.local/share/pixmosa/Fonts");
  ::setenv("XDG_DATA_HOME", "/datos", 1);
  EXPECT_EQ(FontFolders().at(1), "/datos/pixmosa/Fonts");
}
