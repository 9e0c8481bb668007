#include "effects/frmEfectConfig.h"

#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

#include "effects/basFiltrosConfig.h"
#include "effects/frmEfectConfig_Detalle.h"
#include "platform/Rounding.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Menus.h"
#include "platform/qt/Named.h"
#include "platform/qt/Numero.h"
#include "platform/qt/QtPicture.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

constexpr int kLado = 155;  // the preview's design size
constexpr int kMilisegundos = 15;
constexpr int kHueco = 8;
constexpr char kTitulo[] = "Parámetros del filtro";

// The other side of a preview whose longer side is `side`.
int Proporcion(int side, int shorter, int longer) {
  return std::max(1, RoundHalfEven(static_cast<double>(side) * shorter / longer));
}

}  // namespace

void ImagenEstirable::Mostrar(const Picture& picture, bool stretch) {
  picture_ = picture;
  stretch_ = stretch;
  update();
}

void ImagenEstirable::paintEvent(QPaintEvent*) {
  if (picture_.IsEmpty()) return;
  QPainter painter(this);
  if (!stretch_) {
    painter.drawImage(0, 0, ImageOf(picture_));
    return;
  }
  painter.drawImage(rect(), Vista(picture_, size() * devicePixelRatioF()));
}

frmEfectConfig::frmEfectConfig(MFiltros& m, ImagenDeTrabajo& image, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent),
      m_(m),
      image_(image),
      dialogs_(dialogs),
      Image1_(named<ImagenEstirable>("Image1")),
      antes_(named<ImagenEstirable>("picAntes")),
      picDetalle_(named<DetalleDeImagen>("picDetalle")),
      sldEfecto_(named<QSlider>("sldEfecto", Qt::Horizontal)),
      numEfecto_(Numero("numEfecto", sldEfecto_)),
      lblEfecto_(named<QLabel>("lblEfecto")),
      lblRango_(named<QLabel>("lblRango")),
      lblValor_(named<QLabel>("lblValor")),
      prgBar1_(named<QProgressBar>("prgBar1")),
      progress_(prgBar1_) {
  setObjectName("frmEfectConfig");
  setWindowTitle(Q(kTitulo));
  Componer();
  retry_.setSingleShot(true);
  retry_.setInterval(kMilisegundos);
  connect(&retry_, &QTimer::timeout, this, &frmEfectConfig::Previsualizar);
  connect(sldEfecto_, &QSlider::valueChanged, this, &frmEfectConfig::CambiarValor);
}

void frmEfectConfig::Componer() {
  auto* views = new QGridLayout;
  const auto view = [&](const char* name, ImagenEstirable* image, const char* caption, int column) {
    auto* frame = named<QWidget>(name);
    frame->setFixedSize(kLado, kLado);
    image->setParent(frame);
    views->addWidget(new QLabel(Q(caption)), 0, column);
    views->addWidget(frame, 1, column, Qt::AlignTop);
  };
  view("marcoDeAntes", antes_, "Antes", 0);
  view("marcoDeVista", Image1_, "Después", 1);
  views->setHorizontalSpacing(kHueco);
  views->setVerticalSpacing(2);
  picDetalle_->setToolTip(Q("Un detalle de la imagen al 100 %, antes y después: arrástrelo para ver otro"));
  picDetalle_->setAccessibleName(Q("Detalle al 100 %"));
  sldEfecto_->setAccessibleName(Q("Intensidad"));
  sldEfecto_->setToolTip(Q("Cuánto se aplica el filtro; empieza con el último valor aplicado"));
  numEfecto_->setAccessibleName(sldEfecto_->accessibleName());
  numEfecto_->setToolTip(sldEfecto_->toolTip());
  auto* decoration = named<QLabel>("Image2");
  decoration->setPixmap(Icono("image-x-generic").pixmap(24, 24));
  QFont bold = lblEfecto_->font();
  bold.setBold(true);
  lblEfecto_->setFont(bold);
  lblValor_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  sldEfecto_->setMinimumWidth(230);
  QSizePolicy keep = prgBar1_->sizePolicy();
  keep.setRetainSizeWhenHidden(true);
  prgBar1_->setSizePolicy(keep);
  prgBar1_->hide();
  auto* apply = named<QPushButton>("cmdApply", Q("Aplicar"));
  auto* cancel = named<QPushButton>("cmdCancel", Q("Cancelar"));
  apply->setDefault(true);
  connect(apply, &QPushButton::clicked, this, &frmEfectConfig::Aplicar);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

  auto* head = new QHBoxLayout;
  head->addWidget(decoration);
  head->addWidget(lblEfecto_, 1);
  auto* strength = new QHBoxLayout;
  strength->addWidget(named<QLabel>("Label3", Q("Intensidad:")));
  strength->addWidget(lblValor_, 1);
  auto* slider = new QHBoxLayout;
  slider->addWidget(named<QLabel>("Label1", Q("Min.")));
  slider->addWidget(sldEfecto_, 1);
  slider->addWidget(named<QLabel>("Label2", Q("Max.")));
  slider->addWidget(numEfecto_);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(apply);
  buttons->addWidget(cancel);
  // A row takes its gaps from the grid around it, which has two different ones and so none to give.
  for (QBoxLayout* row : {head, strength, slider, buttons}) row->setSpacing(kHueco);
  auto* grid = new QGridLayout(this);
  grid->setHorizontalSpacing(16);
  grid->setColumnStretch(1, 1);
  grid->addLayout(views, 0, 0, 6, 1);
  grid->addLayout(head, 0, 1);
  grid->addWidget(lblRango_, 1, 1);
  grid->addLayout(strength, 2, 1);
  grid->addLayout(slider, 3, 1);
  grid->addWidget(prgBar1_, 4, 1);
  grid->addWidget(picDetalle_, 6, 0, 1, 2);
  grid->setRowStretch(6, 1);
  grid->addLayout(buttons, 7, 0, 1, 2);
}

