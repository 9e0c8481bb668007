// The editor's menus: the entries of old first, those of the program's own behind them.
#include <span>

#include <QLabel>
#include <QMenuBar>

#include "editor/TextoDelEditor.h"
#include "editor/frmEditor.h"
#include "editor/frmEditor_Superficie.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Menus.h"

namespace pixmosa {
namespace {

// A menu entry and what it does to the drawing.
struct Entrada : EntradaDeMenu {
  void (*hacer)(BasEditor&);
};

constexpr Entrada kCLS = {{"mnuCLS", "&Borrar pantalla", "edit-clear", nullptr, "Borra el dibujo entero"},
                          BorrarTodo};

constexpr Entrada kMayusculas[] = {
    {{"mnuMayMin", "Mayúsculas a minúsculas"}, UpperToLower},
    {{"mnuMinMay", "Minúsculas a mayúsculas"}, LowerToUpper},
};

constexpr Entrada kInvertir[] = {
    {{"mnuFlipVertical", "Verticalmente (simple)"}, FlipVertical},
    {{"mnuFlipHorizontal", "Horizontalmente (simple)"}, FlipHorizontal},
};

constexpr EntradaDeMenu kReemplazar = {"mnureemplazar", "Reemplazar caracteres", nullptr, nullptr,
                                       "Cambia un carácter por otro en la selección o en todo el dibujo"};
constexpr EntradaDeMenu kFlipH = {"mnuFlipCaracterH", "Horizontalmente (con caracteres)", nullptr, nullptr,
                                  "Lo seleccionado, o todo lo dibujado, como en un espejo: \"/\" es \"\\\""};
constexpr EntradaDeMenu kFlipV = {"mnuFlipCaracterV", "Verticalmente (con caracteres)", nullptr, nullptr,
                                  "Lo seleccionado, o todo lo dibujado, boca abajo: \"^\" es \"v\""};

}  // namespace

QAction* frmEditor::Propia(QMenu* menu, const EntradaDeMenu& row, std::function<void()> work) {
  QAction* action = AccionDe(row, menu);
  menu->addAction(action);
  connect(action, &QAction::triggered, this, Con(dialogs_, [work = std::move(work)](bool) { work(); }));
  return action;
}

void frmEditor::CrearMenus() {
  CrearArchivo();
  CrearEdicion();
  CrearSeleccion();
  CrearVer();
}

void frmEditor::CrearArchivo() {
  QMenu* file = menuBar()->addMenu(QStringLiteral("&Archivo"));
  LlenarMenu<Entrada>(file, std::span(&kCLS, 1), this,
                      [this](const Entrada& row) { picDraw_->Hacer([&] { row.hacer(editor_); }); });
  file->addSeparator();
  enviar_ = Propia(file,
                   {"mnuEnviar", "&Enviar a la ventana principal", "document-send", "Ctrl+E",
                    "Pone el dibujo en el área de texto de la ventana principal"},
                   [this] { Enviar(); });
  Propia(
      file,
      {"mnuGuardarDibujo", "&Guardar el dibujo...", "document-save", "Ctrl+S", "Guarda el dibujo como texto"},
      [this] { Guardar(); });
  Propia(file,
         {"mnuExportarDibujo", "E&xportar el dibujo...", "document-save-as", "Ctrl+Shift+E",
          "Con sus colores y todos sus caracteres: página web, SVG, PNG, texto de terminal"},
         [this] { Exportar(); })
      ->setEnabled(static_cast<bool>(means_.exportar));
  file->addSeparator();
  Propia(file, {"mnuCerrar", "&Cerrar", "window-close", "Ctrl+W", "Cierra el editor"}, [this] { close(); });
}

void frmEditor::CrearEdicion() {
  QMenu* edit = menuBar()->addMenu(QStringLiteral("&Edición"));
  const auto act = [this](const Entrada& row) { picDraw_->Hacer([&] { row.hacer(editor_); }); };
  Propia(edit, kReemplazar, [this] { AbrirReemplazar(); });
  LlenarMenu<Entrada>(edit, kMayusculas, this, act);
  QMenu* flip = edit->addMenu(QStringLiteral("Invertir AsciiArt"));
  flip->menuAction()->setObjectName("mnuInvertir");
  LlenarMenu<Entrada>(flip, kInvertir, this, act);
  Propia(flip, kFlipH, [this] { Voltear(Eje::Horizontal); });
  Propia(flip, kFlipV, [this] { Voltear(Eje::Vertical); });
  edit->addSeparator();
  deshacer_ = Propia(edit, {"mnuDeshacer", "&Deshacer", "edit-undo", "Ctrl+Z", "Deshace la última acción"},
                     [this] { Mover(true); });
  rehacer_ = Propia(edit, {"mnuRehacer", "&Rehacer", "edit-redo", "Ctrl+Y", "Rehace la acción deshecha"},
                    [this] { Mover(false); });
  Propia(edit,
         {"mnuCopiar", "&Copiar el dibujo", "edit-copy", "Ctrl+Shift+C", "Copia el dibujo entero como texto"},
         [this] {
           picDraw_->Asentar();
           shell_.CopyUtf8(DrawingText(editor_));
         });
  edit->addSeparator();
  Propia(edit,
         {"mnuRedimensionar", "&Tamaño del lienzo...", nullptr, "Ctrl+R",
          "Más o menos columnas y filas, hasta 4096 x 4096"},
         [this] { PedirTamano(); });
  Propia(
      edit,
      {"mnuRecortar", "Recortar a la &selección", nullptr, nullptr, "El lienzo se queda en lo seleccionado"},
      [this] {
        if (picDraw_->Seleccion()) Recortar(*picDraw_->Seleccion());
      });
  Propia(edit,
         {"mnuAjustarLienzo", "&Ajustar al dibujo", nullptr, nullptr,
          "Quita lo que sobra alrededor de lo dibujado"},
         [this] { Recortar(ZonaUsada(editor_.Grid)); });
  alinear_ = Propia(edit,
                    {"mnuAlinear", "A&linear los renglones", nullptr, nullptr,
                     "Todos los renglones del texto abierto empiezan en la primera columna"},
                    [this] { picDraw_->Hacer([this] { AlinearRenglones(editor_); }); });
}

void frmEditor::CrearSeleccion() {
  QMenu* menu = menuBar()->addMenu(QStringLiteral("&Selección"));
  Propia(menu,
         {"mnuCopiarSel", "&Copiar", "edit-copy", "Ctrl+C",
          "Copia lo seleccionado, o el dibujo entero, al portapapeles"},
         [this] { Copiar(); });
  Propia(menu, {"mnuCortarSel", "Cor&tar", "edit-cut", "Ctrl+X", "Lleva lo seleccionado al portapapeles"},
         [this] { Cortar(); });
  Propia(menu,
         {"mnuPegarSel", "&Pegar", "edit-paste", "Ctrl+V",
          "Pone el texto del portapapeles, que se mueve hasta pulsar fuera"},
         [this] { Pegar(); });
  Propia(menu, {"mnuBorrarSel", "&Vaciar", "edit-clear", nullptr, "Deja en blanco lo seleccionado (Supr)"},
         [this] { picDraw_->BorrarSeleccion(); });
  Propia(menu,
         {"mnuLlenarSel", "&Llenar con el carácter", "color-fill", "Ctrl+B",
          "Pone el carácter elegido en todo lo seleccionado"},
         [this] {
           if (!picDraw_->Seleccion()) return;
           picDraw_->Asentar();
           if (const auto zone = picDraw_->Seleccion())
             picDraw_->Hacer([&] { Llenar(editor_, *zone, editor_.CurrentChar.caracter); });
         });
  menu->addSeparator();
  Propia(menu, {"mnuSeleccionarTodo", "Seleccionar &todo", nullptr, "Ctrl+A", "Selecciona el lienzo entero"},
         [this] { SeleccionarTodo(); });
  Propia(menu,
         {"mnuReemplazarCaracter", "&Reemplazar un carácter...", nullptr, "Ctrl+H",
          "Cambia un carácter por otro en la selección o en todo el dibujo"},
         [this] { AbrirReemplazar(); });
}

void frmEditor::CrearVer() {
  QMenu* view = menuBar()->addMenu(QStringLiteral("&Ver"));
  Propia(view, {"mnuAcercarEditor", "&Acercar", "zoom-in", "Ctrl++", "Más grande"},
         [this] { Escalar(picDraw_->IndiceDeEscala() + 1, {}); });
  Propia(view, {"mnuAlejarEditor", "A&lejar", "zoom-out", "Ctrl+-", "Más pequeño"},
         [this] { Escalar(picDraw_->IndiceDeEscala() - 1, {}); });
  Propia(view, {"mnuTamanoRealEditor", "&Tamaño real", "zoom-original", "Ctrl+0", "Celdas de 8 x 12 píxeles"},
         [this] { Escalar(kTamanoReal, {}); });
  Propia(view, {"mnuVerTodoEditor", "Ver t&odo", "zoom-fit-best", "Ctrl+9", "El lienzo entero en la ventana"},
         [this] { VerTodo(); });
  view->addSeparator();
  rejilla_ = AccionDe({"mnuRejilla", "&Rejilla", nullptr, "Ctrl+G", "Las líneas entre las celdas"}, view);
  rejilla_->setCheckable(true);
  rejilla_->setChecked(true);
  connect(rejilla_, &QAction::toggled, picDraw_, &Superficie::PonerRejilla);
  calco_ = AccionDe({"mnuCalco", "&Calcar una imagen", "image-x-generic", "Ctrl+L",
                     "Muestra debajo del dibujo la imagen de la ventana principal, u otra, para calcarla"},
                    view);
  calco_->setCheckable(true);
  connect(calco_, &QAction::toggled, this, Con(dialogs_, [this](bool shown) { Calcar(shown); }));
  view->addActions({rejilla_, calco_});
  Propia(view,
         {"mnuElegirCalco", "&Elegir la imagen que se calca...", "document-open", nullptr,
          "Otra imagen para calcar"},
         [this] {
           if (ElegirCalco()) calco_->setChecked(true);
         })
      ->setEnabled(static_cast<bool>(means_.elegirImagen));
}

}  // namespace pixmosa
