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
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

#include "app/MarcoDeImagen.h"
#include "app/Modos.h"
#include "app/frmMain_Imagen.h"
#include "app/frmOpcAlgoritmo.h"
#include "conversion/TextoGuardado.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Menus.h"
#include "platform/qt/Named.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

struct Entrada : EntradaDeMenu {
  void (frmMain::*hacer)();
};

struct Menu {
  const char* nombre;
  const char* texto;
  std::vector<Entrada> entradas;
};

constexpr Entrada kSeparador = {{"", ""}, nullptr};

const std::vector<Menu>& Menus() {
  static const std::vector<Menu> menus = {
      {"mnuArchivo",
       "&Archivo",
       {{{"mnuLoadImage", "&Cargar imagen...", "document-open", "Ctrl+O",
          "Carga una imagen para convertirla"},
         &frmMain::CargarImagen},
        {{"mnuGuardar", "&Guardar el AsciiArt...", "document-save", "Ctrl+S",
          "Guarda el texto en un archivo"},
         &frmMain::Guardar},
        {{"mnuGrabarIni", "Grabar la con&figuración", "document-properties", nullptr,
          "Escribe las opciones y la fuente en KTV.ini"},
         &frmMain::GrabarIni},
        kSeparador,
        {{"mnuSalir", "&Salir", "application-exit", "Ctrl+Q", "Cierra el programa"}, nullptr}}},
      {"mnuAsciiArt",
       "As&ciiArt",
       {{{"mnuPlay", "&Generar", "media-playback-start", "F5", "Convierte la imagen según el modo elegido"},
         &frmMain::Play},
        {{"mnuPreviewAsciiArt", "&Vista previa", "zoom-fit-best", "F6",
          "Muestra el texto en una ventana grande"},
         &frmMain::ShowPreview},
        {{"mnuClipboard", "&Copiar en el portapapeles", "edit-copy", "Ctrl+Shift+C",
          "Copia el último dibujo generado"},
         &frmMain::CopiarTexto},
        kSeparador,
        {{"mnuAnimArtDirectorio", "Animación de una car&peta...", "video-x-generic", nullptr,
          "Crea una página que muestra en orden las imágenes de una carpeta"},
         &frmMain::AnimArtDirectorio}}},
      {"mnuFuentes",
       "&Fuentes",
       {{{"mnuFontsChange", "Cambiar la &fuente...", "preferences-desktop-font", "Ctrl+T",
          "Elige la fuente con la que se mide y se muestra el dibujo"},
         &frmMain::ChangeFontFromDialog},
        {{"mnuFixedFonts", "Fuentes de &ancho fijo...", nullptr, nullptr,
          "Lista las fuentes de ancho fijo del sistema"},
         &frmMain::MostrarFuentesFijas},
        {{"mnuCharMap", "&Mapa de caracteres", "accessories-character-map", nullptr,
          "Abre el mapa de caracteres del sistema"},
         &frmMain::MapaDeCaracteres}}},
      {"mnuHerramientas",
       "&Herramientas",
       {{{"mnuEditor", "Abrir el AsciiArt en un editor", "accessories-text-editor", "Ctrl+E",
          "Retoca el dibujo carácter a carácter"},
         &frmMain::AbrirEditor},
        {{"mnuEstadisticas", "E&stadísticas", "view-statistics", "Ctrl+I",
          "Cuenta los caracteres del dibujo"},
         &frmMain::MostrarEstadisticas},
        {{"mnuSistema", "&Configuración de aplicaciones del sistema", "preferences-system", nullptr,
          "Muestra cómo se ven los textos en el bloc de notas y en el navegador"},
         &frmMain::MostrarSistema}}},
      {"mnuVer",
       "&Ver",
       {{{"mnuImagePreview", "&Imagen a tamaño real", "image-x-generic", "F7",
          "Muestra la imagen entera en otra ventana"},
         &frmMain::MostrarImagenCompleta}}},
      {"mnuAyuda",
       "A&yuda",
       {{{"mnuAcercaDe", "&Acerca de Pixmosa", "help-about", "F1", "Qué es este programa y quién lo hace"},
         &frmMain::AcercaDe}}},
  };
  return menus;
}

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

frmMain::frmMain(Programa& program) : programa_(program) {
  setObjectName("frmMain");
  setWindowTitle("Pixmosa");
  setAcceptDrops(true);
  CrearMenus();
  CrearBarras();
  CrearCentro();
  CrearBarraDeEstado();
  Arrancar();
}

