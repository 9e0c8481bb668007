// Any bytes as a kept drawing: what is read is kept and read again the same. As a text: opened, lined up,
// taken apart and put together, it comes back byte for byte.
#include "editor/Historial.h"
#include "editor/Recuperacion.h"
#include "editor/Relleno.h"
#include "editor/TextoDelEditor.h"
#include "tests/fuzz/Fuzz.h"

void Fuzz(std::string_view input) {
  BasEditor e, again;
  if (LeerDibujo(input, e)) {
    Check(LeerDibujo(BytesDelDibujo(e), again));
    Check(again.Grid == e.Grid);
    Check(DrawingText(again) == DrawingText(e));
  }
  AbrirTexto(e, input);
  Check(DrawingText(e) == input);
  Historial history;
  history.Empezar(e);
  FloodFill(e, {3, 2});
  FlipHorizontal(e);
  AlinearRenglones(e);
  history.Terminar(e);
  history.Deshacer(e);
  Check(DrawingText(e) == input);
  AlinearRenglones(e);
  Check(DrawingText(e) == input);
}
