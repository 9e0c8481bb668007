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
  EXPECT_EQ(Lines(""),
            (std::vector<std::string>{"Caracteres|Caracteres|0", "Lineas|Lineas|0", "Columnas|Columnas|"}));
  struct Row {
    std::string text, lines, columns, last;
  };
  for (const Row& r : {Row{"\r\n", "2", "0", "asc13|\r (Cod. 13)|1"},  // the empty piece after it counts
                       {"a\nb\rc", "1", "5", "asc99|c (Cod. 99)|1"},   // only CR LF separates
                       {std::string(2, '\0'), "1", "2", "Columnas|Columnas|2"},
                       {"\n\r\n", "2", "1", "asc13|\r (Cod. 13)|1"},
                       {std::string(1'000'003, '\xFF'), "1", "1000003", "asc255|\xFF (Cod. 255)|1000003"}}) {
    const auto rows = Lines(r.text);
    EXPECT_EQ(rows[1] + rows[2], "Lineas|Lineas|" + r.lines + "Columnas|Columnas|" + r.columns);
    EXPECT_EQ(rows.back(), r.last);
  }
}
