// What the program remembers of its user from one run to the next, in the registry, under a key of its own.
// Apart from that Formas has been offered, nothing is kept while the user wants nothing remembered.
#pragma once

#include <string>
#include <vector>

#include "platform/Registry.h"

namespace pixmosa {

// The user wants the program to remember; yes until told otherwise. Without it what was kept is forgotten.
bool QuiereRecuerdos(Registry& registry);
void PonerRecuerdos(Registry& registry, bool wanted);

// The conversion of the grayscale mode that was chosen last: kGrayscale, kTono or kFormas. Who has chosen one
// of the latter need not be offered it.
int ConversionRecordada(Registry& registry);
void RecordarConversion(Registry& registry, int method);

// "Formas" has been offered for a photograph; it is once.
bool FormasOfrecida(Registry& registry);
void RecordarOferta(Registry& registry);

// The text is made again by itself.
bool AlMomentoRecordado(Registry& registry);
void RecordarAlMomento(Registry& registry, bool atOnce);

// Bytes under a name: empty where there are none.
enum class Recuerdo { Opciones, Ventana, Divisor, Carpeta, Recientes };
std::string Recordado(Registry& registry, Recuerdo what);
void Recordar(Registry& registry, Recuerdo what, const std::string& bytes);

// The pictures loaded last, the newest first, as paths.
std::vector<std::string> ArchivosRecientes(Registry& registry);
void RecordarArchivos(Registry& registry, const std::vector<std::string>& files);

}  // namespace pixmosa
