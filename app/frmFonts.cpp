#include "app/frmFonts.h"

#include <QDialogButtonBox>
#include <QFont>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Named.h"
#include "platform/qt/QtText.h"

namespace pixmosa {

frmFonts::frmFonts(const std::vector<std::string>& names, const std::string& current, QWidget* parent)
    : QDialog(parent) {
  setObjectName("frmFonts");
  setWindowTitle(QStringLiteral("Fuentes de ancho fijo"));
  auto* help = named<QLabel>(
      "lblExplicacion",
      QStringLiteral("El AsciiArt necesita una fuente de ancho fijo: todos sus caracteres "
                     "ocupan lo mismo y las columnas quedan alineadas. Elija una de la lista."));
  help->setWordWrap(true);
  auto* list = named<QListWidget>("lvwFuentes");
  list->setAccessibleName(windowTitle());
  for (const std::string& name : names) {
    auto* item = new QListWidgetItem(Q(name), list);
    item->setFont(QFont(Q(name)));
    if (name == current) list->setCurrentItem(item);
  }
  auto* count = named<QLabel>("lblFontCount", QStringLiteral("Fuentes encontradas: %1").arg(names.size()));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  buttons->button(QDialogButtonBox::Close)->setText(QStringLiteral("&Cerrar"));

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(help);
  layout->addWidget(list, 1);
  layout->addWidget(count);
  layout->addWidget(buttons);
  resize(420, 460);
  // The row that is current changes also when the list merely gets the focus; the selection does not.
  connect(list, &QListWidget::itemSelectionChanged, this, [this, list] {
    for (const QListWidgetItem* item : list->selectedItems()) emit Elegida(item->text());
  });
  connect(list, &QListWidget::itemActivated, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

}  // namespace pixmosa
