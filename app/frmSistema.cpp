#include "app/frmSistema.h"

#include <array>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "platform/qt/Named.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

constexpr char kNotepad[] = "Software\\Microsoft\\Notepad";
constexpr char kExplorer[] = "Software\\Microsoft\\Internet Explorer\\International\\Scripts\\3";
constexpr char kExplicacion[] =
    "En este panel se muestra la configuración actual del bloc de notas y de Internet Explorer.\r\n"
    "Generalmente en IE se obtienen mejores resultados con los tamaños de fuente más pequeños.\r\n"
    "La configuración de ambos programas la puede cambiar directamente desde aquí.";

}  // namespace

frmSistema::frmSistema(Registry& registry, QWidget* parent) : QDialog(parent), registry_(registry) {
  setObjectName("frmSistema");
  setWindowTitle(QStringLiteral("Configuración de aplicaciones del sistema"));
  auto* explanation = named<QLabel>("lblExplicacion", QString::fromUtf8(kExplicacion));

  auto* notepad = named<QGroupBox>("mrcNotePad", QStringLiteral("NotePad"));
  auto* left = new QFormLayout(notepad);
  left->addRow(QStringLiteral("Ajuste de linea:"), chkNAjuste_ = named<QCheckBox>("chkNAjuste"));
  left->addRow(QStringLiteral("Tamaño:"), lblNSize_ = named<QLabel>("lblNSize"));
  left->addRow(QStringLiteral("Fuente:"), lblNFont_ = named<QLabel>("lblNFont"));
  chkNAjuste_->setToolTip(QStringLiteral("Se muestra, pero no se puede cambiar desde aquí"));

  auto* explorer = named<QGroupBox>("mrcExplorer", QStringLiteral("IExplorer"));
  auto* right = new QFormLayout(explorer);
  cboESize_ = named<QComboBox>("cboESize");
  cboESize_->addItems({"Menor", "Pequeña", "Mediana", "Grande", "Mayor"});
  cboESize_->setToolTip(QStringLiteral("Tamaño del texto en el navegador"));
  right->addRow(QStringLiteral("Tamaño"), cboESize_);

  auto* frames = new QHBoxLayout;
  frames->addWidget(notepad, 1);
  frames->addWidget(explorer, 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  buttons->button(QDialogButtonBox::Close)->setText(QStringLiteral("&Cerrar"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(explanation);
  layout->addLayout(frames);
  layout->addWidget(buttons);
  Mostrar();
  connect(chkNAjuste_, &QCheckBox::clicked, this, [this] { chkNAjuste_->setChecked(AjusteDeLinea()); });
  connect(cboESize_, &QComboBox::activated, this, &frmSistema::ElegirTamaño);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

bool frmSistema::AjusteDeLinea() {
  return ReadNumber(registry_, kNotepad, "fwrap") == 1;
}

void frmSistema::Mostrar() {
  chkNAjuste_->setChecked(AjusteDeLinea());
  QLocale numbers = locale();
  numbers.setNumberOptions(QLocale::OmitGroupSeparator);
  lblNSize_->setText(numbers.toString(ReadNumber(registry_, kNotepad, "iPointSize") / 10.0, 'g', 12));
  const auto face = ReadValue(registry_, kNotepad, "lfFaceName");
  if (const auto* name = std::get_if<std::string>(&face)) lblNFont_->setText(QStringOfBytes(*name));
  const auto size = ReadValue(registry_, kExplorer, "IEFontSize");
  const auto* index = std::get_if<std::int32_t>(&size);
  cboESize_->setCurrentIndex(index && *index >= 0 && *index < cboESize_->count() ? *index : -1);
}

void frmSistema::ElegirTamaño(int index) {
  const std::uint8_t size = index;
  const std::array<std::uint8_t, 3> bytes = {size, 0, 0};
  WriteBinary(registry_, kExplorer, "IEFontSize", bytes);
}

}  // namespace pixmosa
