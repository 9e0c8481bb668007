#include "figlet/frmGaleriaModelo.h"

#include <algorithm>

#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

constexpr int kMasLetreros = 64;
constexpr std::size_t kDeUnaVez = 4;

// Lines that a text has; a line end at its end begins no other that is seen.
std::size_t LineasDe(const std::string& text) {
  const auto ends = static_cast<std::size_t>(std::ranges::count(text, '\n'));
  return std::max<std::size_t>(ends + (text.ends_with('\n') ? 0 : 1), 1);
}

QString SinTerminacion(const std::string& name) {
  return Q(std::filesystem::path(name).stem().string());
}

}  // namespace

frmGaleriaModelo::frmGaleriaModelo(std::vector<std::filesystem::path> folders, Registry& registry,
                                   QObject* parent)
    : QAbstractListModel(parent),
      registry_(registry),
      galeria_(std::move(folders)),
      favoritas_(LeerFavoritas(registry)),
      letreros_(kMasLetreros) {
  filas_ = galeria_.Cribar(criba_);
}

int frmGaleriaModelo::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(filas_.size());
}

QVariant frmGaleriaModelo::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const FichaDeFuente& card = Ficha(index.row());
  switch (role) {
    case Qt::DisplayRole:
      return SinTerminacion(card.nombre) + "\n" + Letrero(index.row()).join('\n');
    case kNombre:
      return Q(card.nombre);
    case kLetrero:
      return Letrero(index.row());
    case kFilas:
      return static_cast<int>(card.altura * LineasDe(texto_));
    case kFavorita:
      return favoritas_.contains(card.nombre);
    case kNota: {
      QStringList note{QStringLiteral("alto %1").arg(card.altura)};
      for (const std::string& category : card.categorias) note << Q(category);
      return note.join(QStringLiteral(" · "));
    }
    default:
      return {};
  }
}

bool frmGaleriaModelo::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || role != kFavorita) return false;
  const std::string& name = Ficha(index.row()).nombre;
  if (value.toBool()) {
    favoritas_.insert(name);
  } else {
    favoritas_.erase(name);
  }
  GuardarFavoritas(registry_, favoritas_);
  emit dataChanged(index, index, {kFavorita});
  return true;
}

const QStringList& frmGaleriaModelo::Letrero(int row) const {
  const std::size_t font = filas_[static_cast<std::size_t>(row)];
  if (const QStringList* known = letreros_.object(font)) return *known;
  auto* rows = new QStringList;
  try {
    std::string_view text = texto_;
    while (text.ends_with('\n') || text.ends_with('\r')) text.remove_suffix(1);
    *rows = Q(Utf8De(galeria_.Letrero(font, text, opciones_))).split("\r\n");
    const auto blank = [](const QString& line) { return line.trimmed().isEmpty(); };
    while (!rows->isEmpty() && blank(rows->last())) rows->removeLast();
    while (!rows->isEmpty() && blank(rows->first())) rows->removeFirst();
  } catch (const LetreroExcesivo& e) {
    *rows = {QString::fromUtf8(e.what())};
  }
  letreros_.insert(font, rows);
  return *rows;
}

bool frmGaleriaModelo::PonerTexto(const std::string& utf8, const OpcionesDeLetrero& options) {
  if (utf8 == texto_ && options == opciones_) return false;
  const bool higher = LineasDe(utf8) != LineasDe(texto_);
  texto_ = utf8;
  opciones_ = options;
  letreros_.clear();
  if (!filas_.empty()) emit dataChanged(index(0), index(rowCount() - 1));
  return higher;
}

void frmGaleriaModelo::PonerCriba(const CribaDeFuentes& sieve, bool favourites) {
  criba_ = sieve;
  criba_.favoritas = favourites ? &favoritas_ : nullptr;
  Cribar();
}

void frmGaleriaModelo::Cribar() {
  std::vector<std::size_t> found = galeria_.Cribar(criba_);
  if (found == filas_) return;
  beginResetModel();
  filas_ = std::move(found);
  endResetModel();
}

void frmGaleriaModelo::Releer() {
  beginResetModel();
  letreros_.clear();
  galeria_.Releer();
  filas_ = galeria_.Cribar(criba_);
  endResetModel();
}

bool frmGaleriaModelo::Medir() {
  return galeria_.Medir(kDeUnaVez);
}

QModelIndex frmGaleriaModelo::FilaDe(const QString& name) const {
  for (int row = 0; row < rowCount(); ++row)
    if (Q(Ficha(row).nombre) == name) return index(row);
  return {};
}

}  // namespace pixmosa
