// Any bytes as a standard font.
#include "tests/fuzz/Fuente.h"

void Fuzz(std::string_view bytes) {
  RewriteAny(bytes);
}
