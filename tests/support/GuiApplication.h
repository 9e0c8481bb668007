// One platform application for all tests of a program; it needs no display.
#pragma once

#include <QGuiApplication>

namespace pixmosa::test {

inline void NeedGuiApplication() {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  static int argc = 1;
  static char name[] = "test";
  static char* argv[] = {name, nullptr};
  static QGuiApplication app(argc, argv);
}

}  // namespace pixmosa::test
