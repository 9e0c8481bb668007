// Sentences on standard error, and who is named in them.
#pragma once

#include <new>
#include <string>
#include <string_view>

#include "cli/Argumentos.h"

namespace pixmosa::cli {

// The text on one line that no terminal acts on: line ends and tabs as \n, \r, \t; other controls, marks that
// turn the direction of writing and bytes that are no UTF-8 as \xNN, byte by byte.
std::string Visible(std::string_view text);

// work(), whose result it gives; where memory runs out, an ErrorDeTrabajo that names the operand.
template <typename Trabajo>
auto Nombrando(const std::string& operand, const Trabajo& work) {
  try {
    return work();
  } catch (const std::bad_alloc&) {
    throw ErrorDeTrabajo("No hay memoria suficiente para \"" + operand + "\".");
  }
}

}  // namespace pixmosa::cli
