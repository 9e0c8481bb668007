// The toolbar of the tools, and beside it what the chosen one can be told.
#include <QActionGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSpinBox>
#include <QToolBar>

#include "editor/frmEditor.h"
#include "editor/frmEditor_Superficie.h"
#include "platform/qt/Menus.h"
#include "platform/qt/Named.h"

namespace pixmosa {
namespace {

struct FilaDeHerramienta {
  const char* clave;
  Tool tool;
  const char* icono;
  const char* tecla;
  const char* texto;
  const char* pista;
};

constexpr FilaDeHerramienta kHerramientas[] = {
    {"Libre", Tool::Libre, "draw-freehand", "L", "Dibujo libre",
     "Arrastre. Ctrl y pulsar toma un carácter del dibujo"},
    {"Borrar", Tool::Borrar, "draw-eraser", "B", "Borrar de la pantalla",
     "Quita de la pantalla; el carácter sigue en el dibujo si no se borra del todo"},
    {"Caja", Tool::Caja, "draw-rectangle", "C", "Caja vacía", "Arrastre de una esquina a otra"},
    {"CajaR", Tool::CajaR, "draw-rectangle-filled", "X", "Caja rellena", "Arrastre de una esquina a otra"},
    {"Rellenar", Tool::Rellenar, "color-fill", "R", "Rellenar una zona", "En azul, lo que se rellenará"},
    {"Texto", Tool::Texto, "insert-text", "T", "Texto",
     "Pulse y escriba. Intro baja al renglón siguiente, debajo de donde se empezó; Esc deja de escribir"},
    {"Linea", Tool::Linea, "draw-line", "N", "Línea", "Arrastre; con Mayús, recta o en diagonal"},
    {"Flecha", Tool::Flecha, "draw-arrow", "F", "Flecha",
     "Arrastre hasta la punta; con Mayús, recta o en diagonal"},
    {"Elipse", Tool::Elipse, "draw-ellipse", "E", "Elipse", "Arrastre de una esquina a otra"},
    {"Marco", Tool::Marco, "draw-frame", "M", "Marco que se une a otros",
     "Arrastre de una esquina a otra; de un renglón o columna es una línea"},
    {"Seleccionar", Tool::Seleccionar, "edit-select", "S", "Seleccionar",
     "Arrastre para seleccionar, y desde dentro para mover (con Ctrl, una copia); Intro la deja, Esc la "
     "devuelve"},
    {"Cuentagotas", Tool::Cuentagotas, "color-picker", "G", "Tomar un carácter del dibujo",
     "Pulse sobre un carácter: se dibujará con él y su tinta"},
};

}  // namespace

void frmEditor::CrearHerramientas() {
  auto* bar = named<QToolBar>("TbTool", QStringLiteral("Herramientas"));
  auto* group = new QActionGroup(bar);
  for (const FilaDeHerramienta& h : kHerramientas) {
    QAction* action = bar->addAction(Icono(h.icono), QString::fromUtf8(h.texto));
    action->setObjectName(h.clave);
    action->setShortcut(QKeySequence(QString::fromLatin1(h.tecla)));
    action->setToolTip(
        QStringLiteral("%1 (%2)").arg(QString::fromUtf8(h.texto), QString::fromLatin1(h.tecla)));
    action->setCheckable(true);
    action->setChecked(h.tool == Tool::Libre);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, tool = h.tool] { ElegirHerramienta(tool); });
  }
  bar->addSeparator();
  bar->addActions({deshacer_, rehacer_, enviar_});
  addToolBar(bar);
  CrearOpciones();
}

void frmEditor::CrearOpciones() {
  addToolBarBreak();
  auto* bar = named<QToolBar>("TbOpciones", QStringLiteral("Opciones de la herramienta"));
  OpcionesDeHerramienta& chosen = picDraw_->opciones;
  const auto add = [&](QWidget* widget, std::vector<Tool> tools) {
    options_.emplace_back(bar->addWidget(widget), std::move(tools));
  };
  const auto check = [&](const char* name, const char* text, const char* help, bool& value,
                         std::vector<Tool> tools) {
    auto* box = named<QCheckBox>(name, QString::fromUtf8(text));
    box->setToolTip(QString::fromUtf8(help));
    box->setChecked(value);
    connect(box, &QCheckBox::toggled, picDraw_, [this, &value](bool on) {
      value = on;
      picDraw_->update();
    });
    add(box, std::move(tools));
  };
  const auto choice = [&](const char* name, const char* help, std::initializer_list<const char*> texts,
                          int first, std::vector<Tool> tools, auto set) {
    auto* box = named<QComboBox>(name);
    for (const char* text : texts) box->addItem(QString::fromUtf8(text));
    box->setCurrentIndex(first);
    box->setToolTip(QString::fromUtf8(help));
    connect(box, &QComboBox::currentIndexChanged, picDraw_, set);
    add(box, std::move(tools));
  };
  check("chkTrazoContinuo", "Trazo continuo", "Un trazo rápido no deja huecos", chosen.continuo,
        {Tool::Libre, Tool::Borrar});
  auto* width = named<QSpinBox>("numGoma");
  width->setRange(1, 40);
  width->setPrefix(QStringLiteral("Ancho: "));
  width->setToolTip(QStringLiteral("Celdas que abarca la goma"));
  connect(width, &QSpinBox::valueChanged, picDraw_, [&chosen](int cells) { chosen.goma = cells; });
  add(width, {Tool::Borrar});
  check("chkBorrarDelTodo", "Del todo", "Deja las celdas en blanco: el carácter no vuelve",
        chosen.borrarDelTodo, {Tool::Borrar});
  choice("cboTrazoLinea", "Con qué se dibuja la línea", {"Con el carácter", "Según la pendiente: - | / \\"},
         0, {Tool::Linea}, [&chosen](int index) { chosen.trazo = static_cast<TrazoDeLinea>(index); });
  check("chkElipseRellena", "Rellena", "La elipse entera y no solo su borde", chosen.elipseRellena,
        {Tool::Elipse});
  choice("cboMarco", "Los bordes del marco",
         {"ASCII  +-+", "Simple  ┌─┐", "Doble  ╔═╗", "Redondo  ╭─╮", "Grueso  ┏━┓"},
         static_cast<int>(chosen.marco), {Tool::Marco},
         [&chosen](int index) { chosen.marco = static_cast<EstiloDeMarco>(index); });
  check("chkPorosa", "Los blancos no tapan",
        "Los blancos de lo que se mueve o pega dejan ver lo que hay debajo", chosen.porosa,
        {Tool::Seleccionar});
  lblPista_ = named<QLabel>("lblPista");
  lblPista_->setMargin(4);
  bar->addWidget(lblPista_);
  addToolBar(bar);
}

void frmEditor::ElegirHerramienta(Tool tool) {
  picDraw_->PonerHerramienta(tool);
  position_->clear();
  for (const auto& [action, tools] : options_)
    action->setVisible(std::ranges::find(tools, tool) != tools.end());
  for (const FilaDeHerramienta& h : kHerramientas) {
    if (h.tool != tool) continue;
    lblPista_->setText(QString::fromUtf8(h.pista));
    if (auto* action = findChild<QAction*>(h.clave)) action->setChecked(true);
  }
}

}  // namespace pixmosa
