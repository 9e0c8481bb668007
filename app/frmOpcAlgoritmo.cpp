#include "app/frmOpcAlgoritmo.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include "app/Modos.h"
#include "app/Muestra.h"
#include "app/frmMain.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

// What each mode shows: yes, no, or as it was.
enum Ver { kNo, kSi, kIgual };

struct FilaDeVer {
  Ver figlet, algoritmo[2], ascii[3], web[2];
};

constexpr FilaDeVer kVisibilidad[6] = {
    {kNo, {kSi, kNo}, {kSi, kNo, kNo}, {kIgual, kIgual}},
    {kNo, {kSi, kNo}, {kNo, kSi, kNo}, {kIgual, kIgual}},
    {kNo, {kSi, kNo}, {kNo, kNo, kSi}, {kIgual, kIgual}},
    {kSi, {kIgual, kIgual}, {kIgual, kIgual, kIgual}, {kIgual, kIgual}},
    {kNo, {kNo, kSi}, {kIgual, kIgual, kIgual}, {kSi, kNo}},
    {kNo, {kNo, kSi}, {kIgual, kIgual, kIgual}, {kNo, kSi}},
};

void Poner(QWidget* widget, Ver state) {
  if (widget && state != kIgual) widget->setVisible(state == kSi);
}

constexpr QColor kMarino(0, 0, 128);

}  // namespace

frmOpcAlgoritmo::frmOpcAlgoritmo(frmMain& window, QWidget* parent)
    : QWidget(parent), window_(window), regeneracion_([this] { window_.GenerateAscii(regenerarCon_); }) {
  setObjectName("frmOpcAlgoritmo");
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 4, 0, 0);
  mrcAlgoritmo_[0] = CrearPaginaAscii();
  mrcAlgoritmo_[1] = CrearPaginaWeb();
  for (QWidget* page : mrcAlgoritmo_) layout->addWidget(page);
  PonerAnimArtDisponible(false);
  Conectar();
  ConectarWeb();
  MostrarPaneles();
}

void frmOpcAlgoritmo::Conectar() {
  // Choosing the item that is chosen already counts as well: it brings the grayscale text back.
  connect(cboPaletas_, &QComboBox::currentIndexChanged, this, &frmOpcAlgoritmo::PaletaElegida);
  connect(cboPaletas_, &QComboBox::activated, this, [this] { Regenerar(kGrayscale); });
  connect(chkAsciiNegativo_, &QCheckBox::toggled, this, &frmOpcAlgoritmo::NegativoElegido);
  connect(sldLuminosidad_, &QSlider::valueChanged, this, &frmOpcAlgoritmo::LuminosidadCambiada);
  connect(label1_, &QAbstractButton::clicked, this, [this] { sldLuminosidad_->setValue(0); });
  connect(sldTamaño_, &QSlider::valueChanged, this, &frmOpcAlgoritmo::TamañoCambiado);
  connect(lblTamañoAsciiMin_, &QAbstractButton::clicked, this,
          [this] { PonerTamaño(sldTamaño_->minimum()); });
  connect(lblTamañoAsciiMax_, &QAbstractButton::clicked, this,
          [this] { PonerTamaño(sldTamaño_->maximum()); });
  connect(lbl100_, &QAbstractButton::clicked, this,
          [this] { PonerTamaño(RoundHalfEven(sldTamaño_->maximum() / 2.0 + 1)); });
  connect(lblAsciiBackcolor_, &QAbstractButton::clicked, this,
          [this] { ElegirColor(lblAsciiBackcolor_, fondo_); });
  connect(lblAsciiForeColor_, &QAbstractButton::clicked, this,
          [this] { ElegirColor(lblAsciiForeColor_, texto_); });
  connect(cmdBN_, &QAbstractButton::clicked, &window_, &frmMain::PonerEnBlancoYNegro);
}

void frmOpcAlgoritmo::ConectarWeb() {
  connect(cmdGIFAvance_, &QAbstractButton::clicked, this, [this] { window_.ElegirFotogramas(); });
  connect(lblWebBackColor_, &QAbstractButton::clicked, this,
          [this] { window_.ElegirFondoWeb(lblWebBackColor_, fondoWeb_); });
  connect(lblTamañowebMin_, &QAbstractButton::clicked, this,
          [this] { sldWTamaño_->setValue(sldWTamaño_->minimum()); });
  connect(lblTamañowebMax_, &QAbstractButton::clicked, this,
          [this] { sldWTamaño_->setValue(sldWTamaño_->maximum()); });
  const auto choose = [this](int item) {
    txtPaletaWeb_->setEnabled(item == 1);
    if (item == 1) txtPaletaWeb_->setFocus();
  };
  connect(cboPaletaWeb_, &QComboBox::currentIndexChanged, this, choose);
  connect(cboPaletaWeb_, &QComboBox::activated, this, choose);
}

