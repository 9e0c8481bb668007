// The controls of the options panel and where they stand.
#include <QActionGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/IconosDePanel.h"
#include "app/PiezasDePanel.h"
#include "app/frmOpcAlgoritmo.h"
#include "platform/qt/Menus.h"
#include "platform/qt/Muestra.h"
#include "platform/qt/Named.h"
#include "platform/qt/Numero.h"
#include "platform/qt/QtText.h"
#include "programa/Ajustes.h"

namespace pixmosa {
namespace {

struct BotonDeBarra {
  const char* clave;
  const char* texto;
  QIcon signo;
  bool* ajuste = nullptr;  // set while the button is pressed
};

// A toolbar of buttons that stay pressed; `exclusive` lets only one be.
QToolBar* BarraDeBotones(const char* name, std::initializer_list<BotonDeBarra> buttons, bool exclusive) {
  auto* bar = named<QToolBar>(name);
  auto* group = new QActionGroup(bar);
  group->setExclusive(exclusive);
  for (const BotonDeBarra& b : buttons) {
    QAction* action = bar->addAction(b.signo, QString::fromUtf8(b.texto));
    action->setObjectName(b.clave);
    action->setCheckable(true);
    group->addAction(action);
    if (b.ajuste) action->setChecked(*b.ajuste);
    if (b.ajuste)
      QObject::connect(action, &QAction::toggled, bar, [to = b.ajuste](bool pressed) { *to = pressed; });
    QWidget* button = bar->widgetForAction(action);
    button->setObjectName(b.clave);
    button->setFocusPolicy(Qt::TabFocus);
  }
  return bar;
}

}  // namespace

QWidget* frmOpcAlgoritmo::CrearPaginaAscii() {
  auto* page = named<QWidget>("mrcAlgoritmo(0)");
  QVBoxLayout* layout = Columna(page);
  cboPaletas_ = named<QComboBox>("cboPaletas");
  for (const CharacterPalette& p : kPalettes) cboPaletas_->addItem(Q(p.caption));
  cboPaletas_->setCurrentIndex(program_.ajustes.palette);
  cboPaletas_->setToolTip(QStringLiteral("Caracteres con los que se dibuja"));
  layout->addLayout(FilaDePanel("&Paleta", cboPaletas_));
  CrearTamaño(layout);

  mrcAscii_[0] = named<QWidget>("mrcAscii(0)");
  QVBoxLayout* gray = Columna(mrcAscii_[0]);
  gray->addWidget(CrearConversion());
  sldLuminosidad_ =
      Deslizador("sldLuminosidad", -100, 100, program_.ajustes.luminosity, "Aclara u oscurece el dibujo");
  sldLuminosidad_->setAccessibleName(QStringLiteral("Luminosidad"));
  label1_ = Etiqueta("Label1", "Luminosidad", "Vuelve a poner la luminosidad en 0");
  auto* light = new QHBoxLayout;
  light->addWidget(label1_);
  light->addWidget(sldLuminosidad_, 1);
  numLuminosidad_ = Numero("numLuminosidad", sldLuminosidad_);
  light->addWidget(numLuminosidad_);
  gray->addLayout(light);
  gray->addWidget(CrearAnimArt());

  mrcAscii_[1] = named<QWidget>("mrcAscii(1)");
  QVBoxLayout* edges = Columna(mrcAscii_[1]);
  chkRelleno_ = named<QCheckBox>("chkRelleno", QStringLiteral("&Rellenar el interior de las formas"));
  chkRelleno_->setToolTip(QStringLiteral("Llena de \":\" el interior de las zonas negras"));
  chkRelleno_->setChecked(program_.ajustes.relleno);
  edges->addWidget(chkRelleno_);
  edges->addWidget(
      Nota("La imagen debe ser un dibujo negro sobre blanco: si no lo es, pulse Blanco y negro."));

  mrcAscii_[2] = named<QWidget>("mrcAscii(2)");
  Columna(mrcAscii_[2])
      ->addWidget(Nota("Solo el negro puro es tinta: si la imagen tiene otros tonos, pulse Blanco y negro."));

  chkAsciiNegativo_ = named<QCheckBox>("chkAsciiNegativo", QStringLiteral("&Negativo"));
  chkAsciiNegativo_->setChecked(program_.basAscii.CountedColour == kBlack);
  chkAsciiNegativo_->setToolTip(QStringLiteral("Para leer el dibujo con letras claras sobre fondo oscuro"));
  lblAsciiBackcolor_ = MuestraDeColor("lblAsciiBackcolor", "Color del fondo del texto", program_.fondoTexto);
  lblAsciiForeColor_ = MuestraDeColor("lblAsciiForeColor", "Color del texto", program_.colorTexto);
  auto* colours = new QHBoxLayout;
  colours->addWidget(chkAsciiNegativo_);
  colours->addStretch(1);
  colours->addWidget(new QLabel(QStringLiteral("Fondo")));
  colours->addWidget(lblAsciiBackcolor_);
  colours->addWidget(new QLabel(QStringLiteral("Texto")));
  colours->addWidget(lblAsciiForeColor_);
  layout->addLayout(colours);
  layout->addLayout(FilaDePanel("P&roporción", CrearProporcion()));
  layout->addLayout(Superpuestos({mrcAscii_[0], mrcAscii_[1], mrcAscii_[2]}));
  cmdBN_ = named<QPushButton>("cmdBN", QStringLiteral("&Blanco y negro"));
  cmdBN_->setToolTip(
      QStringLiteral("Deja la imagen en blanco y negro puros, como la piden los bordes y el "
                     "anti-aliasing"));
  layout->addWidget(cmdBN_);
  return page;
}

void frmOpcAlgoritmo::CrearTamaño(QVBoxLayout* layout) {
  sldTamaño_ = Deslizador("sldTamaño", 1, kMayorPorcentaje, program_.ajustes.size,
                          "Tanto por ciento de los caracteres que caben en la pantalla");
  lblTamañoAsciiMin_ = Etiqueta("lblTamañoAsciiMin", "Mín.", "El tamaño más pequeño");
  lbl100_ = Etiqueta("lbl100", "100 %", "Tantos caracteres como caben en la pantalla");
  lblTamañoAsciiMax_ = Etiqueta("lblTamañoAsciiMax", "Máx.", "El tamaño más grande");
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(0);
  grid->addWidget(Titulo("&Tamaño", sldTamaño_), 0, 0);
  grid->addWidget(sldTamaño_, 0, 1, 1, 3);
  grid->addWidget(lblTamañoAsciiMin_, 1, 1, Qt::AlignLeft);
  grid->addWidget(lbl100_, 1, 2, Qt::AlignHCenter);
  grid->addWidget(lblTamañoAsciiMax_, 1, 3, Qt::AlignRight);
  for (int column = 1; column <= 3; ++column) grid->setColumnStretch(column, 1);
  layout->addLayout(grid);
  layout->addLayout(CrearColumnas());
}

QWidget* frmOpcAlgoritmo::CrearAnimArt() {
  mrcAnimArt_ = named<QFrame>("mrcAnimArt");
  mrcAnimArt_->setFrameShape(QFrame::StyledPanel);
  mrcAnimArt_->setAutoFillBackground(true);
  mrcAnimArt_->setToolTip(QStringLiteral("Para un GIF animado: una página que muestra sus fotogramas"));
  chkAnimArt_ = named<QCheckBox>("chkAnimArt");
  chkAnimArt_->setToolTip(QStringLiteral("Al generar, crea la animación en vez de un solo texto"));
  lblAnimArt_ = named<QLabel>("lblAnimArt", QStringLiteral("Generar AnimArt del GIF"));
  lblAnimArt_->setBuddy(chkAnimArt_);
  lblAnimArt_->installEventFilter(this);
  cmdGIFAvance_ = named<QPushButton>("cmdGIFAvance", QStringLiteral("Avanzado >>"));
  cmdGIFAvance_->setToolTip(QStringLiteral("Elige los fotogramas de la animación"));
  auto* row = new QHBoxLayout(mrcAnimArt_);
  row->setContentsMargins(6, 4, 6, 4);
  row->addWidget(chkAnimArt_);
  row->addWidget(lblAnimArt_, 1);
  row->addWidget(cmdGIFAvance_);
  return mrcAnimArt_;
}

QWidget* frmOpcAlgoritmo::CrearPaginaWeb() {
  auto* page = named<QWidget>("mrcAlgoritmo(1)");
  QVBoxLayout* layout = Columna(page);
  sldWTamaño_ = Deslizador("sldWTamaño", 1, 5, program_.ajustesWeb.tamaño,
                           "Detalle: cuántos píxeles de la imagen se escriben");
  sldWTamaño_->setTickPosition(QSlider::TicksBelow);
  sldWTamaño_->setPageStep(1);
  lblTamañowebMin_ = Etiqueta("lblTamañowebMin", "Mín.", "Un píxel de cada cinco");
  lblTamañowebMax_ = Etiqueta("lblTamañowebMax", "Máx.", "Todos los píxeles");
  auto* size = new QHBoxLayout;
  size->addWidget(Titulo("&Detalle", sldWTamaño_));
  size->addWidget(lblTamañowebMin_);
  size->addWidget(sldWTamaño_, 1);
  size->addWidget(lblTamañowebMax_);
  layout->addLayout(size);

  lblWebBackColor_ = MuestraDeColor("lblWebBackColor", "Color del fondo", program_.fondoWeb);
  auto* row = FilaDePanel("Color del fondo", lblWebBackColor_);
  row->addStretch(1);
  row->addWidget(BarraDeBotones("TBWebAlinea",
                                {{"Izquierda", "Izquierda", IconoDeRenglones(Qt::AlignLeft)},
                                 {"Centrado", "Centrado", IconoDeRenglones(Qt::AlignHCenter)},
                                 {"Derecha", "Derecha", IconoDeRenglones(Qt::AlignRight)}},
                                true));
  layout->addLayout(row);

  mrcweb_[0] = named<QWidget>("mrcweb(0)");
  QVBoxLayout* mosaic = Columna(mrcweb_[0]);
  cboPaletaWeb_ = named<QComboBox>("cboPaletaWeb");
  cboPaletaWeb_->addItems({QStringLiteral("Binaria (0-1)"), QStringLiteral("Texto del usuario")});
  cboPaletaWeb_->setToolTip(QStringLiteral("Caracteres que se repiten por toda la página"));
  txtPaletaWeb_ = named<QLineEdit>("txtPaletaWeb");
  cboPaletaWeb_->setCurrentIndex(program_.ajustesWeb.paleta);
  txtPaletaWeb_->setText(QStringOfBytes(program_.ajustesWeb.textoPaleta));
  txtPaletaWeb_->setEnabled(program_.ajustesWeb.paleta == 1);
  txtPaletaWeb_->installEventFilter(this);
  txtPaletaWeb_->setToolTip(QStringLiteral("El texto que se repite por toda la página"));
  mosaic->addLayout(FilaDePanel("&Paleta", cboPaletaWeb_));
  mosaic->addLayout(FilaDePanel("Paleta de te&xto", txtPaletaWeb_));

  mrcweb_[1] = named<QWidget>("mrcweb(1)");
  CrearBordesWeb(Columna(mrcweb_[1]));
  for (QWidget* frame : mrcweb_) layout->addWidget(frame);
  mrcweb_[1]->hide();
  return page;
}

void frmOpcAlgoritmo::CrearBordesWeb(QVBoxLayout* layout) {
  WebSettings& web = program_.ajustesWeb;
  auto* row = new QHBoxLayout;
  row->addWidget(new QLabel(QStringLiteral("Bordes")));
  row->addWidget(
      BarraDeBotones("TBBordesWeb",
                     {{"WebBArriba", "Borde superior", IconoDeBorde(Qt::TopEdge), &web.bordeArriba},
                      {"WebBAbajo", "Borde inferior", IconoDeBorde(Qt::BottomEdge), &web.bordeAbajo},
                      {"WebBDerecha", "Borde derecho", IconoDeBorde(Qt::RightEdge), &web.bordeDerecha},
                      {"WebBIzquierda", "Borde izquierdo", IconoDeBorde(Qt::LeftEdge), &web.bordeIzquierda}},
                     false));
  row->addStretch(1);
  layout->addLayout(row);
}

}  // namespace pixmosa
