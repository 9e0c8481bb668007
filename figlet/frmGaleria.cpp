#include "figlet/frmGaleria.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include "figlet/frmGaleriaModelo.h"
#include "figlet/frmGaleriaPintor.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Named.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

constexpr int kMayorAlto = 60, kMayorAncho = 60;
constexpr char kFavoritas[] = "\n";  // no category is called so

QSpinBox* Limite(const char* name, int most, const char* help) {
  auto* number = named<QSpinBox>(name);
  number->setRange(0, most);
  number->setSpecialValueText(QStringLiteral("cualquiera"));
  number->setToolTip(QString::fromUtf8(help));
  return number;
}

QCheckBox* Casilla(const char* name, const char* text, const char* help) {
  auto* box = named<QCheckBox>(name, QString::fromUtf8(text));
  box->setToolTip(QString::fromUtf8(help));
  return box;
}

void Anadir(QHBoxLayout* row, const char* caption, QWidget* control) {
  auto* label = new QLabel(QString::fromUtf8(caption));
  label->setBuddy(control);
  row->addWidget(label);
  row->addWidget(control);
}

}  // namespace

frmGaleria::frmGaleria(std::vector<std::filesystem::path> folders, Registry& registry, QWidget* parent)
    : QDialog(parent),
      modelo_(new frmGaleriaModelo(std::move(folders), registry, this)),
      pintor_(new frmGaleriaPintor(this)) {
  setObjectName("frmGaleria");
  setWindowTitle(QStringLiteral("Galería de fuentes"));
  txtTextoGaleria_ = named<AreaDeTexto>("txtTextoGaleria");
  txtTextoGaleria_->PonerFuente({"Lucida Console", 10});
  txtTextoGaleria_->setFrameShape(QFrame::StyledPanel);
  txtTextoGaleria_->setMaximumHeight(56);
  txtTextoGaleria_->setTabChangesFocus(true);
  txtTextoGaleria_->setToolTip(QStringLiteral("El texto que se ve en cada fuente: el del letrero"));
  lsvGaleria_ = named<QListView>("lsvGaleria");
  lsvGaleria_->setModel(modelo_);
  lsvGaleria_->setItemDelegate(pintor_);
  lsvGaleria_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  lsvGaleria_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lsvGaleria_->setResizeMode(QListView::Adjust);
  lsvGaleria_->setSpacing(1);
  lsvGaleria_->setAlternatingRowColors(true);
  lsvGaleria_->setToolTip(
      QStringLiteral("Pulse una fuente para escribir con ella; la estrella, para marcarla"));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(txtTextoGaleria_);
  layout->addLayout(CrearBusqueda());
  layout->addLayout(CrearMedidas());
  layout->addWidget(lsvGaleria_, 1);
  auto* foot = new QHBoxLayout;
  chkFavorita_ = Casilla("chkFavorita", "&Favorita", "Marca la fuente señalada como favorita");
  lblCuantas_ = named<QLabel>("lblCuantas");
  foot->addWidget(chkFavorita_);
  foot->addStretch(1);
  foot->addWidget(lblCuantas_);
  layout->addLayout(foot);
  Conectar();
  MostrarFavorita();
  MostrarCuantas();
  resize(QSize(780, 680).boundedTo(screen()->availableSize() - QSize(32, 64)));
}

QLayout* frmGaleria::CrearBusqueda() {
  txtBuscarFuente_ = named<QLineEdit>("txtBuscarFuente");
  txtBuscarFuente_->setPlaceholderText(QStringLiteral("Buscar por nombre"));
  txtBuscarFuente_->setClearButtonEnabled(true);
  txtBuscarFuente_->setToolTip(QStringLiteral("Solo las fuentes con este texto en el nombre"));
  cboCategoria_ = named<QComboBox>("cboCategoria");
  cboCategoria_->setToolTip(QStringLiteral("Solo las fuentes de una categoría, o las favoritas"));
  LlenarCategorias();
  chkEspanol_ =
      Casilla("chkEspanol", "Completa para &español",
              "Solo las fuentes con todas las letras y signos del español: ñ, acentos, ü, ¿ ¡ « » €");
  auto* row = new QHBoxLayout;
  row->addWidget(txtBuscarFuente_, 1);
  row->addWidget(cboCategoria_);
  row->addWidget(chkEspanol_);
  return row;
}

QLayout* frmGaleria::CrearMedidas() {
  numAltoMayor_ = Limite("numAltoMayor", kMayorAlto, "Solo las fuentes de tantas filas como mucho");
  numAnchoMayor_ =
      Limite("numAnchoMayor", kMayorAncho, "Solo las fuentes cuyas letras miden tantas columnas como mucho");
  cboOrden_ = named<QComboBox>("cboOrden");
  cboOrden_->addItems({QStringLiteral("Nombre"), QStringLiteral("Alto")});
  cboOrden_->setToolTip(QStringLiteral("El orden de la lista"));
  auto* row = new QHBoxLayout;
  Anadir(row, "A&lto hasta:", numAltoMayor_);
  row->addSpacing(12);
  Anadir(row, "A&ncho hasta:", numAnchoMayor_);
  row->addStretch(1);
  Anadir(row, "&Orden:", cboOrden_);
  return row;
}

