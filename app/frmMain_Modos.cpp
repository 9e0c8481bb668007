// The mode drop-down and what a mode shows: the options panel or the banner panel.
#include <array>

#include <QActionGroup>
#include <QLabel>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include "app/MarcoDeImagen.h"
#include "app/frmMain.h"
#include "app/frmOpcAlgoritmo.h"
#include "figlet/frmFiglet.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Menus.h"
#include "platform/qt/Named.h"

namespace pixmosa {
namespace {

struct Presentacion {
  const char *icono, *frase;
};
constexpr std::array<Presentacion, kModos.size()> kPresentaciones = {{
    {"modo-grises", "Imita los claros y oscuros de la imagen, carácter a carácter"},
    {"modo-bordes", "Sigue los contornos de un dibujo negro sobre blanco con trazos de caracteres"},
    {"modo-antialias", "Elige los caracteres por la forma de cada trozo de un dibujo negro sobre blanco"},
    {"modo-texto", "Escribe un texto con letras grandes hechas de caracteres"},
    {"modo-mosaico", "Una página web con un texto que se repite en los colores de la imagen"},
    {"modo-copia", "Una página web que copia cada color de la imagen, con los bordes que usted elija"},
}};

}  // namespace

void frmMain::CrearSelectorDeModo() {
  auto* bar = named<QToolBar>("Toolbar2", QStringLiteral("Modo"));
  auto* button = cmdModo_ = named<QToolButton>("Modo");
  button->setText(QStringLiteral("&Modo"));
  button->setShortcut(QKeySequence("Alt+M"));
  button->setPopupMode(QToolButton::MenuButtonPopup);
  button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  button->setFocusPolicy(Qt::TabFocus);
  connect(button, &QAbstractButton::clicked, button, &QToolButton::showMenu);
  auto* menu = named<QMenu>("mnuModo", button);
  menu->setToolTipsVisible(true);
  auto* group = new QActionGroup(menu);
  for (std::size_t mode = 0; mode < kModos.size(); ++mode) {
    QAction* item = menu->addAction(QString::fromUtf8(kModos[mode]));
    item->setObjectName(QString::fromUtf8(kModos[mode]));
    item->setIcon(Icono(kPresentaciones[mode].icono));
    item->setToolTip(QString::fromUtf8(kPresentaciones[mode].frase));
    item->setStatusTip(item->toolTip());
    item->setCheckable(true);
    item->setChecked(mode == p_.modo);
    group->addAction(item);
    connect(item, &QAction::triggered, this,
            Con(desktop_.dialogos, [this, mode](bool) { ElegirModo(static_cast<Modo>(mode)); }));
  }
  button->setMenu(menu);
  lblModo_ = named<QLabel>("lblModo", QString::fromUtf8(kModos[p_.modo]));
  lblModo_->setContentsMargins(8, 0, 8, 0);
  bar->addWidget(button);
  bar->addWidget(lblModo_);
  button->setAutoRaise(false);
  PresentarModo();
  addToolBar(bar);
  barras_.push_back(bar);
}

void frmMain::PresentarModo() {
  const Presentacion& shown = kPresentaciones[p_.modo];
  const QString sentence = QString::fromUtf8(shown.frase);
  cmdModo_->setIcon(Icono(shown.icono));
  cmdModo_->setToolTip(sentence + QStringLiteral(". Elige otro modo (Alt+M)"));
  lblModo_->setToolTip(sentence);
}

void frmMain::ElegirModo(Modo mode) {
  p_.modo = mode;
  Decir({});
  lblModo_->setText(QString::fromUtf8(kModos[mode]));
  PresentarModo();
  if (!PicAlgoritmos_->isHidden()) opciones_->MostrarPaneles();
  AlMomento();
}

void frmMain::CrearLetreros() {
  figlet_ = new frmFiglet(p_.basFigLet, p_.letrero, p_.carpetasDeFuentes, desktop_, PicAlgoritmos_);
  figlet_->hide();
  const auto count = [this](int fonts) {
    panelFiglet_->setText(QStringLiteral("Fuentes FigLet encontradas (%1)").arg(fonts));
  };
  connect(figlet_, &frmFiglet::ListaCambiada, this, count);
  connect(figlet_, &frmFiglet::LetreroCambiado, this,
          Con(desktop_.dialogos,
              [this](const std::string& banner, const std::string& utf8) { PonerLetrero(banner, utf8); }));
  connect(figlet_, &frmFiglet::AlineacionCambiada, this, [this](Qt::Alignment alignment) {
    alineacion_ = alignment;
    txtAscii_->Alinear(alignment);
  });
  count(figlet_->Cuantas());
}

void frmMain::PonerLetrero(const std::string& banner, const std::string& utf8) {
  p_.basAscii.ProducedText = banner;
  p_.basAscii.ProducedUtf8 = utf8;
  p_.metodoDelTexto = -1;
  if (utf8.empty()) {
    txtAscii_->PonerTexto(banner);
  } else {
    txtAscii_->PonerUtf8(utf8);
  }
  txtAscii_->Alinear(alineacion_);
}

void frmMain::MostrarLetreros(bool shown) {
  // The options keep their own state behind the panel.
  figlet_->setVisible(shown);
  opciones_->setVisible(!shown);
  marco_->setVisible(!shown);  // a banner has no picture: its fonts take the place
  if (shown) figlet_->PrimeraVez();
}

}  // namespace pixmosa
