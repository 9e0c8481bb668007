#include <gtest/gtest.h>

#include "cli/Argumentos.h"
#include "cli/Frases.h"

using namespace pixmosa::cli;

namespace {

const std::vector<Opcion> kOpciones = {
    {"-o", Tipo::Texto, "ARCHIVO", ""},
    {"--fijas", Tipo::Interruptor, "", ""},
    {"--luz", Tipo::Entero, "N", "", -100, 100},
    {"--metodo", Tipo::Eleccion, "", "", 0, 0, {"grises", "bordes", "antialias"}},
};

Argumentos Leer(const std::vector<std::string>& words) {
  return {words, kOpciones};
}

}  // namespace

TEST(Argumentos, OptionsBeforeAndAfterOperands) {
  const Argumentos a = Leer({"--luz", "-50", "foto.jpg", "-o=a=b.txt", "--fijas", "-", "--", "--luz"});
  EXPECT_EQ(a.Operandos(), (std::vector<std::string>{"foto.jpg", "-", "--luz"}));
  EXPECT_EQ(a.Entero("--luz", 0), -50);
  EXPECT_EQ(a.Texto("-o"), "a=b.txt");
  EXPECT_TRUE(a.Tiene("--fijas"));
  EXPECT_FALSE(a.Tiene("--metodo"));
  EXPECT_EQ(Leer({"--luz=1", "--luz=2"}).Entero("--luz", 0), 2) << "the last one counts";
}

TEST(Frases, NothingThatATerminalActsOnIsShown) {
  for (const auto& [text, shown] : std::vector<std::pair<std::string, std::string>>{
           {"¿ñ? €.png", "¿ñ? €.png"},
           {"a\nb\r\tc", "a\\nb\\r\\tc"},
           {"\x1B[2J\x7F", "\\x1B[2J\\x7F"},
           {"\xF1\xE2\x82z", "\\xF1\\xE2\\x82z"},                  // no UTF-8
           {"\xC2\x9B\xE2\x80\xAE", "\\xC2\\x9B\\xE2\\x80\\xAE"},  // a control, right to left
           {"\xEF\xBF\xBD", "\xEF\xBF\xBD"}})
    EXPECT_EQ(Visible(text), shown);
}