void frmEfectConfig::Abrir(int effect) {
  if (!isVisible()) Mostrar();
  if (m_.CurrentDialogEffect != effect) CargarEfecto(effect);
}

void frmEfectConfig::SeguirImagen() {
  if (!isVisible()) return;
  if (probado_) {
    CambiarValor();
  } else {
    Picture1_.Asignar(image_.picMain);
    FitPreview();
  }
}

void frmEfectConfig::Mostrar() {
  Image1_->setFixedSize(kLado, kLado);
  Picture1_.Asignar(image_.picMain);
  FitPreview();
  show();
  sldEfecto_->setFocus();
}

void frmEfectConfig::CargarEfecto(int effect) {
  m_.CurrentDialogEffect = effect;
  probado_ = false;
  const EffectConfig& config = *Efecto(effect);
  {
    const QSignalBlocker quiet(sldEfecto_);
    sldEfecto_->setRange(0, 0);  // every effect begins as near to 0 as its range lets it
    sldEfecto_->setRange(config.Min, config.Max);
    sldEfecto_->setPageStep(std::max(1, (config.Max - config.Min) / 10));
  }
  SeguirDeslizador(numEfecto_, sldEfecto_);
  Picture1_.Asignar(image_.picMain);
  lblEfecto_->setText(Q(config.caption));
  lblRango_->setText(Q("Rango del filtro: " + std::to_string(sldEfecto_->minimum()) + " , " +
                       std::to_string(sldEfecto_->maximum())));
  lblValor_->setText(QString::number(sldEfecto_->value()));
  FitPreview();
  if (const auto last = ultimos_.find(effect); last != ultimos_.end()) sldEfecto_->setValue(last->second);
}

void frmEfectConfig::done(int result) {
  m_.CurrentDialogEffect = 0;
  pending_ = applying_ = false;
  retry_.stop();
  if (running_) progress_.Cancelar();
  // A closed dialog keeps no picture.
  Picture1_.Asignar({});
  for (ImagenEstirable* view : {Image1_, antes_}) view->Mostrar({}, false);
  picDetalle_->Mostrar({}, {});
  QDialog::done(result);
}

void frmEfectConfig::CambiarValor() {
  lblValor_->setText(QString::number(sldEfecto_->value()));
  probado_ = pending_ = true;
  Previsualizar();
}

void frmEfectConfig::Previsualizar() {
  if (running_) return;
  if (m_.EffectBusy) {
    retry_.start();
    return;
  }
  running_ = true;
  while (pending_) {
    pending_ = false;
    UnaVista();
  }
  running_ = false;
  if (applying_) Aplicar();
}

void frmEfectConfig::UnaVista() {
  Picture1_.Asignar(image_.picMain);
  prgBar1_->show();
  const int effect = m_.CurrentDialogEffect;
  Intentar(
      dialogs_, [&] { ApplyEffect(m_, image_, effect, Picture1_, Argumento(), progress_, true); }, kTitulo);
  prgBar1_->hide();
  FitPreview();
}

void frmEfectConfig::Aplicar() {
  if (running_ || pending_) {
    applying_ = true;
    return;
  }
  image_.Asignar(Picture1_.picMain);
  const int effect = m_.CurrentDialogEffect;
  const std::int32_t argument = Argumento();
  // Closed first: the picture that changes now is no other one to preview.
  accept();
  if (!probado_) return;
  ultimos_[effect] = sldEfecto_->value();
  emit Aplicado(effect, argument);
}

std::int32_t frmEfectConfig::Argumento() const {
  return ArgumentoDelDeslizador(m_.CurrentDialogEffect, sldEfecto_->value());
}

void frmEfectConfig::FitPreview() {
  const Extent p = Picture1_.picMain.Size();
  const bool stretch = p.width > Image1_->width() || p.height > Image1_->height();
  if (!stretch) {
    Image1_->setFixedSize(kLado, kLado);
  } else if (p.height > p.width) {
    Image1_->setFixedWidth(Proporcion(Image1_->height(), p.width, p.height));
  } else {
    Image1_->setFixedHeight(Proporcion(Image1_->width(), p.height, p.width));
  }
  Image1_->Mostrar(Picture1_.picMain, stretch);
  antes_->setFixedSize(Image1_->size());
  const Picture before = Picture1_.picMain.IsEmpty() ? Picture() : image_.picMain;
  antes_->Mostrar(before, stretch);
  picDetalle_->Mostrar(before, Picture1_.picMain);
}

}  // namespace pixmosa