void frmOpcAlgoritmo::MostrarPaneles() {
  const FilaDeVer& row = kVisibilidad[window_.IndiceDelModo()];
  window_.MostrarLetreros(row.figlet == kSi);
  for (int i = 0; i < 2; ++i) Poner(mrcAlgoritmo_[i], row.algoritmo[i]);
  for (int i = 0; i < 3; ++i) Poner(mrcAscii_[i], row.ascii[i]);
  for (int i = 0; i < 2; ++i) Poner(mrcweb_[i], row.web[i]);
}

void frmOpcAlgoritmo::LlenarAjustes(AsciiSettings& settings) const {
  settings.size = sldTamaño_->value();
  settings.luminosity = sldLuminosidad_->value();
  settings.palette = cboPaletas_->currentIndex();
  settings.relleno = chkRelleno_->isChecked();
}

bool frmOpcAlgoritmo::AnimArt() const {
  return chkAnimArt_->isChecked();
}

void frmOpcAlgoritmo::LlenarAjustesWeb(WebSettings& settings) const {
  settings.tamaño = sldWTamaño_->value();
  settings.paleta = cboPaletaWeb_->currentIndex();
  settings.textoPaleta = BytesOfQString(txtPaletaWeb_->text());
  const auto pressed = [this](const char* key) { return findChild<QAction*>(key)->isChecked(); };
  settings.bordeArriba = pressed("WebBArriba");
  settings.bordeAbajo = pressed("WebBAbajo");
  settings.bordeDerecha = pressed("WebBDerecha");
  settings.bordeIzquierda = pressed("WebBIzquierda");
}

Colour frmOpcAlgoritmo::ColorDeFondo() const {
  return fondo_;
}

Colour frmOpcAlgoritmo::ColorDeTexto() const {
  return texto_;
}

void frmOpcAlgoritmo::PaletaElegida() {
  Programa& p = window_.programa();
  LlenarAjustes(p.ajustes);
  RebuildCharacterTables(p.basAscii, p.ajustes, p.plataforma.superficie);
  Regenerar(kGrayscale);
}

void frmOpcAlgoritmo::NegativoElegido() {
  Programa& p = window_.programa();
  p.basAscii.CountedColour = chkAsciiNegativo_->isChecked() ? kBlack : kWhite;
  MeasureCharacterSet(p.basAscii, p.ajustes.font, p.plataforma.superficie);
  BuildGrayLookup(p.basAscii);
  Regenerar(kGrayscale);
}

void frmOpcAlgoritmo::LuminosidadCambiada() {
  window_.vistaPrevia().setChecked(false);
  Regenerar(kGrayscale);
}

void frmOpcAlgoritmo::TamañoCambiado() {
  window_.vistaPrevia().setChecked(false);
  window_.ComputeColumnCount();
  const int method = window_.IndiceDelModo();
  if (method <= kAntiAlias) Regenerar(method);
}

void frmOpcAlgoritmo::PonerTamaño(int value) {
  const QSignalBlocker quiet(sldTamaño_);
  sldTamaño_->setValue(value);
  window_.ComputeColumnCount();
}

void frmOpcAlgoritmo::ElegirColor(QPushButton* swatch, Colour& colour) {
  const Colour chosen = window_.programa().plataforma.dialogos.ChooseColour(colour);
  if (chosen == kNoColour) return;
  colour = chosen;
  PintarMuestra(swatch, chosen);
  window_.areaDeTexto().PonerColores(QColorOf(fondo_), QColorOf(texto_));
}

void frmOpcAlgoritmo::Regenerar(int method) {
  if (!window_.HayImagen()) return;
  regenerarCon_ = method;
  regeneracion_.Pedir();
}

void frmOpcAlgoritmo::PonerAnimArtDisponible(bool available) {
  chkAnimArt_->setEnabled(available);
  if (!available) chkAnimArt_->setChecked(false);
  cmdGIFAvance_->setEnabled(available);
  const QColor back = available ? QColor(Qt::white) : kMarino, text = available ? kMarino : QColor(Qt::white);
  QPalette colours = mrcAnimArt_->palette();
  colours.setColor(QPalette::Window, back);
  colours.setColor(QPalette::WindowText, text);
  for (QWidget* w : {static_cast<QWidget*>(mrcAnimArt_), static_cast<QWidget*>(lblAnimArt_),
                     static_cast<QWidget*>(chkAnimArt_)})
    w->setPalette(colours);
}

}  // namespace pixmosa
