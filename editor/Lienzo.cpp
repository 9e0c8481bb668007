#include "editor/Lienzo.h"

#include <algorithm>
#include <utility>

namespace pixmosa {

ZonaDeCeldas ZonaEntre(Cell a, Cell b) {
  return {{std::min(a.column, b.column), std::min(a.row, b.row)},
          {std::max(a.column, b.column), std::max(a.row, b.row)}};
}

ZonaDeCeldas Unida(const ZonaDeCeldas& a, const ZonaDeCeldas& b) {
  return {{std::min(a.desde.column, b.desde.column), std::min(a.desde.row, b.desde.row)},
          {std::max(a.hasta.column, b.hasta.column), std::max(a.hasta.row, b.hasta.row)}};
}

std::size_t Diario::Bytes() const {
  std::size_t bytes = corridas.capacity() * sizeof(Corrida);
  for (const auto& canvas : lienzos) bytes += canvas->Bytes();
  return bytes;
}

Lienzo::Lienzo(int columns, int rows)
    : columns_(std::clamp(columns, 1, kLadoMayor)), rows_(std::clamp(rows, 1, kLadoMayor)) {
  words_.assign(static_cast<std::size_t>(columns_ + 1) * static_cast<std::size_t>(rows_ + 2), U' ');
}

Contenido Lienzo::En(Cell c) const {
  const std::uint32_t word = words_[Indice(c)];
  return {word & kLetra, Tinta(c), (word & kBorrada) != 0, (word & kResto) != 0};
}

void Lienzo::Poner(Cell c, const Contenido& content) {
  PonerTramo(c, 1, content);
}

void Lienzo::PonerTramo(Cell first, int count, const Contenido& content) {
  if (count <= 0) return;
  Escribir(Indice(first), static_cast<std::size_t>(count), Palabra(content), content.tinta);
  Marcar({first, {first.column + count - 1, first.row}});
}

void Lienzo::Escribir(std::size_t first, std::size_t count, std::uint32_t word, Colour ink) {
  if (ink != kNoColour && inks_.empty()) inks_.assign(words_.size(), kNoColour);
  for (std::size_t i = first; i < first + count; ++i) {
    const std::uint32_t before = words_[i];
    const Colour beforeInk = inks_.empty() ? kNoColour : inks_[i];
    if (before == word && beforeInk == ink) continue;
    words_[i] = word;
    if (!inks_.empty()) inks_[i] = ink;
    if (!logging_) continue;
    if (!log_.corridas.empty()) {
      Corrida& last = log_.corridas.back();
      if (last.largo != 0 && last.desde + last.largo == i && last.valor == before &&
          last.tinta == beforeInk) {
        ++last.largo;
        continue;
      }
    }
    log_.corridas.push_back({static_cast<std::uint32_t>(i), 1, before, beforeInk});
  }
}

void Lienzo::Marcar(const ZonaDeCeldas& zone) {
  constexpr std::size_t kMost = 64;
  if (!changed_.empty()) {
    ZonaDeCeldas& last = changed_.back();
    const bool along = last.desde.row == zone.desde.row && last.hasta.row == zone.hasta.row &&
                       zone.desde.column <= last.hasta.column + 1 &&
                       zone.hasta.column >= last.desde.column - 1;
    if (along || changed_.size() == kMost) {
      last = Unida(last, zone);
      return;
    }
  }
  changed_.push_back(zone);
}

void Lienzo::Sustituir(Lienzo&& other) {
  Diario log = std::move(log_);
  const bool logging = logging_;
  if (logging) {
    log_ = {};
    logging_ = false;
    changed_.clear();
    log.corridas.push_back({0, 0, static_cast<std::uint32_t>(log.lienzos.size()), kNoColour});
    log.lienzos.push_back(std::make_shared<const Lienzo>(std::move(*this)));
  }
  *this = std::move(other);
  log_ = std::move(log);
  logging_ = logging;
  changed_ = {{{0, 0}, {columns_, rows_ + 1}}};
}

void Lienzo::Anotar() {
  log_ = {};
  logging_ = true;
}

Diario Lienzo::Anotado() {
  logging_ = false;
  log_.corridas.shrink_to_fit();
  return std::exchange(log_, {});
}

void Lienzo::Devolver(const Diario& log) {
  for (auto run = log.corridas.rbegin(); run != log.corridas.rend(); ++run) {
    if (run->largo == 0) {
      Sustituir(Lienzo(*log.lienzos[run->valor]));
      continue;
    }
    Escribir(run->desde, run->largo, run->valor, run->tinta);
    const int across = columns_ + 1;
    const int first = static_cast<int>(run->desde), last = first + static_cast<int>(run->largo) - 1;
    if (first / across == last / across) {
      Marcar({{first % across, first / across}, {last % across, last / across}});
    } else {
      Marcar({{0, first / across}, {columns_, last / across}});
    }
  }
}

std::vector<ZonaDeCeldas> Lienzo::Cambiadas() {
  return std::exchange(changed_, {});
}

bool Lienzo::operator==(const Lienzo& other) const {
  if (columns_ != other.columns_ || words_ != other.words_) return false;
  if (inks_.empty() == other.inks_.empty()) return inks_ == other.inks_;
  return std::ranges::all_of(inks_.empty() ? other.inks_ : inks_,
                             [](Colour ink) { return ink == kNoColour; });
}

}  // namespace pixmosa
