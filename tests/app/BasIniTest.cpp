#include <gtest/gtest.h>

#include "app/basINI.h"
#include "platform/AtomicFile.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;

TEST(BasIni, WritesTheTenValuesInTheirOrder) {
  const test::TestFolder folder;
  const std::filesystem::path file = IniPath(folder.Path());
  EXPECT_EQ(file.filename(), "KTV.ini");
  SaveSettings(file, {.colorFondoAscii = 16777215,
                      .colorTextoAscii = 255,
                      .tamañoAscii = 150,
                      .paletaAscii = 2,
                      .luminosidadAscii = -40,
                      .asciiNegativado = true,
                      .paletaWeb = 1,
                      .previewAscii = true,
                      .fuente = {"Lucida Console", 6}});
  EXPECT_EQ(
      LeerArchivo(file),
      "[Main]\r\nColorFondoAscii=16777215\r\nColorTextoAscii=255\r\nTama\xF1oAscii=150\r\nPaletaAscii=2\r\n"
      "LuminosidadAscii=-40\r\nAsciiNegativado=1\r\nPaletaWeb=1\r\nPreviewAscii=1\r\n"
      "[Fuente]\r\nNombre=Lucida Console\r\nTama\xF1o=6\r\n");
  const std::string once = LeerArchivo(file);
  SaveSettings(file, {.fuente = {"Otra", 9}});
  SaveSettings(file, {.colorTextoAscii = 255,
                      .tamañoAscii = 150,
                      .paletaAscii = 2,
                      .luminosidadAscii = -40,
                      .asciiNegativado = true,
                      .paletaWeb = 1,
                      .previewAscii = true});
  EXPECT_EQ(LeerArchivo(file), once) << "one copy of each key with the latest values";
}

TEST(BasIni, KeepsWhatElseIsThere) {
  struct Row {
    const char* what;
    std::string before, after;
  };
  for (const Row& r : {
           Row{"empty", "", "[Main]\r\nClave=7\r\n"},
           Row{"no end of line", "[Otra]\r\nx=1", "[Otra]\r\nx=1\r\n[Main]\r\nClave=7\r\n"},
           Row{"case and blanks", " [ mAIN ] ; nota\r\n cLAVE = 3 \r\n", " [ mAIN ] ; nota\r\n cLAVE =7\r\n"},
           Row{"comments and other keys", "; uno\r\n[Main]\r\n;Clave=1\r\nOtra=2\r\n\r\n[Fin]\r\nClave=9\r\n",
               "; uno\r\n[Main]\r\n;Clave=1\r\nOtra=2\r\nClave=7\r\n\r\n[Fin]\r\nClave=9\r\n"},
           Row{"line feeds alone", "[Main]\nClave=1\nb=2\n", "[Main]\nClave=7\nb=2\n"},
           Row{"the first of two sections", "[Main]\r\n[Main]\r\nClave=1\r\n",
               "[Main]\r\nClave=7\r\n[Main]\r\nClave=1\r\n"},
           Row{"a bracket without its end", "[Main\r\nClave=1", "[Main\r\nClave=7"},
           Row{"value with equals", "[Main]\r\nClave=a=b\r\n", "[Main]\r\nClave=7\r\n"},
       })
    EXPECT_EQ(WithIniValue(r.before, {"Main", "Clave", "7"}), r.after) << r.what;
  EXPECT_EQ(WithIniValue("[M]\r\ntama\xD1o=1\r\n", {"m", "Tama\xF1o", "2"}), "[M]\r\ntama\xD1o=2\r\n");
}

TEST(BasIni, FailuresAreSilent) {
  EXPECT_FALSE(WriteIniValue("/no/such/folder/KTV.ini", {"a", "b", "c"}));
  SaveSettings("/no/such/folder/KTV.ini", {});
}
