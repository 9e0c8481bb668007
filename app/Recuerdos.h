// What the program remembers of its user from one run to the next, in the registry, under a key of its own.
#pragma once

#include "platform/Registry.h"

namespace pixmosa {

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

}  // namespace pixmosa
