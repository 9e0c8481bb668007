#include "app/frmPreview.h"

#include <QScreen>
#include <QVBoxLayout>

#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Muestra.h"
#include "platform/qt/Named.h"

namespace pixmosa {

frmPreview::frmPreview(QWidget* parent) : QDialog(parent, Qt::Window) {
  setObjectName("frmPreview");
  setWindowTitle(QStringLiteral("Vista previa"));
  txtAscii_ = named<AreaDeTexto>("txtAscii");
  txtAscii_->setReadOnly(true);
  txtAscii_->setAccessibleName(windowTitle());
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(txtAscii_);
  resize(screen()->availableSize() * 9 / 10);
}

void frmPreview::Mostrar(std::string_view utf8, const Font& font, Colour background, Colour ink) {
  txtAscii_->PonerColores(QColorOf(background), QColorOf(ink));
  txtAscii_->PonerFuente(font);
  txtAscii_->PonerUtf8(utf8);
  show();
  raise();
  activateWindow();
}

}  // namespace pixmosa
