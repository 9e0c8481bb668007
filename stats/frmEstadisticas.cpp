#include "stats/frmEstadisticas.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "platform/qt/Named.h"
#include "platform/qt/QtFont.h"
#include "platform/qt/QtText.h"
#include "stats/Estadisticas.h"

namespace pixmosa {
namespace {

enum Columna { kItem, kNumero };

// A row that sorts by its number in the second column and by its place in the first showing otherwise.
class Fila final : public QTreeWidgetItem {
 public:
  Fila(const FilaDeEstadistica& row, int place) : place_(place) {
    setText(kItem, Q(Utf8OfBytes(row.label)).replace(u'\r', u' ').replace(u'\n', u' '));
    setText(kNumero, Q(row.value));
    setData(kItem, Qt::UserRole, Q(row.key));
    setTextAlignment(kNumero, Qt::AlignRight | Qt::AlignVCenter);
  }

  bool operator<(const QTreeWidgetItem& other) const override {
    if (treeWidget()->sortColumn() == kNumero) {
      const qulonglong mine = text(kNumero).toULongLong(), theirs = other.text(kNumero).toULongLong();
      if (mine != theirs) return mine < theirs;
    }
    return place_ < static_cast<const Fila&>(other).place_;
  }

 private:
  int place_;
};

}  // namespace

frmEstadisticas::frmEstadisticas(std::string_view text, Shell& shell, QWidget* parent)
    : QDialog(parent), shell_(shell) {
  setObjectName("frmEstadisticas");
  setWindowTitle(QStringLiteral("Estadisticas del Ascii Art"));
  lsvEstadistica_ = named<QTreeWidget>("lsvEstadistica");
  lsvEstadistica_->setAccessibleName(windowTitle());
  lsvEstadistica_->setFont(QtFontOf({"Lucida Console", 10}));
  lsvEstadistica_->setHeaderLabels({QStringLiteral("Item"), QStringLiteral("Número")});
  lsvEstadistica_->setRootIsDecorated(false);
  lsvEstadistica_->setUniformRowHeights(true);
  lsvEstadistica_->setAlternatingRowColors(true);
  lsvEstadistica_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  int place = 0;
  for (const FilaDeEstadistica& row : ShowStatistics(text))
    lsvEstadistica_->addTopLevelItem(new Fila(row, place++));
  lsvEstadistica_->header()->setStretchLastSection(true);
  lsvEstadistica_->resizeColumnToContents(kItem);
  lsvEstadistica_->setColumnWidth(kItem, lsvEstadistica_->columnWidth(kItem) + 24);
  lsvEstadistica_->sortByColumn(-1, Qt::AscendingOrder);
  lsvEstadistica_->setSortingEnabled(true);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  buttons->button(QDialogButtonBox::Close)->setText(QStringLiteral("C&errar"));
  auto* copy = named<QPushButton>("cmdCopiar", QStringLiteral("&Copiar"));
  copy->setToolTip(QStringLiteral("Copia las filas elegidas, o todas (Ctrl+C)"));
  copy->setShortcut(QKeySequence::Copy);
  buttons->addButton(copy, QDialogButtonBox::ActionRole);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(lsvEstadistica_);
  layout->addWidget(buttons);
  resize(360, 520);
  connect(copy, &QPushButton::clicked, this, &frmEstadisticas::Copiar);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void frmEstadisticas::Copiar() {
  const bool all = lsvEstadistica_->selectedItems().isEmpty();
  QString rows;
  for (int i = 0; i < lsvEstadistica_->topLevelItemCount(); ++i) {
    const QTreeWidgetItem* row = lsvEstadistica_->topLevelItem(i);
    if (all || row->isSelected()) rows += row->text(kItem) + "\t" + row->text(kNumero) + "\r\n";
  }
  shell_.CopyText(BytesOfQString(rows));
}

}  // namespace pixmosa
