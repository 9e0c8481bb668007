#include "figlet/frmFiglet.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "figlet/frmFigAbout.h"
#include "figlet/frmGaleria.h"
#include "platform/CodePage.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Menus.h"
#include "platform/qt/Named.h"

namespace pixmosa {
namespace {

namespace fs = std::filesystem;

constexpr int kMayorAncho = 2000;

struct Alineacion {
  const char* clave;
  const char* icono;
  Qt::AlignmentFlag valor;
  Lado lado;
};

constexpr Alineacion kAlineaciones[] = {{"Izquierda", "format-justify-left", Qt::AlignLeft, Lado::Izquierda},
                                        {"Centrado", "format-justify-center", Qt::AlignHCenter, Lado::Centro},
                                        {"Derecha", "format-justify-right", Qt::AlignRight, Lado::Derecha}};

// One of several buttons of which one is always down.
QAction* Boton(QToolBar* bar, QActionGroup* group, const char* name, const char* icon) {
  QAction* action = bar->addAction(Icono(icon), QString::fromUtf8(name));
  action->setObjectName(QString::fromUtf8(name));
  action->setToolTip(QString::fromUtf8(name));
  action->setCheckable(true);
  group->addAction(action);
  action->setChecked(group->actions().size() == 1);
  return action;
}

// The font's file that an entry stands for; empty for none.
std::string NombreDe(const QListWidgetItem* item) {
  return item ? item->data(Qt::UserRole).toString().toStdString() : "";
}

std::string NombreDe(const QTreeWidgetItem* item) {
  const bool font = item && item->data(0, Qt::UserRole).toString().count(u';') >= 2;
  return font ? item->text(0).toStdString() + ".flf" : "";
}

}  // namespace

frmFiglet::frmFiglet(BasFigLet& font, OpcionesDeLetrero& options, std::vector<fs::path> folders,
                     const Escritorio& desktop, QWidget* parent)
    : QWidget(parent),
      font_(font),
      opciones_(options),
      folders_(std::move(folders)),
      desktop_(desktop),
      enUso_(font) {
  setObjectName("frmFiglet");
  setAcceptDrops(true);
  CrearControles();
  LlenarListas();
  Conectar();
}

void frmFiglet::CrearControles() {
  txtFigText_ = named<AreaDeTexto>("txtFigText");
  txtFigText_->setAccessibleName(QStringLiteral("Texto del letrero"));
  txtFigText_->PonerFuente({"Lucida Console", 10});
  txtFigText_->PonerTexto("Pixmosa\r\n");
  txtFigText_->setFrameShape(QFrame::StyledPanel);
  txtFigText_->setMaximumHeight(80);
  txtFigText_->setToolTip(QStringLiteral("El texto del letrero"));
  lsvFuentesFig_ = named<QListWidget>("lsvFuentesFig");
  lsvFuentesFig_->setAccessibleName(QStringLiteral("Fuentes de letreros"));
  lsvFuentesFig_->setToolTip(
      QStringLiteral("Fuentes de letreros: pulse una, o recórralas con las flechas. Arrastre aquí otras"));
  tvwFigFonts_ = named<QTreeWidget>("tvwFigFonts");
  tvwFigFonts_->setAccessibleName(QStringLiteral("Fuentes de letreros por categorías"));
  tvwFigFonts_->header()->hide();
  tvwFigFonts_->hide();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 4, 0, 0);
  layout->addWidget(txtFigText_);
  layout->addLayout(CrearBarras());
  layout->addLayout(CrearComposicion());
  layout->addWidget(lsvFuentesFig_, 1);
  layout->addWidget(tvwFigFonts_, 1);
}

QToolBar* frmFiglet::CrearVistas() {
  auto* bar = named<QToolBar>("Toolbar3");
  auto* group = new QActionGroup(bar);
  const auto view = [&](const char* name, const char* icon, bool list) {
    connect(Boton(bar, group, name, icon), &QAction::triggered, this, [this, list] {
      lsvFuentesFig_->setVisible(list);
      tvwFigFonts_->setVisible(!list);
      if (tvwFigFonts_->currentItem()) tvwFigFonts_->scrollToItem(tvwFigFonts_->currentItem());
    });
  };
  view("Lista simple", "view-list", true);
  view("Lista agrupada por categorías", "view-tree", false);
  return bar;
}

