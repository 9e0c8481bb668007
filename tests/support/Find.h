// Finding the controls of a form by their documented names.
#pragma once

#include <cstdlib>
#include <iostream>

#include <QObject>
#include <QString>

namespace pixmosa::test {

// The control of this name and kind below `root`; without one, fails loudly and lists the names there are.
template <typename Control>
Control& Find(const QObject& root, const char* name) {
  auto* found = root.findChild<Control*>(QString::fromUtf8(name));
  if (found) return *found;
  std::cerr << "there is no " << Control::staticMetaObject.className() << " named \"" << name << "\" among:";
  for (const QObject* child : root.findChildren<QObject*>())
    if (!child->objectName().isEmpty()) std::cerr << ' ' << child->objectName().toStdString();
  std::cerr << std::endl;
  std::abort();
}

}  // namespace pixmosa::test
