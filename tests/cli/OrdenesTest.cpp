#include <gtest/gtest.h>
#include <map>
#include <sstream>

#include "cli/Orden.h"
#include "tests/support/RunProgram.h"

using namespace pixmosa;
using test::Cli;
using test::Resultado;

TEST(Ordenes, EveryOrderIsExplainedWithAnExample) {
  EXPECT_EQ(Cli({"--version"}).out.substr(0, 12), "pixmosa-cli ");
  const std::string general = Cli({"--help"}).out;
  for (const cli::Orden& order : cli::Ordenes()) {
    EXPECT_NE(general.find(order.ejemplo), std::string::npos) << order.nombre;
    const Resultado r = Cli({order.nombre, "--help"});
    EXPECT_EQ(r.status, 0);
    EXPECT_NE(r.out.find(order.ejemplo), std::string::npos) << order.nombre;
    for (const cli::Opcion& o : order.opciones)
      EXPECT_NE(r.out.find(o.nombre), std::string::npos) << o.nombre;
  }
}

TEST(Ventana, AnswersInATerminalWithoutADisplay) {
  const Resultado help = test::RunProgram("pixmosa", {"foto.png", "--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_TRUE(help.out.starts_with("Uso: pixmosa [IMAGEN]\n")) << help.out;
  EXPECT_EQ(test::RunProgram("pixmosa", {"--version"}).out, "pixmosa" + Cli({"--version"}).out.substr(11));
  ::unsetenv("WAYLAND_DISPLAY");
  const Resultado window = test::RunProgram("pixmosa", {});
  EXPECT_EQ(window.status, 1);
  EXPECT_EQ(window.err,
            "pixmosa: No se ha podido abrir la ventana: no hay pantalla, o la instalación de Qt está "
            "incompleta.\n");
}

TEST(OrdenTabla, FieldsReadBack) {
  const Resultado r = Cli({"tabla", "--paleta", "3", "--negativo"});
  ASSERT_EQ(r.status, 0);
  std::istringstream fields(r.out);
  std::map<std::string, float> one;  // minimo and maximo
  float least = 1e9F, most = -1;
  int brillos = 0, grises = 0;
  for (std::string head, a, b; fields >> head >> a;) {
    if (head == "minimo" || head == "maximo") {
      one[head] = std::stof(a);
      continue;
    }
    fields >> b;
    if (head == "gris") ++grises;
    if (head != "brillo") continue;
    const int code = std::stoi(a);
    EXPECT_EQ(code, brillos++);
    if (code >= '0' && code <= '9') {
      least = std::min(least, std::stof(b));
      most = std::max(most, std::stof(b));
    }
    EXPECT_TRUE((code != 30 || b == "99999") && (code != 31 || b == "0")) << a << " " << b;
  }
  EXPECT_EQ(brillos, 256);
  EXPECT_EQ(grises, 256);
  EXPECT_EQ(least, one["minimo"]);
  EXPECT_EQ(most, one["maximo"]);
}

TEST(OrdenFuentes, FixedFontsOneALine) {
  const Resultado r = Cli({"fuentes", "--fijas"});
  EXPECT_NE(("\n" + r.out).find("\nDejaVu Sans Mono\n"), std::string::npos);
  std::istringstream names(r.out);
  for (std::string name; std::getline(names, name);)
    EXPECT_EQ(Cli({"tabla", "--fuente", name}).status, 0) << name;
}
