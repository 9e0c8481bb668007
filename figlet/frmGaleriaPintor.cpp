#include "figlet/frmGaleriaPintor.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include "figlet/frmGaleriaModelo.h"
#include "platform/qt/QtFont.h"

namespace pixmosa {
namespace {

constexpr int kMargen = 8, kMasFilas = 9, kEstrella = 26;
constexpr double kMenorEscala = 0.35;

// The name's line at the top of a row, and the star at its right end.
QRect Cabecera(const QStyleOptionViewItem& option) {
  const QRect r = option.rect.adjusted(kMargen, kMargen / 2, -kMargen, 0);
  return {r.left(), r.top(), r.width(), option.fontMetrics.height() + 4};
}

QRect Estrella(const QStyleOptionViewItem& option) {
  const QRect r = Cabecera(option);
  return {r.right() - kEstrella, r.top(), kEstrella, r.height()};
}

}  // namespace

frmGaleriaPintor::frmGaleriaPintor(QObject* parent)
    : QStyledItemDelegate(parent), letra_(SmoothQtFontOf({"Lucida Console", 7}, 1)) {
  const QFontMetricsF metrics(letra_);
  ancho_ = metrics.horizontalAdvance(u'M');
  alto_ = std::ceil(metrics.ascent() + metrics.descent());
}

QSize frmGaleriaPintor::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const int rows = std::clamp(index.data(frmGaleriaModelo::kFilas).toInt(), 1, kMasFilas);
  return {200, option.fontMetrics.height() + 4 + 2 * kMargen + static_cast<int>(rows * alto_)};
}

void frmGaleriaPintor::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  const bool selected = option.state & QStyle::State_Selected;
  const QPalette::ColorGroup group =
      option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
  const QColor ink = option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
  QColor soft = ink;
  soft.setAlphaF(0.6F);
  painter->save();
  QApplication::style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
  const QRect head = Cabecera(option);
  QFont bold = option.font;
  bold.setBold(true);
  const QString name = index.data(frmGaleriaModelo::kNombre).toString().section('.', 0, -2);
  painter->setPen(ink);
  painter->setFont(bold);
  painter->drawText(head, Qt::AlignLeft | Qt::AlignVCenter, name);
  const int used = QFontMetrics(bold).horizontalAdvance(name) + 12;
  painter->setFont(option.font);
  const bool marked = index.data(frmGaleriaModelo::kFavorita).toBool();
  painter->setPen(marked ? ink : soft);
  painter->drawText(Estrella(option), Qt::AlignCenter, marked ? QStringLiteral("★") : QStringLiteral("☆"));
  painter->setPen(soft);
  painter->drawText(head.adjusted(used, 0, -kEstrella, 0), Qt::AlignLeft | Qt::AlignVCenter,
                    index.data(frmGaleriaModelo::kNota).toString());
  const QStringList rows = index.data(frmGaleriaModelo::kLetrero).toStringList();
  qsizetype columns = 1;
  for (const QString& row : rows) columns = std::max(columns, row.size());
  const QRectF box = QRectF(option.rect).adjusted(kMargen, head.height() + kMargen, -kMargen, -kMargen / 2.0);
  const double fits =
      std::min({1.0, box.width() / (static_cast<double>(columns) * ancho_),
                box.height() / (static_cast<double>(std::max<qsizetype>(rows.size(), 1)) * alto_)});
  const double scale = std::max(fits, kMenorEscala);
  painter->setClipRect(box);
  painter->translate(box.topLeft());
  painter->scale(scale, scale);
  painter->setFont(letra_);
  painter->setPen(ink);
  const double ascent = QFontMetricsF(letra_).ascent();
  for (qsizetype i = 0; i < rows.size() && static_cast<double>(i) * alto_ * scale < box.height(); ++i)
    painter->drawText(QPointF(0, ascent + static_cast<double>(i) * alto_), rows[i]);
  painter->restore();
}

bool frmGaleriaPintor::editorEvent(QEvent* event, QAbstractItemModel* model,
                                   const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (event->type() != QEvent::MouseButtonRelease) return false;
  estrella_ = Estrella(option).contains(static_cast<QMouseEvent*>(event)->pos());
  if (!estrella_) return false;
  return model->setData(index, !index.data(frmGaleriaModelo::kFavorita).toBool(),
                        frmGaleriaModelo::kFavorita);
}

}  // namespace pixmosa
