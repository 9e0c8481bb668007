#include "app/frmOpcAlgoritmo.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include "app/PiezasDePanel.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Muestra.h"
#include "platform/qt/QtText.h"
#include "programa/Ajustes.h"
#include "programa/Generar.h"

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

frmOpcAlgoritmo::frmOpcAlgoritmo(Programa& program, Dialogs& dialogs, QWidget* parent)
    : QWidget(parent), program_(program), dialogs_(dialogs) {
  setObjectName("frmOpcAlgoritmo");
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 4, 0, 0);
  mrcAlgoritmo_[0] = CrearPaginaAscii();
  mrcAlgoritmo_[1] = CrearPaginaWeb();
  layout->addLayout(Superpuestos({mrcAlgoritmo_[0], mrcAlgoritmo_[1]}));
  MostrarAnimArt();
  Conectar();
  ConectarWeb();
  ConectarConversion();
  ConectarColumnas();
  MostrarConversion();
  MostrarPaneles();
}

void frmOpcAlgoritmo::Conectar() {
  connect(cboPaletas_, &QComboBox::currentIndexChanged, this,
          Con(dialogs_, [this](int palette) { PonerPaleta(program_, palette); }));
  // Choosing the item that is chosen already counts as well: it brings the grayscale text back.
  connect(cboPaletas_, &QComboBox::currentIndexChanged, this,
          [this] { emit TextoCaducado(program_.ajustes.conversion); });
  connect(cboPaletas_, &QComboBox::activated, this,
          [this] { emit TextoCaducado(program_.ajustes.conversion); });
  connect(chkAsciiNegativo_, &QCheckBox::toggled, this, Con(dialogs_, [this](bool negative) {
            PonerNegativo(program_, negative);
            emit TextoCaducado(program_.ajustes.conversion);
          }));
  connect(sldLuminosidad_, &QSlider::valueChanged, this, [this](int value) {
    PonerLuminosidad(program_, value);
    program_.vistaPrevia = false;
    emit TextoCaducado(program_.ajustes.conversion);
  });
  connect(label1_, &QAbstractButton::clicked, this, [this] { sldLuminosidad_->setValue(0); });
  connect(sldTamaño_, &QSlider::valueChanged, this, &frmOpcAlgoritmo::TamañoCambiado);
  connect(lblTamañoAsciiMin_, &QAbstractButton::clicked, this,
          [this] { SaltarATamaño(sldTamaño_->minimum()); });
  connect(lblTamañoAsciiMax_, &QAbstractButton::clicked, this,
          [this] { SaltarATamaño(sldTamaño_->maximum()); });
  connect(lbl100_, &QAbstractButton::clicked, this,
          [this] { SaltarATamaño(RoundHalfEven(sldTamaño_->maximum() / 2.0 + 1)); });
  connect(lblAsciiBackcolor_, &QAbstractButton::clicked, this, [this] {
    if (ElegirColor(lblAsciiBackcolor_, program_.fondoTexto)) emit ColoresCambiados();
  });
  connect(lblAsciiForeColor_, &QAbstractButton::clicked, this, [this] {
    if (ElegirColor(lblAsciiForeColor_, program_.colorTexto)) emit ColoresCambiados();
  });
  connect(chkRelleno_, &QCheckBox::toggled, this, [this](bool fill) {
    program_.ajustes.relleno = fill;
    emit RellenoCambiado();
  });
  connect(chkAnimArt_, &QCheckBox::toggled, this, [this](bool animate) { program_.animArt = animate; });
  connect(cmdBN_, &QAbstractButton::clicked, this, &frmOpcAlgoritmo::BlancoYNegroPedido);
  connect(cmdGIFAvance_, &QAbstractButton::clicked, this, &frmOpcAlgoritmo::FotogramasPedidos);
}

void frmOpcAlgoritmo::ConectarWeb() {
  WebSettings& web = program_.ajustesWeb;
  connect(lblWebBackColor_, &QAbstractButton::clicked, this, [this] {
    if (ElegirColor(lblWebBackColor_, program_.fondoWeb))
      program_.basWeb.Fondo = TextoDeFondo(program_.fondoWeb);
  });
  connect(sldWTamaño_, &QSlider::valueChanged, this, [&web](int value) { web.tamaño = value; });
  connect(lblTamañowebMin_, &QAbstractButton::clicked, this,
          [this] { sldWTamaño_->setValue(sldWTamaño_->minimum()); });
  connect(lblTamañowebMax_, &QAbstractButton::clicked, this,
          [this] { sldWTamaño_->setValue(sldWTamaño_->maximum()); });
  const auto choose = [this, &web](int item) {
    web.paleta = item;
    txtPaletaWeb_->setEnabled(item == 1);
    if (item == 1) txtPaletaWeb_->setFocus();
  };
  connect(cboPaletaWeb_, &QComboBox::currentIndexChanged, this, choose);
  connect(cboPaletaWeb_, &QComboBox::activated, this, choose);
  connect(txtPaletaWeb_, &QLineEdit::textChanged, this,
          [&web](const QString& text) { web.textoPaleta = BytesOfQString(text); });
}

void frmOpcAlgoritmo::MostrarPaneles() {
  const FilaDeVer& row = kVisibilidad[program_.modo];
  emit LetrerosVisibles(row.figlet == kSi);
  for (int i = 0; i < 2; ++i) Poner(mrcAlgoritmo_[i], row.algoritmo[i]);
  for (int i = 0; i < 3; ++i) Poner(mrcAscii_[i], row.ascii[i]);
  for (int i = 0; i < 2; ++i) Poner(mrcweb_[i], row.web[i]);
  MostrarColumnas();
}

void frmOpcAlgoritmo::TamañoCambiado(int value) {
  PonerTamaño(program_, value);
  MostrarColumnas();
  program_.vistaPrevia = false;
  emit TextoCaducado(MetodoDe(program_));
}

void frmOpcAlgoritmo::SaltarATamaño(int value) {
  const QSignalBlocker quiet(sldTamaño_);
  sldTamaño_->setValue(value);
  PonerTamaño(program_, value);
  MostrarColumnas();
}

bool frmOpcAlgoritmo::ElegirColor(QPushButton* swatch, Colour& colour) {
  const Colour chosen = dialogs_.ChooseColour(colour);
  if (chosen == kNoColour) return false;
  colour = chosen;
  PintarMuestra(swatch, chosen);
  return true;
}

bool frmOpcAlgoritmo::eventFilter(QObject* watched, QEvent* event) {
  if (watched == lblAnimArt_ && event->type() == QEvent::MouseButtonRelease) chkAnimArt_->click();
  // A file dropped on the palette's text is for the window, which loads it.
  const bool file = watched == txtPaletaWeb_ && event->type() == QEvent::DragEnter &&
                    static_cast<QDragEnterEvent*>(event)->mimeData()->hasUrls();
  if (file) event->ignore();
  return file;
}

void frmOpcAlgoritmo::PonerImagenDisponible(bool available) {
  cmdBN_->setEnabled(available);
  cmdComparar_->setEnabled(available);
}

void frmOpcAlgoritmo::MostrarAnimArt() {
  const bool available = program_.animArtDisponible;
  chkAnimArt_->setEnabled(available);
  chkAnimArt_->setChecked(program_.animArt);
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
