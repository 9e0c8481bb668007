// Reading an order's words: options before or after the operands, as `--name value` or `--name=value`.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Colour.h"
#include "platform/Errores.h"

namespace pixmosa::cli {

// what() is a Spanish sentence in UTF-8 without a final period; the program ends with status 2.
class ErrorDeUso : public ErrorDelPrograma {
 public:
  using ErrorDelPrograma::ErrorDelPrograma;
};

// what() is a Spanish sentence in UTF-8; the program ends with status 1.
class ErrorDeTrabajo : public ErrorDelPrograma {
 public:
  using ErrorDelPrograma::ErrorDelPrograma;
};

enum class Tipo { Interruptor, Texto, Entero, Eleccion };

// One option of an order: its name with the dashes, how its value is called in the help, what the value may
// be.
struct Opcion {
  const char* nombre;
  Tipo tipo;
  const char* valor;                      // "N", "DIR"; unused for a switch
  const char* ayuda;                      // one Spanish line
  int minimo = 0, maximo = 0;             // Entero
  std::vector<const char*> elecciones{};  // Eleccion
};

class Argumentos {
 public:
  // Throws ErrorDeUso for an unknown option, a missing or a wrong value, or standard input twice. "--" ends
  // the options.
  Argumentos(std::span<const std::string> words, std::span<const Opcion> options);

  const std::vector<std::string>& Operandos() const { return operandos_; }
  bool Tiene(const std::string& option) const { return valores_.contains(option); }
  std::optional<std::string> Texto(const std::string& option) const;
  // The value of an option that must be there. Throws ErrorDeUso.
  std::string Exigir(const std::string& option) const;
  int Entero(const std::string& option, int otherwise) const;
  // A colour given as R,G,B. Throws ErrorDeUso.
  std::optional<Colour> Color(const std::string& option) const;

  // Throws ErrorDeUso unless there are between least and most operands; `what` names them.
  void ExigirOperandos(std::size_t least, std::size_t most, std::string_view what) const;

 private:
  void Leer(std::span<const std::string> words, std::span<const Opcion> options);

  std::vector<std::string> operandos_;
  std::map<std::string, std::string> valores_;
};

// A colour as R,G,B, each from 0 to 255, or nothing.
std::optional<Colour> ColorDeTexto(const std::string& text);

}  // namespace pixmosa::cli
