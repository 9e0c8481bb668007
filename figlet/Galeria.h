// Every font at hand with what it is chosen by, and a text drawn in each. Files are read when they are
// needed.
#pragma once

#include <filesystem>
#include <list>
#include <set>
#include <string>
#include <vector>

#include "figlet/Favoritas.h"
#include "figlet/Letrero.h"

namespace pixmosa {

struct FichaDeFuente {
  std::string nombre;                // the file's, with its ending
  std::set<std::string> categorias;  // of the tree's first level, UTF-8
  std::size_t altura = 1;            // as the header's line says
  // Of the whole font, once it is measured:
  bool medida = false, espanol = false;
  std::size_t anchura = 0;  // columns of a small letter, on the average
};

// What a shown font has to be; the default lets every one pass.
struct CribaDeFuentes {
  std::string nombre{};  // part of its name, in any case
  std::string categoria{};
  const Favoritas* favoritas = nullptr;
  bool espanol = false, porAltura = false;
  std::size_t altura = 0, anchura = 0;  // at most; 0 does not matter

  bool PideMedidas() const { return espanol || anchura > 0; }
};

class Galeria {
 public:
  explicit Galeria(std::vector<std::filesystem::path> folders) : carpetas_(std::move(folders)) { Releer(); }

  // Lists the fonts anew; only their first lines are read.
  void Releer();

  const std::vector<FichaDeFuente>& Fichas() const { return fichas_; }
  std::set<std::string> Categorias() const;

  // Reads the next fonts that were not measured, `most` at the most. False where none is left.
  bool Medir(std::size_t most);

  // The fonts that pass, in alphabetical order, or from the lowest to the highest; those that are still to be
  // measured do not pass where it matters.
  std::vector<std::size_t> Cribar(const CribaDeFuentes& sieve) const;

  // The text, UTF-8, in a font. Throws LetreroExcesivo.
  Dibujo Letrero(std::size_t font, std::string_view utf8, const OpcionesDeLetrero& options);

 private:
  struct Cargada {
    std::size_t ficha;
    BasFigLet leida;
    FuenteEnUso enUso{leida};
  };
  const Cargada& Cargar(std::size_t font);

  std::vector<std::filesystem::path> carpetas_;
  std::vector<FichaDeFuente> fichas_;
  std::size_t medidas_ = 0;
  std::list<Cargada> cargadas_;  // the last ones in use, the latest first
};

}  // namespace pixmosa
