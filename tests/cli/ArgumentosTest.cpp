#include <climits>
#include <gtest/gtest.h>

#include "cli/Argumentos.h"

using namespace pixmosa::cli;

namespace {

const std::vector<Opcion> kOpciones = {
    {"-o", Tipo::Texto, "ARCHIVO", ""},
    {"--fijas", Tipo::Interruptor, "", ""},
    {"--luz", Tipo::Entero, "N", "", -100, 100},
    {"--semilla", Tipo::Entero, "N", "", 0, INT_MAX},
    {"--metodo", Tipo::Eleccion, "", "", 0, 0, {"grises", "bordes", "antialias"}},
};

Argumentos Leer(const std::vector<std::string>& words) {
  return {words, kOpciones};
}

std::string Fallo(const std::vector<std::string>& words) {
  try {
    Leer(words).ExigirOperandos(1, 1, "la imagen");
    return "";
  } catch (const ErrorDeUso& e) {
    return e.what();
  }
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

TEST(Argumentos, NamesWhatIsWrong) {
  struct Row {
    std::vector<std::string> words;
    std::string fault;
  };
  for (const Row& r :
       {Row{{"x"}, ""},
        {{}, "falta la imagen"},
        {{"x", "y"}, "sobra el operando \"y\""},
        {{"--no"}, "no existe la opción \"--no\""},
        {{"--no=1"}, "no existe la opción \"--no\""},
        {{"x", "-o"}, "falta el valor de la opción -o"},
        {{"--fijas=1"}, "la opción --fijas no lleva valor"},
        {{"--luz", "101"}, "la opción --luz espera un número entero de -100 a 100, no \"101\""},
        {{"--luz="}, "la opción --luz espera un número entero de -100 a 100, no \"\""},
        {{"--luz=1.5"}, "la opción --luz espera un número entero de -100 a 100, no \"1.5\""},
        {{"--luz=99999999999"}, "la opción --luz espera un número entero de -100 a 100, no \"99999999999\""},
        {{"--semilla=-1"}, "la opción --semilla espera un número entero de 0 en adelante, no \"-1\""},
        {{"--metodo=x"}, "la opción --metodo espera grises, bordes o antialias, no \"x\""}})
    EXPECT_EQ(Fallo(r.words), r.fault);
}
