#include "editor/frmEditor.h"

#include <functional>

#include <QActionGroup>
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QVBoxLayout>

#include "editor/TextoDelEditor.h"
#include "editor/frmEditor_Superficie.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Menus.h"
#include "platform/qt/Named.h"
#include "platform/qt/Pantalla.h"
#include "platform/qt/QtFont.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

constexpr int kFontPoints = 10;

struct Herramienta {
  const char* clave;
  Tool tool;
  const char* icono;
  const char* texto;
};

constexpr Herramienta kHerramientas[] = {
    {"Libre", Tool::Libre, "draw-freehand", "Dibujo libre"},
    {"Borrar", Tool::Borrar, "draw-eraser", "Borrar de la pantalla"},
    {"Caja", Tool::Caja, "draw-rectangle", "Caja vacía"},
    {"CajaR", Tool::CajaR, "draw-rectangle-filled", "Caja rellena"},
    {"Rellenar", Tool::Rellenar, "color-fill", "Rellenar una zona"},
};

// A menu entry and what it does to the drawing; nothing for the entries that stay inert.
struct Entrada : EntradaDeMenu {
  void (*hacer)(BasEditor&);
};

constexpr Entrada kCLS = {{"mnuCLS", "&Borrar pantalla", "edit-clear", nullptr, "Borra el dibujo entero"},
                          BorrarTodo};

constexpr Entrada kEdicion[] = {
    {{"mnureemplazar", "Reemplazar caracteres"}, nullptr},
    {{"mnuMayMin", "Mayúsculas a minúsculas"}, UpperToLower},
    {{"mnuMinMay", "Minúsculas a mayúsculas"}, LowerToUpper},
};

constexpr Entrada kInvertir[] = {
    {{"mnuFlipVertical", "Verticalmente (simple)"}, FlipVertical},
    {{"mnuFlipHorizontal", "Horizontalmente (simple)"}, FlipHorizontal},
    {{"mnuFlipCaracterH", "Horizontalmente (con caracteres)"}, nullptr},
    {{"mnuFlipCaracterV", "Verticalmente (con caracteres)"}, nullptr},
};

}  // namespace

frmEditor::frmEditor(BasEditor& editor, const Font& font, Dialogs& dialogs, Shell& shell, QWidget* parent)
    : QMainWindow(parent), editor_(editor), dialogs_(dialogs), shell_(shell), font_{font.name, kFontPoints} {
  setObjectName("frmEditor");
  setWindowTitle(QStringLiteral("Editor Ascii"));
  setCentralWidget(CrearCentro());
  auto* bar = named<QStatusBar>("SBPanel");
  setStatusBar(bar);
  bar->addWidget(position_ = named<QLabel>("posicion"));
  CrearMenus();
  CrearHerramientas();
  CrearCaracteres();
  connect(picDraw_, &Superficie::CeldaSenalada, this,
          [this](int column, int row) { position_->setText(QString("(%1,%2)").arg(column).arg(row)); });
  connect(picDraw_, &Superficie::Cambiado, this, &frmEditor::Actualizar);
  resize(EnPantalla(*this, {1040, 720}));
  BorrarTodo(editor_);
  picDraw_->Refrescar();
  Actualizar();
}

QWidget* frmEditor::CrearCentro() {
  picDraw_ = named<Superficie>("picDraw", editor_, history_, font_);
  auto* scroll = named<QScrollArea>("desplazamiento");
  scroll->setWidget(picDraw_);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setBackgroundRole(QPalette::Dark);
  lblNoCabe_ = named<QLabel>("lblNoCabe");
  lblNoCabe_->setWordWrap(true);
  lblNoCabe_->setMargin(6);
  lblNoCabe_->setBackgroundRole(QPalette::ToolTipBase);
  lblNoCabe_->setForegroundRole(QPalette::ToolTipText);
  lblNoCabe_->setAutoFillBackground(true);
  auto* centre = new QWidget;
  auto* layout = new QVBoxLayout(centre);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(lblNoCabe_);
  layout->addWidget(scroll, 1);
  return centre;
}

