// A registry in memory.
#pragma once

#include <map>
#include <string>
#include <tuple>

#include "platform/Registry.h"

namespace pixmosa::test {

class FakeRegistry final : public Registry {
 public:
  std::map<std::pair<std::string, std::string>, RegistryValue> values;

  std::optional<RegistryValue> Query(const std::string& key, const std::string& name) override {
    const auto at = values.find({key, name});
    return at == values.end() ? std::nullopt : std::optional(at->second);
  }
  void Set(const std::string& key, const std::string& name, const RegistryValue& value) override {
    values[{key, name}] = value;
  }
};

}  // namespace pixmosa::test
