#include "app/frmImagePreview.h"

#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "app/MarcoDeImagen.h"
#include "platform/qt/Named.h"

namespace pixmosa {

frmImagePreview::frmImagePreview(const Picture& picture, QWidget* parent) : QDialog(parent, Qt::Window) {
  setObjectName("frmImagePreview");
  setWindowTitle(QStringLiteral("Imagen a tamaño real (%1 x %2)").arg(picture.Width()).arg(picture.Height()));
  auto* view = named<VistaDeImagen>("picMain");
  view->Mostrar(picture);
  auto* area = named<QScrollArea>("picMarco");
  area->setFrameShape(QFrame::NoFrame);
  area->setAlignment(Qt::AlignCenter);
  area->setBackgroundRole(QPalette::Dark);
  area->setWidget(view);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(area);
  resize(QSize(picture.Width() + 2, picture.Height() + 2)
             .boundedTo(screen()->availableSize() * 9 / 10)
             .expandedTo({240, 160}));
}

}  // namespace pixmosa
