#include "app/Recuerdos.h"

#include <array>

#include "conversion/basAscii.h"

namespace pixmosa {
namespace {

constexpr char kClave[] = "Software\\Pixmosa";
constexpr char kConversion[] = "Conversion", kOferta[] = "FormasOfrecida", kAlMomento[] = "AlMomento";

int Numero(Registry& registry, const char* name) {
  const auto value = ReadValue(registry, kClave, name);
  const auto* number = std::get_if<std::int32_t>(&value);
  return number ? *number : 0;
}

void Escribir(Registry& registry, const char* name, int value) {
  const std::array<std::uint8_t, 1> byte = {static_cast<std::uint8_t>(value)};
  WriteBinary(registry, kClave, name, byte);
}

}  // namespace

int ConversionRecordada(Registry& registry) {
  const int method = Numero(registry, kConversion);
  return EsDeFormas(method) ? method : kGrayscale;
}

void RecordarConversion(Registry& registry, int method) {
  Escribir(registry, kConversion, method);
  if (EsDeFormas(method)) RecordarOferta(registry);
}

bool FormasOfrecida(Registry& registry) {
  return Numero(registry, kOferta) != 0;
}

void RecordarOferta(Registry& registry) {
  Escribir(registry, kOferta, 1);
}

bool AlMomentoRecordado(Registry& registry) {
  return Numero(registry, kAlMomento) != 0;
}

void RecordarAlMomento(Registry& registry, bool atOnce) {
  Escribir(registry, kAlMomento, atOnce);
}

}  // namespace pixmosa