QToolBar* frmFiglet::CrearAlineacion() {
  auto* bar = named<QToolBar>("TBFIGAlinea");
  auto* group = new QActionGroup(bar);
  for (const Alineacion& a : kAlineaciones)
    connect(Boton(bar, group, a.clave, a.icono), &QAction::triggered, this, [this, value = a.valor] {
      lado_ = value;
      Alinear();
    });
  return bar;
}

QLayout* frmFiglet::CrearBarras() {
  auto* info = named<QToolButton>("cmdInfoFIG");
  info->setAccessibleName(QStringLiteral("Información sobre la fuente"));
  info->setIcon(Icono("help-about"));
  info->setToolTip(QStringLiteral("Información sobre la fuente seleccionada"));
  connect(info, &QAbstractButton::clicked, this,
          [this] { frmFigAbout(directa_ ? enUso_.Fuente().comentario : font_.Comment, this).exec(); });
  auto* add = named<QToolButton>("cmdAgregarFIG");
  add->setText(QStringLiteral("Añadir..."));
  add->setToolTip(QStringLiteral("Añade fuentes FIGlet de otros sitios"));
  add->setPopupMode(QToolButton::InstantPopup);
  add->setMenu(CrearMenuDeAgregar());
  auto* row = new QHBoxLayout;
  row->addWidget(CrearVistas());
  row->addWidget(CrearAlineacion());
  row->addStretch(1);
  row->addWidget(info);
  row->addWidget(add);
  return row;
}

QLayout* frmFiglet::CrearComposicion() {
  cboComposicion_ = named<QComboBox>("cboComposicion");
  for (const char* text : {"Ancho completo", "Juntar", "Fundir", "Como diga la fuente"})
    cboComposicion_->addItem(QString::fromUtf8(text));
  cboComposicion_->setCurrentIndex(static_cast<int>(opciones_.composicion.composicion));
  cboComposicion_->setToolTip(
      QStringLiteral("Cómo se ponen las letras: enteras, juntas hasta tocarse, o compartiendo trazos"));
  numAncho_ = named<QSpinBox>("numAncho");
  numAncho_->setRange(0, kMayorAncho);
  numAncho_->setValue(opciones_.composicion.ancho);
  numAncho_->setSpecialValueText(QStringLiteral("sin límite"));
  numAncho_->setToolTip(QStringLiteral("Columnas en que se parte el texto por palabras"));
  auto* caption = new QLabel(QStringLiteral("A&ncho:"));
  caption->setBuddy(numAncho_);
  auto* gallery = named<QPushButton>("cmdGaleria", QStringLiteral("&Galería..."));
  gallery->setToolTip(QStringLiteral("Su texto en todas las fuentes, para elegir"));
  connect(gallery, &QAbstractButton::clicked, this, &frmFiglet::AbrirGaleria);
  cmdAcabado_ = CrearAcabado();
  auto* rows = new QGridLayout;
  rows->addWidget(cboComposicion_, 0, 0);
  rows->addWidget(caption, 0, 1, Qt::AlignRight);
  rows->addWidget(numAncho_, 0, 2);
  rows->addWidget(gallery, 1, 0);
  rows->addWidget(cmdAcabado_, 1, 1, 1, 2);
  rows->setColumnStretch(0, 1);
  return rows;
}

