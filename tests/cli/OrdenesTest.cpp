#include <charconv>
#include <gtest/gtest.h>
#include <sstream>

#include "cli/Orden.h"
#include "tests/support/RunProgram.h"

using namespace pixmosa;
using test::Cli;
using test::Resultado;

TEST(Ordenes, EveryOrderIsExplainedWithAnExample) {
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

TEST(Ordenes, VersionAndWrongUse) {
  EXPECT_EQ(Cli({"--version"}).out.substr(0, 12), "pixmosa-cli ");
  for (const auto& words :
       std::vector<std::vector<std::string>>{{}, {"bailar"}, {"tabla", "--no"}, {"tabla", "x"}}) {
    const Resultado r = Cli(words);
    EXPECT_EQ(r.status, 2);
    EXPECT_TRUE(r.err.starts_with("pixmosa-cli: "));
    EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1);
  }
}

TEST(OrdenTabla, FieldsReadBack) {
  const Resultado r = Cli({"tabla", "--paleta", "3", "--negativo"});
  ASSERT_EQ(r.status, 0);
  std::istringstream lines(r.out);
  std::string line;
  std::vector<std::string> heads;
  float least = 1e9F, most = -1, minimum = 0, maximum = 0;
  while (std::getline(lines, line)) {
    std::istringstream fields(line);
    std::string head, a, b;
    std::getline(fields, head, '\t');
    std::getline(fields, a, '\t');
    std::getline(fields, b, '\t');
    heads.push_back(head);
    const auto number = [](const std::string& s) { return std::stof(s); };
    if (head == "minimo") minimum = number(a);
    if (head == "maximo") maximum = number(a);
    if (head == "brillo" && std::stoi(a) >= '0' && std::stoi(a) <= '9') {
      least = std::min(least, number(b));
      most = std::max(most, number(b));
    }
    EXPECT_TRUE(head != "brillo" || a != "30" || b == "99999") << line;
    EXPECT_TRUE(head != "brillo" || a != "31" || b == "0") << line;
  }
  EXPECT_EQ(heads.size(), 3U + 256 + 256);
  EXPECT_EQ(least, minimum);
  EXPECT_EQ(most, maximum);
}

TEST(OrdenFuentes, FixedFontsOneALine) {
  const Resultado r = Cli({"fuentes", "--fijas"});
  EXPECT_NE(("\n" + r.out).find("\nDejaVu Sans Mono\n"), std::string::npos);
}
