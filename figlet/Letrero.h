// A banner from its text to what is shown and saved: the specified layout where nothing else is asked for.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "figlet/Acabado.h"
#include "figlet/Composicion.h"
#include "figlet/basFigLet.h"
#include "platform/Comprimido.h"

namespace pixmosa {

struct OpcionesDeLetrero {
  OpcionesDeComposicion composicion{};
  Acabado acabado{};
  bool operator==(const OpcionesDeLetrero&) const = default;
};

// A font in use: what the specified reader has read, or a file as it is.
class FuenteEnUso {
 public:
  explicit FuenteEnUso(const BasFigLet& font) : leida_(&font) {}
  explicit FuenteEnUso(FuenteFiglet direct) : directa_(true), fuente_(std::move(direct)) {}

  // The rows of a text in UTF-8, with LF or CR LF between its lines. Throws LetreroExcesivo.
  Dibujo Dibujar(std::string_view utf8, const OpcionesDeLetrero& options) const;

  // As the layout beside the specified one takes it; made when first asked for.
  const FuenteFiglet& Fuente() const;

 private:
  bool directa_ = false;
  const BasFigLet* leida_ = nullptr;
  mutable std::optional<FuenteFiglet> fuente_;
};

// RenderBanner alone makes the banner: no other layout is asked for and nothing is done to it.
inline bool EsElDeSiempre(const OpcionesDeLetrero& options) {
  return options == OpcionesDeLetrero{};
}

// Line ends as RenderBanner takes them.
std::string TextoConCrLf(std::string_view bytes);

// The rows, each with CR LF behind, in the 8-bit code page; a character that it lacks becomes what looks like
// it.
std::string BytesDe(const Dibujo& drawing);

// The same as UTF-8 with all characters.
std::string Utf8De(const Dibujo& drawing);

// A font straight from the bytes of a file, which may be a zip: then the first one in there. `name` stands
// for the file in messages. Throws FuenteRechazada.
FuenteFiglet AbrirFuente(std::string_view bytes, const std::string& name, const Desempaquetar& unpack);

}  // namespace pixmosa
