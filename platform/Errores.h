// What went wrong, as the user reads it.
#pragma once

#include <exception>
#include <new>
#include <stdexcept>
#include <string>

namespace pixmosa {

// The failures that the program itself finds: what() is a Spanish sentence in UTF-8.
class ErrorDelPrograma : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The user wants a piece of work no longer: what it was about to change is as it was, and there is nothing to
// tell.
class TrabajoCancelado : public ErrorDelPrograma {
 public:
  TrabajoCancelado() : ErrorDelPrograma("El trabajo se ha cancelado.") {}
};

// The sentence for whatever a piece of work has thrown.
inline std::string FraseDe(const std::exception& e) {
  if (dynamic_cast<const ErrorDelPrograma*>(&e)) return e.what();
  if (dynamic_cast<const std::bad_alloc*>(&e)) return "No queda memoria para este trabajo.";
  return "El trabajo no se ha podido terminar por un fallo del programa.";
}

}  // namespace pixmosa
