#include <gtest/gtest.h>

#include "platform/Registry.h"
#include "tests/support/FakeRegistry.h"

using namespace pixmosa;

TEST(BasRegistro, ReadsByType) {
  test::FakeRegistry registry;
  const auto put = [&](RegistryType type, std::string data) {
    registry.Set("k", "v", {type, std::move(data)});
  };
  using Value = std::variant<std::monostate, std::string, std::int32_t>;
  struct Row {
    RegistryType type;
    std::string data;
    std::uint32_t number;
    Value value;
  };
  for (const Row& r : {Row{RegistryType::Number, std::string("\x78\0\0\0", 4), 120, Value{}},
                       {RegistryType::Number, "\x01", 0, Value{}},
                       {RegistryType::Text, std::string("Lucida\0x", 8), 0, Value{"Lucida"}},
                       {RegistryType::Text, "Lucida", 0, Value{}},
                       {RegistryType::Binary, std::string("\x04\0\0", 3), 0, Value{4}},
                       {RegistryType::Binary, std::string("\0\x01", 2), 0, Value{256}},
                       {RegistryType::Binary, "", 0, Value{0}},
                       {RegistryType::Binary, "12345", 0, Value{}},
                       {RegistryType::Other, "1234", 0, Value{}}}) {
    put(r.type, r.data);
    EXPECT_EQ(ReadNumber(registry, "k", "v"), r.number);
    EXPECT_EQ(ReadValue(registry, "k", "v"), r.value) << r.data;
  }
  EXPECT_EQ(ReadNumber(registry, "k", "otro"), 0U);
  EXPECT_EQ(ReadValue(registry, "k", "otro"), Value{});
  const std::uint8_t bytes[] = {4, 0, 0};
  WriteBinary(registry, "nueva", "v", bytes);
  EXPECT_EQ(ReadValue(registry, "nueva", "v"), Value{4});
}
