// What a program says where nothing can be thrown any more, and what it keeps from saying.
#pragma once

#include <cstdlib>
#include <exception>
#include <unistd.h>

#include <qlogging.h>

namespace pixmosa {

// For the start of a program, once. Each argument is a whole line of text, a constant array. An exception
// that nobody catches ends the program with the line kFallo; Qt's own messages are dropped, and a fatal one
// ends it with the line kSinQt and status 1.
template <const auto& kFallo, const auto& kSinQt>
void PonerUltimaFrase() {
  std::set_terminate([] {
    [[maybe_unused]] const ssize_t n = ::write(STDERR_FILENO, kFallo, sizeof kFallo - 1);
    std::abort();
  });
  qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type != QtFatalMsg) return;
    [[maybe_unused]] const ssize_t n = ::write(STDERR_FILENO, kSinQt, sizeof kSinQt - 1);
    std::_Exit(1);
  });
}

}  // namespace pixmosa
