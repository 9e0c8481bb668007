#include "web/frmGIFAvance.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Menus.h"
#include "platform/qt/Named.h"
#include "platform/qt/QtPicture.h"
#include "platform/qt/QtText.h"

namespace pixmosa {

frmGIFAvance::frmGIFAvance(BasGif& gif, PictureCodec& pictures, QWidget* parent)
    : QDialog(parent), gif_(gif), pictures_(pictures) {
  setObjectName("frmGIFAvance");
  setWindowTitle(QStringLiteral("Propiedades avanzadas del AnimArt"));
  lstwGIF_ = named<QListWidget>("lstwGIF");
  lstwGIF_->setAccessibleName(QStringLiteral("Fotogramas"));
  lstwGIF_->setToolTip(QStringLiteral("Los fotogramas marcados forman la animación"));
  imgGIFPreview_ = named<QLabel>("imgGIFPreview");
  imgGIFPreview_->setAlignment(Qt::AlignCenter);
  imgGIFPreview_->setMinimumSize(200, 160);
  auto* all = named<QPushButton>("cmdAll", QStringLiteral("&Todos"));
  auto* none = named<QPushButton>("cmdNome", QStringLiteral("&Ninguno"));
  auto* accept = named<QPushButton>("cmdAceptar", QStringLiteral("Aceptar"));
  accept->setDefault(true);

  auto* frames = new QHBoxLayout;
  frames->addWidget(lstwGIF_);
  frames->addWidget(imgGIFPreview_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(all);
  buttons->addWidget(none);
  buttons->addStretch(1);
  buttons->addWidget(accept);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(frames, 1);
  layout->addLayout(buttons);
  resize(560, 380);

  const QIcon icon = Icono("image-x-generic");
  for (std::size_t k = 1; k <= gif_.FramesList.size(); ++k) {
    auto* item = new QListWidgetItem(icon, Q("Fotograma " + NumeroDeFotograma(k)), lstwGIF_);
    item->setData(Qt::UserRole, Q("F" + std::to_string(k)));
    item->setCheckState(Qt::Unchecked);
  }
  for (const std::string& number : gif_.Seleccionados)
    if (auto* item = lstwGIF_->item(Q(number).toInt() - 1)) item->setCheckState(Qt::Checked);
  Mostrar(QStringLiteral("Fotograma 01"));
  connect(lstwGIF_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
    if (item) Mostrar(item->text());
  });
  connect(lstwGIF_, &QListWidget::itemClicked, this,
          [this](const QListWidgetItem* item) { Mostrar(item->text()); });
  connect(all, &QPushButton::clicked, this, [this] { MarcarTodos(true); });
  connect(none, &QPushButton::clicked, this, [this] { MarcarTodos(false); });
  connect(accept, &QPushButton::clicked, this, &QDialog::accept);
}

void frmGIFAvance::Mostrar(const QString& name) {
  try {
    shown_ = QPixmap::fromImage(ImageOf(pictures_.Read(gif_.carpeta / (name + ".bmp").toStdString())));
  } catch (const PictureError&) {
    shown_ = QPixmap();  // a frame that cannot be read shows nothing
  }
  const bool fits = shown_.width() <= imgGIFPreview_->width() && shown_.height() <= imgGIFPreview_->height();
  imgGIFPreview_->setPixmap(
      fits || shown_.isNull()
          ? shown_
          : shown_.scaled(imgGIFPreview_->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

void frmGIFAvance::MarcarTodos(bool checked) {
  for (int i = 0; i < lstwGIF_->count(); ++i)
    lstwGIF_->item(i)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

void frmGIFAvance::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  layout()->activate();
  const auto* item = lstwGIF_->currentItem();
  Mostrar(item ? item->text() : QStringLiteral("Fotograma 01"));
}

void frmGIFAvance::done(int result) {
  gif_.Seleccionados.clear();
  for (int i = 0; i < lstwGIF_->count(); ++i)
    if (lstwGIF_->item(i)->checkState() == Qt::Checked)
      gif_.Seleccionados.push_back(NumeroDeFotograma(static_cast<std::size_t>(i) + 1));
  QDialog::done(result);
}

}  // namespace pixmosa
