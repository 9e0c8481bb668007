#include "programa/HistorialDeImagen.h"

#include <algorithm>
#include <set>

#include "programa/Programa.h"

namespace pixmosa {
namespace {

// Of all the pixels that the steps hold, each block counted once.
std::uint64_t Bytes(const std::vector<PasoDeImagen>& steps) {
  std::set<const std::uint32_t*> seen;
  std::uint64_t bytes = 0;
  for (const PasoDeImagen& step : steps)
    for (const Picture* p : {&step.imagen.picMain, &step.imagen.picMainAsignada, &step.imagen.picUndo})
      if (!p->IsEmpty() && seen.insert(p->Pixels()).second) bytes += 4 * std::uint64_t{p->PixelCount()};
  return bytes;
}

std::vector<std::string> OrdenesCon(const HistorialDeImagen& h, const Picture& picture,
                                    const std::vector<std::string>& words) {
  std::vector<std::string> all;
  if (words.empty()) {
    const auto same = [&](const PasoDeImagen& s) { return s.imagen.picMain.Pixels() == picture.Pixels(); };
    const auto step = std::find_if(h.pasos.rbegin(), h.pasos.rend(), same);
    if (step != h.pasos.rend()) all = step->ordenes;
  } else {
    if (!h.pasos.empty()) all = h.pasos.back().ordenes;
    all.insert(all.end(), words.begin(), words.end());
  }
  return all;
}

}  // namespace

void AnotarPaso(Programa& p, const std::string& name, const std::vector<std::string>& words,
                std::uint64_t mostBytes) {
  HistorialDeImagen& h = p.historial;
  if (!HayImagen(p)) return;
  if (!h.pasos.empty()) {
    PasoDeImagen& now = h.pasos[h.actual];
    if (now.imagen.picMain.Pixels() == p.imagen.picMain.Pixels() && now.archivo == p.archivo) {
      now.imagen = p.imagen;
      return;
    }
    h.pasos.resize(h.actual + 1);
  }
  h.pasos.push_back({name, p.imagen, p.archivo, OrdenesCon(h, p.imagen.picMain, words)});
  while (h.pasos.size() > 2 && (h.pasos.size() > kMasPasosDeImagen || Bytes(h.pasos) > mostBytes))
    h.pasos.erase(h.pasos.begin());
  h.actual = h.pasos.size() - 1;
}

bool PuedeDeshacerPaso(const Programa& p) {
  return p.historial.actual > 0;
}

bool PuedeRehacerPaso(const Programa& p) {
  return p.historial.actual + 1 < p.historial.pasos.size();
}

void IrAlPaso(Programa& p, std::size_t k) {
  if (p.mFiltros.EffectBusy) return;
  const PasoDeImagen& step = p.historial.pasos.at(k);
  const unsigned assigned = p.imagen.Asignaciones + 1;
  p.imagen = step.imagen;
  p.imagen.Asignaciones = assigned;
  if (p.archivo != step.archivo) {
    p.archivo = step.archivo;
    p.animArt = p.animArtDisponible = false;  // the frames at hand are another picture's
  }
  p.historial.actual = k;
}

}  // namespace pixmosa
