#include "exportar/frmExportar.h"

#include <algorithm>
#include <initializer_list>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include "platform/Dialogs.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Muestra.h"
#include "platform/qt/Named.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

constexpr int kMayorEscala = 8;

// Which formats an option is for, by their endings.
bool Tiene(const QString& format, std::initializer_list<const char*> formats) {
  return std::any_of(formats.begin(), formats.end(),
                     [&](const char* f) { return format == QLatin1String(f); });
}

QCheckBox* Casilla(const char* name, const char* text, const char* help, bool checked) {
  auto* box = named<QCheckBox>(name, QString::fromUtf8(text));
  box->setToolTip(QString::fromUtf8(help));
  box->setChecked(checked);
  return box;
}

}  // namespace

frmExportar::frmExportar(Programa& program, Dialogs& dialogs, Extent text, bool picture, QWidget* parent)
    : QDialog(parent), program_(program), dialogs_(dialogs), text_(text), chosen_(program.exportar) {
  setObjectName("frmExportar");
  setWindowTitle(QStringLiteral("Exportar el dibujo"));
  CrearControles(picture);
  form_ = new QFormLayout;
  form_->addRow(QStringLiteral("&Formato:"), cboFormato_);
  form_->addRow(chkColor_);
  form_->addRow(QStringLiteral("&Título:"), txtTitulo_);
  CrearColores();
  form_->addRow(chkSinImagenes_);
  form_->addRow(chkTrazos_);
  form_->addRow(QStringLiteral("&Escala:"), numEscala_);
  form_->addRow(QString(), lblTamano_);
  form_->addRow(QStringLiteral("&Colores del terminal:"), cboColores_);
  auto* buttons = named<QDialogButtonBox>("botones", QDialogButtonBox::Save | QDialogButtonBox::Cancel);
  buttons->button(QDialogButtonBox::Save)->setText(QStringLiteral("&Guardar en..."));
  buttons->button(QDialogButtonBox::Save)->setObjectName("cmdExportar");
  buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Cancelar"));
  connect(buttons, &QDialogButtonBox::accepted, this, &frmExportar::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form_);
  layout->addStretch(1);
  layout->addWidget(buttons);
  connect(cboFormato_, &QComboBox::currentIndexChanged, this, &frmExportar::MostrarFormato);
  connect(numEscala_, &QSpinBox::valueChanged, this, &frmExportar::MostrarTamano);
  MostrarFormato();
  MostrarTamano();
}

void frmExportar::CrearControles(bool picture) {
  cboFormato_ = named<QComboBox>("cboFormato");
  for (const Formato& f : Formatos())
    cboFormato_->addItem(Q(std::string(f.rotulo) + " (." + f.terminacion + ")"),
                         QString::fromUtf8(f.terminacion));
  cboFormato_->setCurrentIndex(std::max(0, cboFormato_->findData(Q(program_.formatoDeExportar))));
  chkColor_ =
      Casilla("chkColorDeImagen", "Con los &colores de la imagen",
              "Cada carácter toma el color medio de la parte de la imagen que está debajo", chosen_.color);
  chkColor_->setEnabled(picture);
  txtTitulo_ = named<QLineEdit>("txtTitulo", Q(NombreDeImagen(program_)));
  chkSinImagenes_ =
      Casilla("chkSinImagenes", "Colores en el texto, sin imagen de datos",
              "Para correos y lectores que no muestran imágenes; el archivo ocupa más", chosen_.sinImagenes);
  chkTrazos_ = Casilla("chkTrazos", "Letras como &trazos",
                       "El contorno de cada letra: se ve igual sin tener la fuente", chosen_.trazos);
  numEscala_ = named<QSpinBox>("numEscala");
  numEscala_->setRange(1, kMayorEscala);
  numEscala_->setValue(chosen_.escala);
  numEscala_->setToolTip(QStringLiteral("Veces el tamaño de la fuente elegida"));
  lblTamano_ = named<QLabel>("lblTamano");
  cboColores_ = named<QComboBox>("cboColores");
  cboColores_->addItems({QStringLiteral("todos (24 bits)"), QStringLiteral("256"), QStringLiteral("16")});
  cboColores_->setCurrentIndex(static_cast<int>(chosen_.colores));
}

void frmExportar::CrearColores() {
  chkColoresPropios_ = Casilla("chkColoresPropios", "Co&lores propios de papel y tinta",
                               "Sin marcar, el terminal conserva los suyos", chosen_.papelPedido);
  form_->addRow(chkColoresPropios_);
  muestras_ = new QWidget;
  auto* row = new QHBoxLayout(muestras_);
  row->setContentsMargins(0, 0, 0, 0);
  const auto add = [&](const char* name, const char* caption, Colour OpcionesDeExportar::*part) {
    auto* swatch = MuestraDeColor(name, caption, chosen_.*part);
    row->addWidget(new QLabel(QString::fromUtf8(caption) + ":"));
    row->addWidget(swatch);
    connect(swatch, &QAbstractButton::clicked, this, Con(dialogs_, [this, swatch, part](bool) {
              const Colour colour = dialogs_.ChooseColour(chosen_.*part);
              if (colour == kNoColour) return;
              chosen_.*part = colour;
              PintarMuestra(swatch, colour);
            }));
  };
  add("lblPapel", "Papel", &OpcionesDeExportar::papel);
  add("lblTinta", "Tinta", &OpcionesDeExportar::tinta);
  row->addStretch(1);
  form_->addRow(muestras_);
}

void frmExportar::MostrarFormato() {
  const QString format = cboFormato_->currentData().toString();
  const auto show = [&](QWidget* field, bool shown) {
    field->setVisible(shown);
    if (QWidget* label = form_->labelForField(field)) label->setVisible(shown);
  };
  show(chkColor_, !Tiene(format, {"txt"}));
  show(txtTitulo_, Tiene(format, {"html", "svg"}));
  show(chkColoresPropios_, Tiene(format, {"ans"}));
  show(muestras_, !Tiene(format, {"txt"}));
  show(chkSinImagenes_, Tiene(format, {"html"}));
  show(chkTrazos_, Tiene(format, {"svg"}));
  show(numEscala_, Tiene(format, {"png"}));
  show(lblTamano_, Tiene(format, {"png"}));
  show(cboColores_, Tiene(format, {"ans"}));
  adjustSize();
}

void frmExportar::MostrarTamano() {
  const BasAscii& ascii = program_.basAscii;
  const int scale = numEscala_->value();
  lblTamano_->setText(QStringLiteral("%1 x %2 píxeles")
                          .arg(qint64{text_.width} * ascii.CellWidth * scale)
                          .arg(qint64{text_.height} * ascii.CellHeight * scale));
}

void frmExportar::LlamarColores(const QString& text, const QString& help) {
  chkColor_->setText(text);
  chkColor_->setToolTip(help);
}

void frmExportar::accept() {
  chosen_.titulo = txtTitulo_->text().toStdString();
  chosen_.color = chkColor_->isChecked();
  chosen_.sinImagenes = chkSinImagenes_->isChecked();
  chosen_.trazos = chkTrazos_->isChecked();
  chosen_.escala = numEscala_->value();
  chosen_.colores = static_cast<ColoresDeTerminal>(cboColores_->currentIndex());
  chosen_.papelPedido = chosen_.tintaPedida = chkColoresPropios_->isChecked();
  program_.exportar = chosen_;
  program_.formatoDeExportar = cboFormato_->currentData().toString().toStdString();
  QDialog::accept();
}

}  // namespace pixmosa