void frmGaleria::LlenarCategorias() {
  const QSignalBlocker quiet(cboCategoria_);
  const QVariant chosen = cboCategoria_->currentData();
  cboCategoria_->clear();
  cboCategoria_->addItem(QStringLiteral("Todas"), QString());
  cboCategoria_->addItem(QStringLiteral("Favoritas"), QString(kFavoritas));
  for (const std::string& name : modelo_->Categorias()) cboCategoria_->addItem(Q(name), Q(name));
  cboCategoria_->setCurrentIndex(std::max(0, cboCategoria_->findData(chosen)));
}

void frmGaleria::Conectar() {
  connect(txtTextoGaleria_, &QPlainTextEdit::textChanged, this,
          [this] { emit TextoCambiado(txtTextoGaleria_->Utf8()); });
  connect(txtBuscarFuente_, &QLineEdit::textChanged, this, &frmGaleria::Cribar);
  connect(txtBuscarFuente_, &QLineEdit::returnPressed, this, [this] {
    if (!lsvGaleria_->currentIndex().isValid()) lsvGaleria_->setCurrentIndex(modelo_->index(0));
    Elegir(lsvGaleria_->currentIndex());
  });
  connect(cboCategoria_, &QComboBox::currentIndexChanged, this, &frmGaleria::Cribar);
  connect(cboOrden_, &QComboBox::currentIndexChanged, this, &frmGaleria::Cribar);
  connect(chkEspanol_, &QCheckBox::toggled, this, &frmGaleria::Cribar);
  for (QSpinBox* number : {numAltoMayor_, numAnchoMayor_})
    connect(number, &QSpinBox::valueChanged, this, &frmGaleria::Cribar);
  connect(lsvGaleria_, &QListView::clicked, this, [this](const QModelIndex& index) {
    if (!pintor_->EraLaEstrella()) Elegir(index);
  });
  connect(lsvGaleria_, &QListView::activated, this, &frmGaleria::Elegir);
  connect(lsvGaleria_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          &frmGaleria::MostrarFavorita);
  connect(modelo_, &QAbstractItemModel::dataChanged, this, &frmGaleria::MostrarFavorita);
  connect(chkFavorita_, &QCheckBox::clicked, this, [this](bool marked) {
    modelo_->setData(lsvGaleria_->currentIndex(), marked, frmGaleriaModelo::kFavorita);
    if (cboCategoria_->currentData() == kFavoritas) Cribar();
  });
  medida_.setInterval(0);
  connect(&medida_, &QTimer::timeout, this, &frmGaleria::Medir);
}

void frmGaleria::PonerTexto(const std::string& utf8, const OpcionesDeLetrero& options) {
  if (txtTextoGaleria_->Utf8() != utf8) txtTextoGaleria_->PonerUtf8(utf8);
  if (modelo_->PonerTexto(utf8, options)) lsvGaleria_->doItemsLayout();
}

void frmGaleria::Senalar(const std::string& name) {
  const QModelIndex at = modelo_->FilaDe(Q(name));
  lsvGaleria_->setCurrentIndex(at);
  if (at.isValid()) lsvGaleria_->scrollTo(at);
}

void frmGaleria::Releer() {
  const QString name = lsvGaleria_->currentIndex().data(frmGaleriaModelo::kNombre).toString();
  modelo_->Releer();
  LlenarCategorias();
  midiendo_ = true;
  if (isVisible()) medida_.start();
  Cribar();
  Senalar(name.toStdString());
}

void frmGaleria::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (midiendo_) medida_.start();
}

void frmGaleria::Cribar() {
  const QString name = lsvGaleria_->currentIndex().data(frmGaleriaModelo::kNombre).toString();
  const QString category = cboCategoria_->currentData().toString();
  const bool favourites = category == kFavoritas;
  if (chkEspanol_->isChecked() || numAnchoMayor_->value() > 0) {
    while (modelo_->Medir()) {
    }
  }
  modelo_->PonerCriba(
      {txtBuscarFuente_->text().toStdString(), favourites ? "" : category.toStdString(), nullptr,
       chkEspanol_->isChecked(), cboOrden_->currentIndex() == 1,
       static_cast<std::size_t>(numAltoMayor_->value()), static_cast<std::size_t>(numAnchoMayor_->value())},
      favourites);
  if (lsvGaleria_->currentIndex().data(frmGaleriaModelo::kNombre).toString() != name)
    Senalar(name.toStdString());
  MostrarFavorita();
  MostrarCuantas();
}

void frmGaleria::Medir() {
  midiendo_ = modelo_->Medir();
  if (midiendo_) return;
  medida_.stop();
  Cribar();
}

void frmGaleria::Elegir(const QModelIndex& index) {
  if (index.isValid()) emit FuenteElegida(index.data(frmGaleriaModelo::kNombre).toString().toStdString());
}

void frmGaleria::MostrarFavorita() {
  const QModelIndex at = lsvGaleria_->currentIndex();
  chkFavorita_->setEnabled(at.isValid());
  chkFavorita_->setChecked(at.data(frmGaleriaModelo::kFavorita).toBool());
}

void frmGaleria::MostrarCuantas() {
  const int shown = modelo_->rowCount(), all = modelo_->Cuantas();
  lblCuantas_->setText(shown == all ? QStringLiteral("%1 fuentes").arg(all)
                                    : QStringLiteral("%1 de %2 fuentes").arg(shown).arg(all));
}

}  // namespace pixmosa
