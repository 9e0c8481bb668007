#include "figlet/frmFiglet.h"

#include <algorithm>
#include <map>
#include <tuple>

#include <QAction>
#include <QActionGroup>
#include <QGuiApplication>
#include <QHeaderView>
#include <QListWidget>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "figlet/AgregarFuentes.h"
#include "figlet/frmFigAbout.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Menus.h"
#include "platform/qt/Named.h"
#include "platform/qt/QtText.h"
#include "platform/zip/Descomprimir.h"

namespace pixmosa {
namespace {

namespace fs = std::filesystem;

constexpr char kAgregar[] = "Añadir fuentes FIGlet";

struct Alineacion {
  const char* clave;
  const char* icono;
  Qt::AlignmentFlag valor;
};

constexpr Alineacion kAlineaciones[] = {{"Izquierda", "format-justify-left", Qt::AlignLeft},
                                        {"Centrado", "format-justify-center", Qt::AlignHCenter},
                                        {"Derecha", "format-justify-right", Qt::AlignRight}};

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

}  // namespace

frmFiglet::frmFiglet(BasFigLet& font, std::vector<fs::path> folders, Dialogs& dialogs, QWidget* parent)
    : QWidget(parent), font_(font), folders_(std::move(folders)), dialogs_(dialogs) {
  setObjectName("frmFiglet");
  CrearControles();
  LlenarListas();
  Conectar();
}

void frmFiglet::CrearControles() {
  txtFigText_ = named<AreaDeTexto>("txtFigText");
  txtFigText_->PonerFuente({"Lucida Console", 10});
  txtFigText_->PonerTexto("Pixmosa\r\n");
  txtFigText_->setFrameShape(QFrame::StyledPanel);
  txtFigText_->setMaximumHeight(80);
  txtFigText_->setToolTip(QStringLiteral("El texto del letrero"));
  lsvFuentesFig_ = named<QListWidget>("lsvFuentesFig");
  lsvFuentesFig_->setToolTip(QStringLiteral("Fuentes de letreros"));
  tvwFigFonts_ = named<QTreeWidget>("tvwFigFonts");
  tvwFigFonts_->header()->hide();
  tvwFigFonts_->hide();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 4, 0, 0);
  layout->addWidget(txtFigText_);
  layout->addLayout(CrearBarras());
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
    connect(Boton(bar, group, a.clave, a.icono), &QAction::triggered, this,
            [this, value = a.valor] { Alinear(value); });
  return bar;
}

QLayout* frmFiglet::CrearBarras() {
  auto* info = named<QToolButton>("cmdInfoFIG");
  info->setIcon(Icono("help-about"));
  info->setToolTip(QStringLiteral("Información sobre la fuente seleccionada"));
  connect(info, &QAbstractButton::clicked, this, [this] { frmFigAbout(font_.Comment, this).exec(); });
  auto* add = named<QToolButton>("cmdAgregarFIG");
  add->setText(QStringLiteral("Añadir..."));
  add->setToolTip(QStringLiteral("Añade fuentes FIGlet de otros sitios"));
  add->setPopupMode(QToolButton::InstantPopup);
  auto* menu = named<QMenu>("mnuAgregarFIG", add);
  for (const auto& [name, text, work] :
       {std::tuple{"mnuAgregarFuentes", "Añadir fuentes FIGlet...", &frmFiglet::PedirFuentes},
        {"mnuAgregarCarpeta", "Añadir una carpeta de fuentes...", &frmFiglet::PedirCarpeta}}) {
    QAction* action = menu->addAction(QString::fromUtf8(text));
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, work);
  }
  add->setMenu(menu);

  auto* row = new QHBoxLayout;
  row->addWidget(CrearVistas());
  row->addWidget(CrearAlineacion());
  row->addStretch(1);
  row->addWidget(info);
  row->addWidget(add);
  return row;
}

