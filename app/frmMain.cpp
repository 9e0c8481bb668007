#include "app/frmMain.h"

#include <QCheckBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QProgressBar>
#include <QSplitter>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

#include "app/MarcoDeImagen.h"
#include "app/MenuDeImagen.h"
#include "app/PiezasDePanel.h"
#include "app/Recuerdos.h"
#include "app/frmOpcAlgoritmo.h"
#include "figlet/frmFiglet.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Menus.h"
#include "platform/qt/Named.h"
#include "programa/Ajustes.h"

namespace pixmosa {
namespace {

// The toolbar's buttons: a key and the menu entry that the button shows.
struct Boton {
  const char* clave;
  const char* accion;
  const char* texto;
};

constexpr Boton kBotones[] = {
    {"CargarImagen", "mnuLoadImage", "Cargar"},
    {"Play", "mnuPlay", "Generar"},
    {"VistaPrevia", "mnuPreviewAsciiArt", "Previa"},
    {"Fuentes", "mnuFontsChange", "Fuente"},
    {"Guardar", "mnuGuardar", "Guardar"},
};

}  // namespace

frmMain::frmMain(Programa& program, const Escritorio& desktop)
    : p_(program),
      desktop_(desktop),
      prgBar1_(named<QProgressBar>("prgBar1")),
      progreso_(prgBar1_),
      regeneracion_(Con(desktop.dialogos, [this] { Regenerar(); })) {
  setObjectName("frmMain");
  setWindowIcon(Icono("pixmosa"));
  setAcceptDrops(true);
  RecuperarOpciones();
  CrearBarraDeEstado();
  CrearMenus();
  CrearBarras();
  CrearCentro();
  CrearEstados();
  CrearPaneles();
  CrearRecuerdos();
  PrepararVista();
  RecuperarVentana();
  ActualizarAcciones();
  AvisarDeDibujo();
}

frmMain::~frmMain() {
  EsperarAbandonadas();
}

void frmMain::CrearMenus() {
  imagen_ = new MenuDeImagen(p_, progreso_, desktop_.dialogos, this);
  for (const Menu& menu : Menus()) {
    QMenu* m = menuBar()->addMenu(QString::fromUtf8(menu.texto));
    m->setObjectName(menu.nombre);
    m->setToolTipsVisible(true);
    LlenarMenu<Entrada>(m, menu.entradas, this,
                        Con(desktop_.dialogos, [this](const Entrada& row) { (this->*row.hacer)(); }));
    for (std::size_t i = 0; i < menu.entradas.size(); ++i)
      acciones_[menu.entradas[i].nombre] = m->actions().at(static_cast<qsizetype>(i));
    if (m->objectName() == "mnuArchivo") menuBar()->addMenu(imagen_->Menu());
  }
  CrearEntradasDeHistorial();
  CrearRecetas();
  QMenu* asciiArt = menuBar()->findChild<QMenu*>("mnuAsciiArt");
  auto* copy = named<QMenu>("mnuCopiarComo", QStringLiteral("Copiar co&mo"), asciiArt);
  copy->setToolTipsVisible(true);
  LlenarMenu<Entrada>(copy, CopiarComo(), this,
                      Con(desktop_.dialogos, [this](const Entrada& row) { (this->*row.hacer)(); }));
  QAction* behind = asciiArt->actions().at(asciiArt->actions().indexOf(acciones_.at("mnuClipboard")) + 1);
  acciones_["mnuCopiarComo"] = asciiArt->insertMenu(behind, copy);
}

void frmMain::CrearBarras() {
  auto* bar = named<QToolBar>("Toolbar1", QStringLiteral("Principal"));
  bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  for (const Boton& b : kBotones) {
    QAction* entry = acciones_.at(b.accion);
    auto* button = new QAction(entry->icon(), QString::fromUtf8(b.texto), bar);
    button->setObjectName(b.clave);
    button->setToolTip(entry->toolTip() + " (" + entry->shortcut().toString(QKeySequence::NativeText) + ")");
    bar->addAction(button);
    bar->widgetForAction(button)->setFocusPolicy(Qt::TabFocus);
    bar->widgetForAction(button)->setObjectName(b.clave);
    if (entry == acciones_.at("mnuPlay")) CrearAlMomento(bar);
    connect(button, &QAction::triggered, entry, &QAction::trigger);
    connect(entry, &QAction::changed, button, [button, entry] { button->setEnabled(entry->isEnabled()); });
  }
  addToolBar(bar);
  barras_.push_back(bar);
  CrearSelectorDeModo();
}

void frmMain::CrearCentro() {
  marco_ = new MarcoDeImagen;
  auto* left = named<QWidget>("panelIzquierdo");
  auto* column = new QVBoxLayout(left);
  column->setContentsMargins(6, 6, 3, 6);
  column->addWidget(marco_, 1);
  PicAlgoritmos_ = named<QWidget>("PicAlgoritmos");
  column->addWidget(PicAlgoritmos_);

  chkAsciiPrev_ = named<QCheckBox>("chkAsciiPrev", QStringLiteral("Vista previa al generar"));
  chkAsciiPrev_->setToolTip(QStringLiteral("Abre la vista previa después de cada generación"));
  chkAsciiPrev_->setChecked(p_.vistaPrevia);
  connect(chkAsciiPrev_, &QCheckBox::toggled, this, [this](bool shown) { p_.vistaPrevia = shown; });
  txtAscii_ = named<AreaDeTexto>("txtAscii");
  txtAscii_->setAccessibleName(QStringLiteral("Dibujo"));
  imagen_->CederAtajos(txtAscii_);
  CrearPrimerosPasos();
  connect(txtAscii_, &QPlainTextEdit::textChanged, this, &frmMain::ActualizarAcciones);
  connect(txtAscii_, &AreaDeTexto::TextoSustituido, this, [this] {
    Decir(QStringLiteral("El texto editado a mano se ha sustituido."), QStringLiteral("Recuperarlo"),
          [this] { txtAscii_->Deshacer(); });
  });
  auto* head = new QHBoxLayout;
  head->addStretch(1);
  head->addWidget(chkAsciiPrev_);
  auto* right = named<QWidget>("panelDerecho");
  auto* text = new QVBoxLayout(right);
  text->setContentsMargins(3, 6, 6, 6);
  text->addLayout(head);
  text->addWidget(txtAscii_, 1);
  text->addWidget(CrearMedidas());

  auto* splitter = named<QSplitter>("divisor", Qt::Horizontal);
  splitter->addWidget(left);
  splitter->addWidget(right);
  splitter->setStretchFactor(0, 0);
  splitter->setStretchFactor(1, 1);
  splitter->setChildrenCollapsible(false);
  setCentralWidget(splitter);
}

void frmMain::CrearBarraDeEstado() {
  auto* bar = named<QStatusBar>("SBMain");
  setStatusBar(bar);
  const auto panel = [&](const char* key) {
    auto* label = named<QLabel>(key);
    label->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    label->setMargin(3);
    bar->addPermanentWidget(label);
    return label;
  };
  prgBar1_->setMaximumWidth(220);
  prgBar1_->hide();
  bar->addPermanentWidget(prgBar1_);
  panelFuente_ = panel("Fuente");
  panelFiglet_ = panel("Figlet");
  panelTamaño_ = panel("Tamaño");
  panelModo_ = panel("Modo");
  panelModo_->setText("MODO ASCIIART");
}

void frmMain::CrearPaneles() {
  CrearLetreros();
  QGridLayout* area = Superpuestos({figlet_});
  area->setAlignment(figlet_, {});  // as high as there is room
  area->setContentsMargins(0, 0, 0, 0);
  PicAlgoritmos_->setLayout(area);
  CrearOpciones();
  Dialogs& dialogs = desktop_.dialogos;
  connect(imagen_, &MenuDeImagen::ImagenCambiada, this, &frmMain::PasoDado);
  connect(imagen_, &MenuDeImagen::ImagenCambiada, this, &frmMain::AlMomento);
  connect(marco_, &MarcoDeImagen::RecorteElegido, this,
          Con(dialogs, [this](const Zona& zone) { TerminarRecorte(zone); }));
  connect(marco_, &MarcoDeImagen::ArrastrePedido, this, Con(dialogs, [this] { ArrastrarImagen(); }));
  Medir(p_);
  opciones_->MostrarPaneles();
  MostrarFuente();
  MostrarColores();
}

void frmMain::CrearOpciones() {
  opciones_ = new frmOpcAlgoritmo(p_, desktop_.dialogos, PicAlgoritmos_);
  Superponer(static_cast<QGridLayout*>(PicAlgoritmos_->layout()), opciones_);
  Dialogs& dialogs = desktop_.dialogos;
  connect(opciones_, &frmOpcAlgoritmo::TextoCaducado, this, Con(dialogs, [this](int m) { Caducar(m); }));
  connect(opciones_, &frmOpcAlgoritmo::LetrerosVisibles, this, &frmMain::MostrarLetreros);
  connect(opciones_, &frmOpcAlgoritmo::ColoresCambiados, this, &frmMain::MostrarColores);
  connect(opciones_, &frmOpcAlgoritmo::BlancoYNegroPedido, imagen_, &MenuDeImagen::PonerEnBlancoYNegro);
  connect(opciones_, &frmOpcAlgoritmo::FotogramasPedidos, this, Con(dialogs, [this] { ElegirFotogramas(); }));
  connect(opciones_, &frmOpcAlgoritmo::ConversionElegida, this,
          [this](int method) { RecordarConversion(desktop_.registro, method); });
  connect(opciones_, &frmOpcAlgoritmo::ComparacionPedida, this, Con(dialogs, [this] { Comparar(); }));
  connect(opciones_, &frmOpcAlgoritmo::Aviso, this, [this](const QString& sentence) { Decir(sentence); });
  connect(opciones_, &frmOpcAlgoritmo::AnchoPedido, this,
          [this] { opciones_->PonerAncho(txtAscii_->ColumnasVisibles()); });
  connect(opciones_, &frmOpcAlgoritmo::RellenoCambiado, this, &frmMain::AlMomento);
  // The text area keeps the Tab key to itself: it comes last, after the options.
  setTabOrder(previousInFocusChain(), chkAsciiPrev_);
  setTabOrder(chkAsciiPrev_, txtAscii_);
}

void frmMain::dragEnterEvent(QDragEnterEvent* event) {
  const QList<QUrl> urls = event->mimeData()->urls();
  if (event->source()) return;  // from this window
  if (!ocupada_ && !urls.isEmpty() && urls.first().isLocalFile()) event->acceptProposedAction();
}

void frmMain::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  AbrirImagen(event->mimeData()->urls().first().toLocalFile().toStdString());
}

}  // namespace pixmosa
