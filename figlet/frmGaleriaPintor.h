// Draws a row of the gallery: the font's name, a star for a favourite, and the banner as large as it fits.
#pragma once

#include <QStyledItemDelegate>

namespace pixmosa {

class frmGaleriaPintor final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  explicit frmGaleriaPintor(QObject* parent);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  // Whether the last click was on a star, which it has turned; asked once a click.
  bool EraLaEstrella() { return std::exchange(estrella_, false); }

 protected:
  bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

 private:
  QFont letra_;
  double ancho_, alto_;  // of a character
  bool estrella_ = false;
};

}  // namespace pixmosa