frmMain::~frmMain() = default;

void frmMain::CrearMenus() {
  for (const Menu& menu : Menus()) {
    QMenu* m = menuBar()->addMenu(QString::fromUtf8(menu.texto));
    m->setObjectName(menu.nombre);
    m->setToolTipsVisible(true);
    LlenarMenu<Entrada>(m, menu.entradas, this, [this](const Entrada& row) {
      if (row.hacer) (this->*row.hacer)();
    });
  }
  imagen_ = new MenuDeImagen(*this);
  menuBar()->insertMenu(findChild<QMenu*>("mnuAsciiArt")->menuAction(), imagen_->Menu());
  connect(findChild<QAction*>("mnuSalir"), &QAction::triggered, this, &QWidget::close);
}

void frmMain::CrearBarras() {
  auto* bar = named<QToolBar>("Toolbar1", QStringLiteral("Principal"));
  bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  for (const Boton& b : kBotones) {
    auto* entry = findChild<QAction*>(b.accion);
    auto* button = new QAction(entry->icon(), QString::fromUtf8(b.texto), bar);
    button->setObjectName(b.clave);
    button->setToolTip(entry->toolTip() + " (" + entry->shortcut().toString(QKeySequence::NativeText) + ")");
    bar->addAction(button);
    connect(button, &QAction::triggered, entry, &QAction::trigger);
  }
  addToolBar(bar);
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
  txtAscii_ = named<AreaDeTexto>("txtAscii");
  imagen_->CederDeshacer(txtAscii_);
  txtAscii_->setPlaceholderText(
      QStringLiteral("Aquí aparecerá el dibujo: cargue una imagen y pulse Generar."));
  auto* head = new QHBoxLayout;
  head->addStretch(1);
  head->addWidget(chkAsciiPrev_);
  auto* right = named<QWidget>("panelDerecho");
  auto* text = new QVBoxLayout(right);
  text->setContentsMargins(3, 6, 6, 6);
  text->addLayout(head);
  text->addWidget(txtAscii_, 1);

  auto* splitter = named<QSplitter>("divisor", Qt::Horizontal);
  splitter->addWidget(left);
  splitter->addWidget(right);
  splitter->setStretchFactor(0, 0);
  splitter->setStretchFactor(1, 1);
  splitter->setChildrenCollapsible(false);
  setCentralWidget(splitter);
  resize(1180, 760);
  splitter->setSizes({marco_->sizeHint().width() + 9, 840});
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
  prgBar1_ = named<QProgressBar>("prgBar1");
  prgBar1_->setMaximumWidth(220);
  prgBar1_->hide();
  bar->addPermanentWidget(prgBar1_);
  panelFuente_ = panel("Fuente");
  panelFiglet_ = panel("Figlet");
  panelTamaño_ = panel("Tamaño");
  panel("Modo")->setText("MODO ASCIIART");
  progreso_.emplace(prgBar1_);
}

void frmMain::Arrancar() {
  lblModo_->setText(QString::fromUtf8(kModos[kModoGrises]));
  auto* area = new QVBoxLayout(PicAlgoritmos_);
  area->setContentsMargins(0, 0, 0, 0);
  CrearLetreros(area);
  area->addWidget(opciones_ = new frmOpcAlgoritmo(*this, PicAlgoritmos_));
  // The text area keeps the Tab key to itself: it comes last, after the options.
  setTabOrder(previousInFocusChain(), chkAsciiPrev_);
  setTabOrder(chkAsciiPrev_, txtAscii_);
  programa_.basAscii.CountedColour = kWhite;
  programa_.basAscii.AsciiColumns = 250;
  RebuildCharacterTables(programa_.basAscii, programa_.ajustes, programa_.plataforma.superficie);
  ApplyFont(programa_.ajustes.font);
  txtAscii_->PonerColores(Qt::white, Qt::black);
}

int frmMain::IndiceDelModo() const {
  return IndiceDeModo(lblModo_->text().toStdString());
}

void frmMain::dragEnterEvent(QDragEnterEvent* event) {
  const QList<QUrl> urls = event->mimeData()->urls();
  if (!urls.isEmpty() && urls.first().isLocalFile()) event->acceptProposedAction();
}

void frmMain::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  AbrirImagen(event->mimeData()->urls().first().toLocalFile().toStdString());
}

}  // namespace pixmosa
