#include "platform/qt/QtRegistry.h"

#include <array>

#include <QStandardPaths>

namespace pixmosa {
namespace {

// How a type is written: "texto:4c7500" is the text "Lu".
constexpr std::array<const char*, 4> kTypes = {"texto", "numero", "binario", "otro"};

QString PathOf(const std::string& key, const std::string& name) {
  return QString::fromStdString(key).replace(u'\\', u'/') + "/" + QString::fromStdString(name);
}

}  // namespace

QtRegistry::QtRegistry()
    : QtRegistry(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                 "/pixmosa/registro.ini") {}

QtRegistry::QtRegistry(const QString& file) : settings_(file, QSettings::IniFormat) {}

std::optional<RegistryValue> QtRegistry::Query(const std::string& key, const std::string& name) {
  const QString written = settings_.value(PathOf(key, name)).toString();
  const qsizetype colon = written.indexOf(u':');
  if (colon < 0) return std::nullopt;
  RegistryValue value;
  for (std::size_t i = 0; i < kTypes.size(); ++i)
    if (written.left(colon) == kTypes[i]) value.type = static_cast<RegistryType>(i);
  value.data = QByteArray::fromHex(written.mid(colon + 1).toLatin1()).toStdString();
  return value;
}

void QtRegistry::Set(const std::string& key, const std::string& name, const RegistryValue& value) {
  settings_.setValue(PathOf(key, name), QString(kTypes[static_cast<std::size_t>(value.type)]) + ":" +
                                            QByteArray::fromStdString(value.data).toHex());
  settings_.sync();
}

}  // namespace pixmosa
