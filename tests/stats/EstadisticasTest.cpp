#include <gtest/gtest.h>

#include "stats/Estadisticas.h"

using namespace pixmosa;

namespace {

// "key|label|value" of every row.
std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines;
  for (const auto& row : ShowStatistics(text)) lines.push_back(row.key + "|" + row.label + "|" + row.value);
  return lines;
}

}  // namespace

TEST(Statistics, RowsInTheirOrder) {
  EXPECT_EQ(Lines("ba\r\nA  a"),
            (std::vector<std::string>{"Caracteres|Caracteres|8", "Lineas|Lineas|2", "Columnas|Columnas|2",
                                      "asc10|\n (Cod. 10)|1", "asc13|\r (Cod. 13)|1", "asc32|  (Cod. 32)|2",
                                      "asc65|A (Cod. 65)|1", "asc97|a (Cod. 97)|2", "asc98|b (Cod. 98)|1"}));
}

TEST(Statistics, EmptyTextAndOddOnes) {
  EXPECT_EQ(Lines(""),
            (std::vector<std::string>{"Caracteres|Caracteres|0", "Lineas|Lineas|0", "Columnas|Columnas|"}));
  EXPECT_EQ(Lines("\r\n")[1], "Lineas|Lineas|2") << "the empty piece after it counts";
  EXPECT_EQ(Lines("\r\n")[2], "Columnas|Columnas|0");
  EXPECT_EQ(Lines("a\nb\rc")[1], "Lineas|Lineas|1") << "only CR LF separates";
  EXPECT_EQ(Lines(std::string_view("\0\0", 2)).size(), 3U) << "code 0 has no row";
  EXPECT_EQ(Lines(std::string(1'000'003, '\xFF')).back(), "asc255|\xFF (Cod. 255)|1000003");
}
