// The settings that the system keeps for the current user, as the program uses them, and the three operations
// on them.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <variant>

namespace pixmosa {

enum class RegistryType { Text, Number, Binary, Other };

struct RegistryValue {
  RegistryType type = RegistryType::Other;
  std::string data;  // its bytes; a text in the 8-bit code page with its final NUL, a number little-endian
};

class Registry {
 public:
  virtual ~Registry() = default;
  // Nothing where the key or the value is missing.
  virtual std::optional<RegistryValue> Query(const std::string& key, const std::string& name) = 0;
  // Creates the key where it is missing. A failure is not reported.
  virtual void Set(const std::string& key, const std::string& name, const RegistryValue& value) = 0;
};

// --- BasRegistro ---

// The number, or 0 for a missing value or one of another type.
std::uint32_t ReadNumber(Registry& registry, const std::string& key, const std::string& name);

// A text up to its first NUL (nothing without one), a binary value of up to 4 bytes as a little-endian
// number, nothing for anything else.
std::variant<std::monostate, std::string, std::int32_t> ReadValue(Registry& registry, const std::string& key,
                                                                  const std::string& name);

void WriteBinary(Registry& registry, const std::string& key, const std::string& name,
                 std::span<const std::uint8_t> bytes);

}  // namespace pixmosa
