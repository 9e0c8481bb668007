#include "figlet/frmFigAbout.h"

#include <QEvent>
#include <QVBoxLayout>

#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Named.h"

namespace pixmosa {

frmFigAbout::frmFigAbout(const std::string& comment, QWidget* parent) : QDialog(parent) {
  setObjectName("frmFigAbout");
  setWindowTitle(QStringLiteral("Información sobre la fuente"));
  auto* text = named<AreaDeTexto>("txtAbout");
  text->setReadOnly(true);
  text->PonerFuente({"Lucida Console", 9});
  text->PonerTexto(comment);
  text->viewport()->installEventFilter(this);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(text);
  resize(520, 320);
}

bool frmFigAbout::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) accept();
  return QDialog::eventFilter(watched, event);
}

}  // namespace pixmosa
