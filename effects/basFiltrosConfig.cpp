#include "effects/basFiltrosConfig.h"

#include <array>
#include <utility>

#include "platform/Colour.h"

namespace pixmosa {
namespace {

using enum Argumento;

constexpr std::int32_t kVerdeAzulado = Rgb(0, 120, 120), kBlanco = Rgb(255, 255, 255);

// Oddities that are meant: records 10 and 11 carry the names "8" and "9"; effect 28 has no menu entry. Where
// no dialog opens, the range is that of the command line: any colour, the items of a menu, or 1 to 1000 for
// the methods that divide by their argument.
constexpr std::array<EffectConfig, kEfectos> kTabla = {{
    // Name, control, caption, argumento, menu, Configurable, Min, Max, worker
    {"1", "mnuNitidez", "Nitidez", Entero, 2, true, 0, 100, Nitidez},
    {"2", "mnuNegativo", "Negativo", Ninguno, 0, false, 0, 0, Negativo},
    {"3", "mnuDesenfocar", "Desenfocar", Ninguno, 0, false, 0, 0, Desenfocar},
    {"4", "mnuDifuminar", "Difuminar", Entero, 6, true, 0, 100, Difuminar},
    {"5", "mnuHumo", "Humo", Ninguno, 0, false, 0, 0, Humo},
    {"6", "mnuRealceBorde", "Realce solo del borde", Entero, 1, false, 1, 100, RealceBorde},
    {"7", "mnuContornos", "Marcar contornos", Color, kBlanco, false, 0, kBlanco, Contornos},
    {"8", "mnuRealzar", "Realzar", Color, kVerdeAzulado, false, 0, kBlanco, Realzar},
    {"9", "mnuRealzarMas", "Realzar más", Color, kVerdeAzulado, false, 0, kBlanco, RealzarMas},
    {"8", "mnugrabado", "Grabado", Color, kVerdeAzulado, false, 0, kBlanco, Grabado},
    {"9", "mnuMasGrabado", "Más grabado", Color, kVerdeAzulado, false, 0, kBlanco, MasGrabado},
    {"12", "mnuGrises", "Escala de grises", Ninguno, 0, false, 0, 0, EscalaDeGrises},
    {"13", "mnuRelieve", "Relieve", Ninguno, 0, false, 0, 0, Relieve},
    {"14", "mnuAumentarbrillo", "Brillo", Entero, 10, true, -100, 100, Brillo},
    {"15", "mnuPixelizar", "Pixelizar", Entero, 3, true, 1, 20, Pixelizar},
    {"16", "mnuRGB", "Intercambiar RGB", Entero, 1, false, 1, 5, IntercambiarRGB},
    {"17", "mnuAumentarcontraste", "Contraste", Entero, 10, true, -100, 100, Contraste},
    {"18", "mnuMetodo1", "Método 1", Gris, Rgb(150, 150, 150), true, 0, 255, Metodo1},
    {"19", "mnuMetodo2", "Método 2", Ninguno, 0, false, 0, 0, Metodo2},
    {"20", "mnuMetodo3", "Método 3", Ninguno, 0, false, 0, 0, Metodo3},
    {"21", "mnuMetodo4", "Método 4", Entero, 15, false, 1, 1000, Metodo4},
    {"22", "mnuMetodo5", "Método 5", Entero, 15, false, 1, 1000, Metodo5},
    {"23", "mnuMetodo6", "Método 6", Entero, 15, false, 1, 1000, Metodo6},
    {"24", "mnuAcuarela", "Acuarela", Ninguno, 0, false, 0, 0, Acuarela},
    {"25", "mnuDilate", "Aumentar exposición", Ninguno, 0, false, 0, 0, Dilatar},
    {"26", "mnuErosion", "Erosión", Ninguno, 0, false, 0, 0, Erosionar},
    {"27", "mnuContornosUnidos", "Marcar contornos unidos", Ninguno, 0, false, 0, 0, ContornosUnidos},
    {"28", "", "Mediana", Ninguno, 0, false, 0, 0, Mediana},
    {"29", "mnuruido", "Añadir ruido", Entero, 50, true, 1, 100, AñadirRuido},
    {"30", "mnuAumentarsaturacion", "Saturacion", Entero, 15, true, -100, 100, Saturacion},
    {"31", "mnuGamma", "Corrección gamma", Exigido, 0, true, 1, 100, Gamma},
    {"32", "mnuOldPhoto", "Foto antigua", Ninguno, 0, false, 0, 0, FotoAntigua},
}};

constexpr std::pair<std::string_view, char> kSinAcento[] = {{"á", 'a'}, {"é", 'e'}, {"í", 'i'}, {"ó", 'o'},
                                                            {"ú", 'u'}, {"ñ", 'n'}, {" ", '-'}};

}  // namespace

const EffectConfig* Efecto(int effect) {
  return effect >= 1 && effect <= kEfectos ? &kTabla[effect - 1] : nullptr;
}

std::int32_t ArgumentoDelDeslizador(int effect, std::int32_t value) {
  const EffectConfig* e = Efecto(effect);
  return e && e->argumento == Gris ? Rgb(value, value, value) : value;
}

std::string NombreDeOrden(std::string_view caption) {
  std::string name;
  while (!caption.empty()) {
    std::size_t used = 1;
    char plain = caption[0];
    if (plain >= 'A' && plain <= 'Z') plain += 'a' - 'A';
    for (const auto& [letter, without] : kSinAcento)
      if (caption.starts_with(letter)) {
        plain = without;
        used = letter.size();
      }
    name += plain;
    caption.remove_prefix(used);
  }
  return name;
}

}  // namespace pixmosa
