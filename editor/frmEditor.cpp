#include "editor/frmEditor.h"

#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>

#include "editor/frmEditor_Caracteres.h"
#include "editor/frmEditor_Superficie.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Named.h"
#include "platform/qt/Pantalla.h"

namespace pixmosa {
namespace {

constexpr int kFontPoints = 10, kSegundo = 1000;

}  // namespace

frmEditor::frmEditor(BasEditor& editor, const Font& font, Dialogs& dialogs, Shell& shell, QWidget* parent,
                     MediosDelEditor means)
    : QMainWindow(parent),
      editor_(editor),
      dialogs_(dialogs),
      shell_(shell),
      font_{font.name, kFontPoints},
      means_(std::move(means)),
      kept_(means_.resguardo) {
  setObjectName("frmEditor");
  setWindowTitle(QStringLiteral("Editor Ascii"));
  setCentralWidget(CrearCentro());
  CrearMenus();
  CrearHerramientas();
  CrearCaracteres();
  CrearEstado();
  timer_ = new QTimer(this);
  timer_->setSingleShot(true);
  timer_->setInterval(kSegundo);
  connect(timer_, &QTimer::timeout, this, [this] { Resguardar(); });
  connect(picDraw_, &Superficie::Cambiado, this, [this] {
    Actualizar();
    if (!timer_->isActive()) timer_->start();
  });
  connect(picDraw_, &Superficie::SeleccionCambiada, this, &frmEditor::Actualizar);
  connect(picDraw_, &Superficie::CeldaSenalada, this, [this](int column, int row) {
    position_->setText(QStringLiteral("(%1,%2)").arg(column).arg(row));
  });
  connect(picDraw_, &Superficie::PunteroEn, this, [this](int column, int row) {
    lblCoordenadas_->setText(column > 0 ? QStringLiteral("columna %1, fila %2").arg(column).arg(row)
                                        : QString());
  });
  connect(picDraw_, &Superficie::Terminado, this, [this] { ElegirHerramienta(Tool::Libre); });
  ElegirHerramienta(Tool::Libre);
  resize(EnPantalla(*this, {1180, 860}));
  Actualizar();
}

QLabel* frmEditor::CrearAviso(const char* name) {
  auto* label = named<QLabel>(name);
  label->setWordWrap(true);
  label->setMargin(6);
  label->setBackgroundRole(QPalette::ToolTipBase);
  label->setForegroundRole(QPalette::ToolTipText);
  label->setAutoFillBackground(true);
  label->hide();
  return label;
}

QWidget* frmEditor::CrearCentro() {
  picDraw_ = named<Superficie>("picDraw", editor_, history_, font_);
  auto* scroll = named<QScrollArea>("desplazamiento");
  scroll->setWidget(picDraw_);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setBackgroundRole(QPalette::Dark);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->viewport()->installEventFilter(this);
  connect(picDraw_, &Superficie::Visible, scroll, [scroll](QRect area) {
    const QPoint middle = area.center();
    scroll->ensureVisible(middle.x(), middle.y(), area.width() / 2 + 4, area.height() / 2 + 4);
  });
  connect(picDraw_, &Superficie::Arrastrada, scroll, [scroll](QPoint by) {
    scroll->horizontalScrollBar()->setValue(scroll->horizontalScrollBar()->value() - by.x());
    scroll->verticalScrollBar()->setValue(scroll->verticalScrollBar()->value() - by.y());
  });
  lblNoCabe_ = CrearAviso("lblNoCabe");
  lblDesplazado_ = CrearAviso("lblDesplazado");
  lblDesplazado_->setText(
      QStringLiteral("Desde el segundo, los renglones empiezan una columna más a la derecha. "
                     "<a href=\"alinear\">Alinearlos</a> · <a href=\"dejar\">Dejarlos así</a>"));
  connect(lblDesplazado_, &QLabel::linkActivated, this, [this](const QString& link) {
    shiftedIsFine_ = link == QStringLiteral("dejar");
    if (!shiftedIsFine_) alinear_->trigger();
    Actualizar();
  });
  lblRecuperar_ = CrearAviso("lblRecuperar");
  lblRecuperar_->setText(
      QStringLiteral("Hay un dibujo que no se llegó a guardar: el programa terminó de golpe. "
                     "<a href=\"recuperar\">Recuperarlo</a> · <a href=\"descartar\">Descartarlo</a>"));
  connect(lblRecuperar_, &QLabel::linkActivated, this, Con(dialogs_, [this](const QString& link) {
            if (link == QStringLiteral("recuperar")) return Recuperar();
            for (const auto& file : kept_.Huerfanos()) std::filesystem::remove(file);
            lost_ = false;
            Actualizar();
          }));
  size_ = CrearTamano();
  auto* centre = new QWidget;
  auto* layout = new QVBoxLayout(centre);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  for (QWidget* bar : {static_cast<QWidget*>(lblRecuperar_), static_cast<QWidget*>(lblDesplazado_),
                       static_cast<QWidget*>(lblNoCabe_), size_})
    layout->addWidget(bar);
  layout->addWidget(scroll, 1);
  return centre;
}

void frmEditor::CrearCaracteres() {
  characters_ = named<PanelDeCaracteres>("caracteres", font_, dialogs_);
  characters_->Poner(editor_.CurrentChar);
  connect(characters_, &PanelDeCaracteres::Elegido, this,
          [this](const Pincel& brush) { editor_.CurrentChar = brush; });
  connect(characters_, &PanelDeCaracteres::Pulsado, picDraw_, qOverload<>(&QWidget::setFocus));
  connect(picDraw_, &Superficie::Tomado, this, [this](char32_t ch, Colour ink) {
    Pincel brush = editor_.CurrentChar;
    brush.caracter = ch;
    brush.tinta = ink;
    editor_.CurrentChar = brush;
    characters_->Poner(brush);
  });
  connect(picDraw_, &Superficie::Reciente, characters_, &PanelDeCaracteres::ElegirReciente);
  auto* dock = named<QDockWidget>("panelCaracteres", QStringLiteral("Caracteres y tinta"));
  dock->setFeatures(QDockWidget::DockWidgetMovable);
  dock->setWidget(characters_);
  addDockWidget(Qt::RightDockWidgetArea, dock);
  resizeDocks({dock}, {250}, Qt::Horizontal);
}

void frmEditor::CrearEstado() {
  setStatusBar(named<QStatusBar>("SBPanel"));
  position_ = named<QLabel>("posicion");
  statusBar()->addWidget(position_, 1);
  lblCoordenadas_ = named<QLabel>("lblCoordenadas");
  lblMedidas_ = named<QLabel>("lblMedidas");
  lblMedidas_->setToolTip(QStringLiteral("El tamaño del lienzo, y lo seleccionado"));
  sldCalco_ = named<QSlider>("sldCalco", Qt::Horizontal);
  sldCalco_->setRange(5, 100);
  sldCalco_->setValue(40);
  sldCalco_->setFixedWidth(110);
  sldCalco_->setToolTip(QStringLiteral("Cuánto se ve la imagen que se calca"));
  sldCalco_->setAccessibleName(sldCalco_->toolTip());
  sldCalco_->hide();
  connect(sldCalco_, &QSlider::valueChanged, picDraw_, &Superficie::PonerOpacidad);
  cboEscala_ = named<QComboBox>("cboEscala");
  for (const Escala& scale : kEscalas) cboEscala_->addItem(QStringLiteral("%1 %").arg(scale.PorCiento()));
  cboEscala_->setCurrentIndex(kTamanoReal);
  cboEscala_->setToolTip(QStringLiteral("De cerca o de lejos (Ctrl y la rueda)"));
  connect(cboEscala_, &QComboBox::activated, this, [this](int index) { Escalar(index, {}); });
  for (QWidget* w : {static_cast<QWidget*>(lblCoordenadas_), static_cast<QWidget*>(lblMedidas_),
                     static_cast<QWidget*>(sldCalco_), static_cast<QWidget*>(cboEscala_)})
    statusBar()->addPermanentWidget(w);
}

}  // namespace pixmosa
