// The one wrapper of every slot: runs it, and shows what it throws.
#pragma once

#include <utility>

#include "platform/Dialogs.h"
#include "platform/Errores.h"

namespace pixmosa {

// True where the work was done; false after the message, and for cancelled work.
template <typename Work>
bool Intentar(Dialogs& dialogs, const Work& work, const std::string& title = {}) {
  try {
    work();
    return true;
  } catch (const TrabajoCancelado&) {
    return false;
  } catch (const std::exception& e) {
    dialogs.Fail(FraseDe(e), title);
    return false;
  }
}

// A slot that runs `work` so. The dialogs outlive it.
template <typename Work>
auto Con(Dialogs& dialogs, Work work) {
  return [&dialogs, work = std::move(work)](auto&&... arguments) {
    Intentar(dialogs, [&] { work(std::forward<decltype(arguments)>(arguments)...); });
  };
}

}  // namespace pixmosa
