// The manual pages and the completions of the shells, written from the table of orders and from the window's
// own help: whatever an order says of itself stands in them.
#pragma once

#include <string>

namespace pixmosa::manuales {

// Section 1 pages in the macros of man(7), UTF-8. `help` is what "pixmosa --help" prints: lines of usage,
// paragraphs and rows of options indented by two blanks, empty lines between.
std::string PaginaDeVentana(const std::string& version, const std::string& help);
std::string PaginaDeOrdenes(const std::string& version);

// The files that each shell loads for `pixmosa-cli`.
std::string CompletarBash();
std::string CompletarZsh();
std::string CompletarFish();

}  // namespace pixmosa::manuales
