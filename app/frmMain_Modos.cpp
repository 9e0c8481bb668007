// The mode drop-down, the options panel and the settings file.
#include <QActionGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/Modos.h"
#include "app/basINI.h"
#include "app/frmMain.h"
#include "app/frmMain_Imagen.h"
#include "app/frmOpcAlgoritmo.h"
#include "figlet/frmFiglet.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Named.h"

namespace pixmosa {

void frmMain::CrearSelectorDeModo() {
  auto* bar = named<QToolBar>("Toolbar2", QStringLiteral("Modo"));
  auto* button = named<QToolButton>("Modo");
  button->setText(QStringLiteral("&Modo"));
  button->setToolTip(QStringLiteral("Elige cómo se convierte la imagen (Alt+M)"));
  button->setShortcut(QKeySequence("Alt+M"));
  button->setPopupMode(QToolButton::InstantPopup);
  button->setToolButtonStyle(Qt::ToolButtonTextOnly);
  auto* menu = named<QMenu>("mnuModo", button);
  auto* group = new QActionGroup(menu);
  for (const char* mode : kModos) {
    QAction* item = menu->addAction(QString::fromUtf8(mode));
    item->setObjectName(QString::fromUtf8(mode));
    item->setCheckable(true);
    item->setChecked(mode == kModos[kModoGrises]);
    group->addAction(item);
    connect(item, &QAction::triggered, this, [this, mode] { ElegirModo(QString::fromUtf8(mode)); });
  }
  button->setMenu(menu);
  lblModo_ = named<QLabel>("lblModo");
  lblModo_->setContentsMargins(8, 0, 8, 0);
  bar->addWidget(button);
  bar->addWidget(lblModo_);
  addToolBar(bar);
}

void frmMain::ElegirModo(const QString& mode) {
  lblModo_->setText(mode);
  if (!PicAlgoritmos_->isHidden()) opciones_->MostrarPaneles();
}

void frmMain::CrearLetreros(QVBoxLayout* area) {
  figlet_ = new frmFiglet(programa_.basFigLet, programa_.carpetasDeFuentes, programa_.plataforma.dialogos,
                          PicAlgoritmos_);
  figlet_->hide();
  area->addWidget(figlet_);
  const auto count = [this](int fonts) {
    panelFiglet_->setText(QStringLiteral("Fuentes FigLet encontradas (%1)").arg(fonts));
  };
  connect(figlet_, &frmFiglet::ListaCambiada, this, count);
  connect(figlet_, &frmFiglet::LetreroCambiado, txtAscii_, &AreaDeTexto::PonerTexto);
  connect(figlet_, &frmFiglet::AlineacionCambiada, txtAscii_, &AreaDeTexto::Alinear);
  count(figlet_->Cuantas());
}

void frmMain::MostrarLetreros(bool shown) {
  // The options keep their own state behind the panel.
  figlet_->setVisible(shown);
  if (opciones_) opciones_->setVisible(!shown);
  if (shown) figlet_->PrimeraVez();
}

void frmMain::ComputeColumnCount() {
  opciones_->LlenarAjustes(programa_.ajustes);
  pixmosa::ComputeColumnCount(programa_.basAscii, programa_.ajustes.size,
                              programa_.plataforma.superficie.ScreenWidth());
}

void frmMain::GrabarIni() {
  opciones_->LlenarAjustes(programa_.ajustes);
  const AsciiSettings& a = programa_.ajustes;
  SaveSettings(IniPath(programa_.carpeta),
               {.colorFondoAscii = opciones_->ColorDeFondo(),
                .colorTextoAscii = opciones_->ColorDeTexto(),
                .tamañoAscii = a.size,
                .paletaAscii = a.palette,
                .luminosidadAscii = a.luminosity,
                .asciiNegativado = programa_.basAscii.CountedColour == kBlack,
                .paletaWeb = opciones_->findChild<QComboBox*>("cboPaletaWeb")->currentIndex(),
                .previewAscii = chkAsciiPrev_->isChecked(),
                .fuente = a.font});
}

void frmMain::PonerEnBlancoYNegro() {
  imagen_->Aplicar(18, Rgb(150, 150, 150), false);
}

}  // namespace pixmosa
