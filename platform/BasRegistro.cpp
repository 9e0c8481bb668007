#include "platform/Registry.h"

namespace pixmosa {
namespace {

constexpr std::size_t kNumberBytes = 4;

std::uint32_t LittleEndian(const std::string& bytes) {
  std::uint32_t n = 0;
  for (std::size_t i = bytes.size(); i-- > 0;) n = n << 8 | (bytes[i] & 0xFFU);
  return n;
}

}  // namespace

std::uint32_t ReadNumber(Registry& registry, const std::string& key, const std::string& name) {
  const auto value = registry.Query(key, name);
  if (!value || value->type != RegistryType::Number || value->data.size() != kNumberBytes) return 0;
  return LittleEndian(value->data);
}

std::variant<std::monostate, std::string, std::int32_t> ReadValue(Registry& registry, const std::string& key,
                                                                  const std::string& name) {
  const auto value = registry.Query(key, name);
  if (!value) return {};
  if (value->type == RegistryType::Text) {
    const std::size_t end = value->data.find('\0');
    if (end != std::string::npos) return value->data.substr(0, end);
  }
  if (value->type == RegistryType::Binary && value->data.size() <= kNumberBytes) {
    const std::int32_t number = LittleEndian(value->data);
    return number;
  }
  return {};
}

void WriteBinary(Registry& registry, const std::string& key, const std::string& name,
                 std::span<const std::uint8_t> bytes) {
  registry.Set(key, name, {RegistryType::Binary, std::string(bytes.begin(), bytes.end())});
}

}  // namespace pixmosa
