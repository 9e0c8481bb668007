#include "app/Recuerdos.h"

#include <array>

#include "conversion/basAscii.h"
#include "platform/Lines.h"

namespace pixmosa {
namespace {

constexpr char kClave[] = "Software\\Pixmosa";
constexpr char kConversion[] = "Conversion", kOferta[] = "FormasOfrecida", kAlMomento[] = "AlMomento",
               kNada[] = "SinRecuerdos";
// By Recuerdo.
constexpr std::array<const char*, 5> kNombres = {"Opciones", "Ventana", "Divisor", "Carpeta", "Recientes"};

int Numero(Registry& registry, const char* name) {
  const auto value = ReadValue(registry, kClave, name);
  const auto* number = std::get_if<std::int32_t>(&value);
  return number ? *number : 0;
}

void Escribir(Registry& registry, const char* name, int value) {
  const std::array<std::uint8_t, 1> byte = {static_cast<std::uint8_t>(value)};
  WriteBinary(registry, kClave, name, byte);
}

void Poner(Registry& registry, const char* name, const std::string& bytes) {
  registry.Set(kClave, name, {RegistryType::Binary, bytes});
}

}  // namespace

bool QuiereRecuerdos(Registry& registry) {
  return Numero(registry, kNada) == 0;
}

void PonerRecuerdos(Registry& registry, bool wanted) {
  Escribir(registry, kNada, !wanted);
  if (wanted) return;
  for (const char* name : kNombres) Poner(registry, name, {});
  for (const char* name : {kConversion, kAlMomento}) Escribir(registry, name, 0);
}

std::string Recordado(Registry& registry, Recuerdo what) {
  const auto value = registry.Query(kClave, kNombres[static_cast<std::size_t>(what)]);
  return value && value->type == RegistryType::Binary ? value->data : std::string();
}

void Recordar(Registry& registry, Recuerdo what, const std::string& bytes) {
  if (QuiereRecuerdos(registry)) Poner(registry, kNombres[static_cast<std::size_t>(what)], bytes);
}

std::vector<std::string> ArchivosRecientes(Registry& registry) {
  const std::string text = Recordado(registry, Recuerdo::Recientes);
  std::vector<std::string> files;
  for (std::string_view rest = text; !rest.empty();)
    if (const std::string_view line = TakeLine(rest); !line.empty()) files.emplace_back(line);
  return files;
}

void RecordarArchivos(Registry& registry, const std::vector<std::string>& files) {
  std::string text;
  for (const std::string& file : files)
    if (file.find_first_of("\r\n") == std::string::npos) text += file + "\n";
  Recordar(registry, Recuerdo::Recientes, text);
}

int ConversionRecordada(Registry& registry) {
  const int method = Numero(registry, kConversion);
  return EsDeFormas(method) ? method : kGrayscale;
}

void RecordarConversion(Registry& registry, int method) {
  if (QuiereRecuerdos(registry)) Escribir(registry, kConversion, method);
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
  if (QuiereRecuerdos(registry)) Escribir(registry, kAlMomento, atOnce);
}

}  // namespace pixmosa
