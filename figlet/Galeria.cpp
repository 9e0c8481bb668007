#include "figlet/Galeria.h"

#include <algorithm>
#include <fstream>
#include <map>

#include "figlet/Catalogo.h"
#include "platform/CodePage.h"

namespace pixmosa {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMasCargadas = 48, kPrimerosBytes = 128;

// The height that the beginning of a font says; 1 for what is none.
std::size_t AlturaDe(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::string begin(kPrimerosBytes, '\0');
  in.read(begin.data(), static_cast<std::streamsize>(begin.size()));
  begin.resize(static_cast<std::size_t>(in.gcount()));
  BasFigLet font;
  LoadFontBytes(font, begin.substr(0, begin.find_first_of("\r\n")), [](const std::string&) {});
  return std::max<std::size_t>(FilasDeLetrero(font), 1);
}

std::string Minusculas(const std::string& utf8) {
  return LowerCase(BytesOfUtf8(utf8));
}

}  // namespace

void Galeria::Releer() {
  std::map<std::string, std::set<std::string>> categories;
  for (const NodoDeFuentes& node : ArbolDeFuentes(carpetas_))
    if (node.nivel == NodoDeFuentes::kFuente)
      categories[Utf8OfBytes(node.text) + ".flf"].insert(
          Utf8OfBytes(node.parent.substr(0, node.parent.find(';'))));
  fichas_.clear();
  cargadas_.clear();
  medidas_ = 0;
  for (const std::string& name : FillFontList(carpetas_))
    fichas_.push_back({name, categories[name], AlturaDe(ArchivoDeFuente(carpetas_, name))});
}

std::set<std::string> Galeria::Categorias() const {
  std::set<std::string> all;
  for (const FichaDeFuente& f : fichas_) all.insert(f.categorias.begin(), f.categorias.end());
  return all;
}

bool Galeria::Medir(std::size_t most) {
  for (; most > 0 && medidas_ < fichas_.size(); --most, ++medidas_) {
    FichaDeFuente& card = fichas_[medidas_];
    BasFigLet font;
    LoadFont(font, ArchivoDeFuente(carpetas_, card.nombre), [](const std::string&) {});
    const FuenteFiglet read = FuenteLeida(font);
    card.espanol = CompletaParaEspanol(read);
    card.anchura = AnchoDeLetra(read);
    card.medida = true;
  }
  return medidas_ < fichas_.size();
}

std::vector<std::size_t> Galeria::Cribar(const CribaDeFuentes& sieve) const {
  const std::string part = Minusculas(sieve.nombre);
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < fichas_.size(); ++i) {
    const FichaDeFuente& f = fichas_[i];
    const bool passes = Minusculas(fs::path(f.nombre).stem().string()).find(part) != std::string::npos &&
                        (sieve.categoria.empty() || f.categorias.contains(sieve.categoria)) &&
                        (!sieve.favoritas || sieve.favoritas->contains(f.nombre)) &&
                        (sieve.altura == 0 || f.altura <= sieve.altura) &&
                        (!sieve.PideMedidas() || f.medida) && (!sieve.espanol || f.espanol) &&
                        (sieve.anchura == 0 || f.anchura <= sieve.anchura);
    if (passes) found.push_back(i);
  }
  if (sieve.porAltura)
    std::ranges::stable_sort(found, {}, [this](std::size_t i) { return fichas_[i].altura; });
  return found;
}

Dibujo Galeria::Letrero(std::size_t font, std::string_view utf8, const OpcionesDeLetrero& options) {
  return Cargar(font).enUso.Dibujar(utf8, options);
}

const Galeria::Cargada& Galeria::Cargar(std::size_t font) {
  const auto at = std::ranges::find(cargadas_, font, &Cargada::ficha);
  if (at != cargadas_.end()) {
    cargadas_.splice(cargadas_.begin(), cargadas_, at);
  } else {
    if (cargadas_.size() == kMasCargadas) cargadas_.pop_back();
    Cargada& fresh = cargadas_.emplace_front();
    fresh.ficha = font;
    LoadFont(fresh.leida, ArchivoDeFuente(carpetas_, fichas_[font].nombre), [](const std::string&) {});
  }
  return cargadas_.front();
}

}  // namespace pixmosa
