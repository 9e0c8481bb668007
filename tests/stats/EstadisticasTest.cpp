#include <gtest/gtest.h>

#include "stats/Estadisticas.h"

using namespace pixmosa;

TEST(Statistics, RowsInTheirOrder) {
  // Every row as "key|label|value;".
  for (const auto& [text, rows] : std::vector<std::pair<std::string, std::string>>{
           {"ba\r\nA  a",
            "Lineas|Lineas|2;Columnas|Columnas|2;asc10|\n (Cod. 10)|1;asc13|\r (Cod. 13)|1;"
            "asc32|  (Cod. 32)|2;asc65|A (Cod. 65)|1;asc97|a (Cod. 97)|2;asc98|b (Cod. 98)|1;"},
           {"", "Lineas|Lineas|0;Columnas|Columnas|;"},
           {"\n\r", "Lineas|Lineas|1;Columnas|Columnas|2;asc10|\n (Cod. 10)|1;asc13|\r (Cod. 13)|1;"},
           {"\n\r\n", "Lineas|Lineas|2;Columnas|Columnas|1;asc10|\n (Cod. 10)|2;asc13|\r (Cod. 13)|1;"},
           {std::string(2, '\0'), "Lineas|Lineas|1;Columnas|Columnas|2;"},
           {std::string(1'000'003, '\xFF'),
            "Lineas|Lineas|1;Columnas|Columnas|1000003;asc255|\xFF (Cod. 255)|1000003;"}}) {
    std::string shown;
    for (const auto& row : ShowStatistics(text)) shown += row.key + "|" + row.label + "|" + row.value + ";";
    EXPECT_EQ(shown, "Caracteres|Caracteres|" + std::to_string(text.size()) + ";" + rows);
  }
}