void frmEditor::CrearMenus() {
  const auto act = [this](const Entrada& row) {
    if (row.hacer) picDraw_->Hacer([&] { row.hacer(editor_); });
  };
  // The program's own entries stand after these.
  const auto own = [this](QMenu* menu, const EntradaDeMenu& row, std::function<void()> work) {
    QAction* action = AccionDe(row, menu);
    menu->addAction(action);
    connect(action, &QAction::triggered, this, Con(dialogs_, [work = std::move(work)](bool) { work(); }));
    return action;
  };
  QMenu* file = menuBar()->addMenu(QStringLiteral("&Archivo"));
  LlenarMenu<Entrada>(file, std::span(&kCLS, 1), this, act);
  file->addSeparator();
  enviar_ = own(file,
                {"mnuEnviar", "&Enviar a la ventana principal", "document-send", "Ctrl+E",
                 "Pone el dibujo en el área de texto de la ventana principal"},
                [this] { Enviar(); });
  own(file,
      {"mnuGuardarDibujo", "&Guardar el dibujo...", "document-save", "Ctrl+S", "Guarda el dibujo como texto"},
      [this] { Guardar(); });
  file->addSeparator();
  own(file, {"mnuCerrar", "&Cerrar", "window-close", "Ctrl+W", "Cierra el editor"}, [this] { close(); });

  QMenu* edit = menuBar()->addMenu(QStringLiteral("&Edición"));
  LlenarMenu<Entrada>(edit, kEdicion, this, act);
  QMenu* flip = edit->addMenu(QStringLiteral("Invertir AsciiArt"));
  flip->menuAction()->setObjectName("mnuInvertir");
  LlenarMenu<Entrada>(flip, kInvertir, this, act);
  edit->addSeparator();
  deshacer_ =
      own(edit, {"mnuDeshacer", "&Deshacer", "edit-undo", "Ctrl+Z", "Deshace la última acción"}, [this] {
        history_.Deshacer(editor_);
        picDraw_->Refrescar();
        Actualizar();
      });
  rehacer_ =
      own(edit, {"mnuRehacer", "&Rehacer", "edit-redo", "Ctrl+Y", "Rehace la acción deshecha"}, [this] {
        history_.Rehacer(editor_);
        picDraw_->Refrescar();
        Actualizar();
      });
  own(edit, {"mnuCopiar", "&Copiar el dibujo", "edit-copy", "Ctrl+C", "Copia el dibujo como texto"},
      [this] { shell_.CopyText(DrawingText(editor_)); });
}

void frmEditor::CrearHerramientas() {
  auto* bar = named<QToolBar>("TbTool", QStringLiteral("Herramientas"));
  auto* group = new QActionGroup(bar);
  for (const Herramienta& h : kHerramientas) {
    QAction* action = bar->addAction(Icono(h.icono), QString::fromUtf8(h.texto));
    action->setObjectName(h.clave);
    action->setCheckable(true);
    action->setChecked(h.tool == Tool::Libre);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, tool = h.tool] {
      picDraw_->PonerHerramienta(tool);
      position_->clear();
    });
  }
  bar->addSeparator();
  bar->addActions({deshacer_, rehacer_, enviar_});
  addToolBar(bar);
}

void frmEditor::CrearCaracteres() {
  auto* list = named<QListWidget>("lstCaracteres");
  list->setFont(QtFontOf(font_));
  list->setFlow(QListView::LeftToRight);
  list->setWrapping(true);
  list->setResizeMode(QListView::Adjust);
  list->setGridSize({22, 22});
  list->setToolTip(QStringLiteral("El carácter con el que se dibuja"));
  for (int code = 32; code <= 127; ++code) {
    auto* item = new QListWidgetItem(QString(VisibleChar(static_cast<unsigned char>(code))), list);
    item->setTextAlignment(Qt::AlignCenter);
    item->setData(Qt::UserRole, code);
    item->setToolTip(QStringLiteral("Código %1").arg(code));
    if (static_cast<char>(code) == editor_.CurrentChar) list->setCurrentItem(item);
  }
  connect(list, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
    if (item) editor_.CurrentChar = static_cast<char>(item->data(Qt::UserRole).toInt());
  });
  auto* dock = named<QDockWidget>("panelCaracteres", QStringLiteral("Caracteres"));
  dock->setFeatures(QDockWidget::DockWidgetMovable);
  dock->setWidget(list);
  addDockWidget(Qt::RightDockWidgetArea, dock);
  resizeDocks({dock}, {200}, Qt::Horizontal);
}

}  // namespace pixmosa