void frmFiglet::Conectar() {
  connect(txtFigText_, &QPlainTextEdit::textChanged, this, &frmFiglet::Dibujar);
  const auto fromList = [this](const QListWidgetItem* item) {
    if (item) Cargar(item->data(Qt::UserRole).toString().toStdString());
  };
  connect(lsvFuentesFig_, &QListWidget::itemClicked, this, fromList);
  connect(lsvFuentesFig_, &QListWidget::itemActivated, this, fromList);
  const auto fromTree = [this](const QTreeWidgetItem* item) {
    if (item && item->data(0, Qt::UserRole).toString().count(u';') >= 2)
      Cargar(item->text(0).toStdString() + ".flf");
  };
  connect(tvwFigFonts_, &QTreeWidget::itemClicked, this, fromTree);
  connect(tvwFigFonts_, &QTreeWidget::itemActivated, this, fromTree);
}

void frmFiglet::LlenarListas() {
  lsvFuentesFig_->clear();
  for (const std::string& name : FillFontList(folders_)) {
    auto* item = new QListWidgetItem(Icono("preferences-desktop-font"), Q(name), lsvFuentesFig_);
    item->setData(Qt::UserRole, Q(name));
  }
  tvwFigFonts_->clear();
  constexpr const char* kIcons[] = {"folder", "folder-open", "preferences-desktop-font"};
  std::map<std::string, QTreeWidgetItem*> items;
  for (const NodoDeFuentes& node : ArbolDeFuentes(folders_)) {
    auto* item =
        node.parent.empty() ? new QTreeWidgetItem(tvwFigFonts_) : new QTreeWidgetItem(items.at(node.parent));
    item->setText(0, QStringOfBytes(node.text));
    item->setData(0, Qt::UserRole, QStringOfBytes(node.key));
    item->setIcon(0, Icono(kIcons[node.nivel]));
    items[node.key] = item;
  }
  emit ListaCambiada(Cuantas());
}

int frmFiglet::Cuantas() const {
  return lsvFuentesFig_->count();
}

void frmFiglet::PrimeraVez() {
  if (mostrada_) return;
  mostrada_ = true;
  if (Cuantas() > 0) {
    lsvFuentesFig_->setCurrentRow(0);
    Cargar(lsvFuentesFig_->item(0)->data(Qt::UserRole).toString().toStdString());
  }
}

void frmFiglet::Cargar(const std::string& name) {
  Mostrar("");
  LoadFont(font_, ArchivoDeFuente(folders_, name), [this](const std::string& text) { dialogs_.Fail(text); });
  Dibujar();
}

void frmFiglet::Dibujar() {
  Mostrar(RenderBanner(font_, txtFigText_->Texto()));
}

void frmFiglet::Mostrar(std::string banner) {
  font_.Banner = std::move(banner);
  emit LetreroCambiado(font_.Banner);
}

void frmFiglet::Alinear(Qt::Alignment alignment) {
  txtFigText_->Alinear(alignment);
  emit AlineacionCambiada(alignment);
}

void frmFiglet::PedirFuentes() {
  const std::vector<std::string> chosen =
      dialogs_.OpenFiles(kAgregar, "Fuentes FIGlet (*.flf;*.tlf;*.zip)|*.flf;*.tlf;*.zip");
  if (!chosen.empty()) Agregar({chosen.begin(), chosen.end()});
}

void frmFiglet::PedirCarpeta() {
  const std::string folder = dialogs_.ChooseFolder(kAgregar);
  if (!folder.empty()) Agregar({folder});
}

void frmFiglet::Agregar(const std::vector<fs::path>& chosen) {
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  const std::vector<FuenteAgregada> fonts = AgregarFuentes(folders_, chosen, DescomprimirZip);
  QGuiApplication::restoreOverrideCursor();
  LlenarListas();
  const std::string summary = ResumenDeFuentes(fonts);
  const bool refused = std::any_of(fonts.begin(), fonts.end(), [](const FuenteAgregada& f) {
    return f.suceso == FuenteAgregada::kRechazada;
  });
  if (refused) {
    dialogs_.Fail(summary, kAgregar);
  } else if (!summary.empty()) {
    dialogs_.Inform(summary, kAgregar);
  }
}

}  // namespace pixmosa