void frmFiglet::Conectar() {
  connect(txtFigText_, &QPlainTextEdit::textChanged, this, &frmFiglet::Dibujar);
  connect(cboComposicion_, &QComboBox::currentIndexChanged, this, [this](int item) {
    opciones_.composicion.composicion = static_cast<Composicion>(item);
    Dibujar();
  });
  connect(numAncho_, &QSpinBox::valueChanged, this, [this](int columns) {
    opciones_.composicion.ancho = columns;
    Dibujar();
  });
  const auto move = [this](const std::string& name) {
    if (name.empty()) return;
    Cargar(name);
    reciente_ = true;
  };
  // The press of a click has loaded another font already; one on the same font loads it anew.
  const auto click = [this](const std::string& name) {
    if (!name.empty() && !reciente_) Cargar(name);
    reciente_ = false;
  };
  connect(lsvFuentesFig_, &QListWidget::currentItemChanged, this,
          [move](const QListWidgetItem* item) { move(NombreDe(item)); });
  connect(tvwFigFonts_, &QTreeWidget::currentItemChanged, this,
          [move](const QTreeWidgetItem* item) { move(NombreDe(item)); });
  connect(lsvFuentesFig_, &QListWidget::itemClicked, this,
          [click](const QListWidgetItem* item) { click(NombreDe(item)); });
  connect(lsvFuentesFig_, &QListWidget::itemActivated, this,
          [click](const QListWidgetItem* item) { click(NombreDe(item)); });
  connect(tvwFigFonts_, &QTreeWidget::itemClicked, this,
          [click](const QTreeWidgetItem* item) { click(NombreDe(item)); });
  connect(tvwFigFonts_, &QTreeWidget::itemActivated, this,
          [click](const QTreeWidgetItem* item) { click(NombreDe(item)); });
}

void frmFiglet::PrimeraVez() {
  if (mostrada_) return;
  mostrada_ = true;
  if (Cuantas() > 0) Cargar(NombreDe(lsvFuentesFig_->item(0)));
}

void frmFiglet::Cargar(const std::string& name) {
  Mostrar("");
  LoadFont(font_, ArchivoDeFuente(folders_, name),
           [this](const std::string& text) { desktop_.dialogos.Fail(text); });
  enUso_ = FuenteEnUso(font_);
  directa_ = false;
  cargada_ = name;
  Senalar(name);
  if (galeria_) galeria_->Senalar(name);
  Dibujar();
}

void frmFiglet::Dibujar() {
  if (galeria_) galeria_->PonerTexto(txtFigText_->Utf8(), opciones_);
  if (!directa_ && EsElDeSiempre(opciones_)) {
    Mostrar(RenderBanner(font_, txtFigText_->Texto()));
    return;
  }
  Intentar(desktop_.dialogos, [this] {
    const Dibujo drawing = enUso_.Dibujar(txtFigText_->Utf8(), opciones_);
    const std::string bytes = BytesDe(drawing), utf8 = Utf8De(drawing);
    Mostrar(bytes, Utf8OfBytes(bytes) == utf8 ? "" : utf8);
  });
}

void frmFiglet::Mostrar(std::string banner, const std::string& utf8) {
  font_.Banner = std::move(banner);
  emit LetreroCambiado(font_.Banner, utf8);
}

// What is written into the text itself is shown from the left, as it is.
void frmFiglet::Alinear() {
  const bool inText = mnuAlinearTexto_->isChecked();
  std::optional<Lado> side;
  for (const Alineacion& a : kAlineaciones)
    if (inText && lado_ == a.valor) side = a.lado;
  txtFigText_->Alinear(lado_);
  emit AlineacionCambiada(inText ? Qt::AlignLeft : lado_);
  if (side == opciones_.composicion.alinear) return;
  opciones_.composicion.alinear = side;
  Dibujar();
}

void frmFiglet::AbrirGaleria() {
  if (!galeria_) {
    galeria_ = new frmGaleria(folders_, desktop_.registro, this);
    connect(galeria_, &frmGaleria::FuenteElegida, this, &frmFiglet::Cargar);
    connect(galeria_, &frmGaleria::TextoCambiado, this, [this](const std::string& utf8) {
      if (txtFigText_->Utf8() != utf8) txtFigText_->PonerUtf8(utf8);
    });
    galeria_->PonerTexto(txtFigText_->Utf8(), opciones_);
    galeria_->Senalar(cargada_);
  }
  galeria_->show();
  galeria_->raise();
  galeria_->activateWindow();
}

}  // namespace pixmosa
