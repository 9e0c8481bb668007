// A registry of the program's own where the system has none: a file in the user's configuration folder, empty
// at first.
#pragma once

#include <QSettings>

#include "platform/Registry.h"

namespace pixmosa {

class QtRegistry final : public Registry {
 public:
  QtRegistry();
  explicit QtRegistry(const QString& file);

  std::optional<RegistryValue> Query(const std::string& key, const std::string& name) override;
  void Set(const std::string& key, const std::string& name, const RegistryValue& value) override;

 private:
  QSettings settings_;
};

}  // namespace pixmosa
