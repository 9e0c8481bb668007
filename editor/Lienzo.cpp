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

void Diario::Anotar(std::size_t at, std::size_t count, const Valor& before) {
  constexpr std::uint32_t kPocos = 8;  // equal values that are not worth a span of their own
  if (!tramos.empty() && tramos.back().largo != 0 && tramos.back().desde + tramos.back().largo == at) {
    Tramo& last = tramos.back();
    if (last.iguales && valores.back() == before) {
      last.largo += static_cast<std::uint32_t>(count);
      return;
    }
    if (count < kPocos && (!last.iguales || last.largo < kPocos)) {
      if (last.iguales) valores.insert(valores.end(), last.largo - 1, Valor(valores.back()));
      last.iguales = false;
      valores.insert(valores.end(), count, before);
      last.largo += static_cast<std::uint32_t>(count);
      return;
    }
  }
  tramos.push_back({static_cast<std::uint32_t>(at), static_cast<std::uint32_t>(count),
                    static_cast<std::uint32_t>(valores.size()), true});
  valores.push_back(before);
}

std::size_t Diario::Bytes() const {
  std::size_t bytes = tramos.capacity() * sizeof(Tramo) + valores.capacity() * sizeof(Valor);
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
  PrepararTinta(content.tinta);
  Escribir(Indice(first), static_cast<std::size_t>(count), {Palabra(content), content.tinta});
  Marcar({first, {first.column + count - 1, first.row}});
}

void Lienzo::Escribir(std::size_t at, std::size_t count, const Diario::Valor& value) {
  const bool inks = !inks_.empty();
  for (std::size_t i = at, next = 0; i < at + count; i = next) {
    const Diario::Valor before{words_[i], inks ? inks_[i] : kNoColour};
    next = i + 1;
    while (next < at + count && words_[next] == before.palabra && (!inks || inks_[next] == before.tinta))
      ++next;
    if (before == value) continue;
    std::fill(words_.data() + i, words_.data() + next, value.palabra);
    if (inks) std::fill(inks_.data() + i, inks_.data() + next, value.tinta);
    if (logging_) log_.Anotar(i, next - i, before);
  }
}

std::vector<std::uint8_t> Lienzo::Donde(char32_t ch) const {
  std::vector<std::uint8_t> there(words_.size());
  std::ranges::transform(words_, there.begin(),
                         [ch](std::uint32_t word) { return std::uint8_t{(word & kLetra) == ch}; });
  return there;
}

void Lienzo::Igualar(const Lienzo& other) {
  if (other.HayTinta() && inks_.empty()) inks_.assign(words_.size(), kNoColour);
  for (std::size_t i = 0; i < words_.size(); ++i)
    Escribir(i, 1, {other.words_[i], other.inks_.empty() ? kNoColour : other.inks_[i]});
  Marcar({{0, 0}, {columns_, rows_ + 1}});
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
    log.tramos.push_back({0, 0, static_cast<std::uint32_t>(log.lienzos.size()), false});
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
  log_.tramos.shrink_to_fit();
  log_.valores.shrink_to_fit();
  return std::exchange(log_, {});
}

void Lienzo::Devolver(const Diario::Tramo& span, const Diario::Valor* values) {
  if (span.iguales) {
    PrepararTinta(values->tinta);
    Escribir(span.desde, span.largo, *values);
    return;
  }
  for (std::size_t i = 0; i < span.largo && inks_.empty(); ++i) PrepararTinta(values[i].tinta);
  log_.tramos.push_back({span.desde, span.largo, static_cast<std::uint32_t>(log_.valores.size()), false});
  const bool inks = !inks_.empty();
  for (std::size_t i = 0, at = span.desde; i < span.largo; ++i, ++at) {
    log_.valores.push_back({words_[at], inks ? inks_[at] : kNoColour});
    words_[at] = values[i].palabra;
    if (inks) inks_[at] = values[i].tinta;
  }
}

void Lienzo::Devolver(const Diario& log) {
  log_.tramos.reserve(log.tramos.size());
  log_.valores.reserve(log.valores.size());
  for (auto span = log.tramos.rbegin(); span != log.tramos.rend(); ++span) {
    if (span->largo == 0) {
      Sustituir(Lienzo(*log.lienzos[span->valores]));
      continue;
    }
    Devolver(*span, &log.valores[span->valores]);
    const int across = columns_ + 1, first = static_cast<int>(span->desde);
    const int row = first / across, last = first + static_cast<int>(span->largo) - 1;
    if (last < (row + 1) * across) {
      Marcar({{first - row * across, row}, {last - row * across, row}});
    } else {
      Marcar({{0, row}, {columns_, last / across}});
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
