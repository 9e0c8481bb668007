// Any bytes as a PNG of bounded size: a picture of the declared size or none, and what is written of it reads
// back.
#include "platform/png/Png.h"
#include "tests/fuzz/Fuzz.h"

void Fuzz(std::string_view bytes) {
  const Extent declared = TamanoDePng(bytes);
  PngLlegaAlFinal(bytes);
  if (std::int64_t{declared.width} * declared.height > 1 << 14) return;
  const Picture picture = LeerPng(bytes);
  if (picture.IsEmpty()) return;
  for (const Empaquetado packing : {Empaquetado::Rapido, Empaquetado::Pequeno}) {
    const Picture again = LeerPng(EscribirPng(picture, packing));
    Check(picture.Size() == declared && again.Size() == declared);
    Check(std::equal(again.Pixels(), again.Pixels() + again.PixelCount(), picture.Pixels()));
  }
}
