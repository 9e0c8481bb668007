// Creating a control together with the name that tests and documents know it by.
#pragma once

#include <utility>

#include <QObject>
#include <QString>

namespace pixmosa {

template <typename Control, typename... Arguments>
Control* named(const char* name, Arguments&&... arguments) {
  auto* control = new Control(std::forward<Arguments>(arguments)...);
  control->setObjectName(QString::fromUtf8(name));
  return control;
}

}  // namespace pixmosa
