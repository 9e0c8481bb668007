// The gallery's list: the fonts that pass the sieve, each with the user's text drawn in it when it is asked
// for.
#pragma once

#include <string>

#include <QAbstractListModel>
#include <QCache>
#include <QStringList>

#include "figlet/Galeria.h"

namespace pixmosa {

class frmGaleriaModelo final : public QAbstractListModel {
  Q_OBJECT

 public:
  // Qt::DisplayRole is the name without its ending and the banner, LF between the rows; without the blank
  // ones above and below.
  enum Papel { kNombre = Qt::UserRole, kLetrero, kFilas, kNota, kFavorita };

  frmGaleriaModelo(std::vector<std::filesystem::path> folders, Registry& registry, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;  // kFavorita

  // Whether the rows' heights are others now.
  bool PonerTexto(const std::string& utf8, const OpcionesDeLetrero& options);
  void PonerCriba(const CribaDeFuentes& sieve, bool favourites);
  void Releer();

  // Measures some fonts more; false where none is left.
  bool Medir();
  // Takes in what was measured since.
  void Cribar();

  QModelIndex FilaDe(const QString& name) const;
  int Cuantas() const { return static_cast<int>(galeria_.Fichas().size()); }
  std::set<std::string> Categorias() const { return galeria_.Categorias(); }

 private:
  const FichaDeFuente& Ficha(int row) const {
    return galeria_.Fichas()[filas_[static_cast<std::size_t>(row)]];
  }
  const QStringList& Letrero(int row) const;

  Registry& registry_;
  mutable Galeria galeria_;
  Favoritas favoritas_;
  CribaDeFuentes criba_;
  std::string texto_;
  OpcionesDeLetrero opciones_;
  std::vector<std::size_t> filas_;
  mutable QCache<std::size_t, QStringList> letreros_;
};

}  // namespace pixmosa
