#include "figlet/frmFigAbout.h"

#include <algorithm>

#include <QEvent>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Named.h"

namespace pixmosa {
namespace {

constexpr int kMargen = 12, kMenosColumnas = 48, kMasColumnas = 110, kMenosFilas = 6, kMasFilas = 32;

// Room for the whole of a text, within bounds.
QSize Sitio(const AreaDeTexto& text) {
  const QSize cells = text.Medidas();
  const QFontMetrics font = text.fontMetrics();
  const int bar = text.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  return {std::clamp(cells.width(), kMenosColumnas, kMasColumnas) * font.horizontalAdvance(u'M') +
              2 * kMargen + bar,
          std::clamp(cells.height() + 1, kMenosFilas, kMasFilas) * font.lineSpacing() + 2 * kMargen + bar};
}

}  // namespace

frmFigAbout::frmFigAbout(const std::string& comment, QWidget* parent) : QDialog(parent) {
  setObjectName("frmFigAbout");
  setWindowTitle(QStringLiteral("Información sobre la fuente"));
  auto* text = named<AreaDeTexto>("txtAbout");
  text->setReadOnly(true);
  text->PonerFuente({"Lucida Console", 9});
  text->PonerTexto(comment);
  text->document()->setDocumentMargin(kMargen);
  text->viewport()->installEventFilter(this);
  text->viewport()->setCursor(Qt::PointingHandCursor);
  text->setMinimumSize(Sitio(*text).boundedTo({320, 160}));
  auto* hint = new QLabel(QStringLiteral("Pulse en el texto para cerrar."));
  hint->setContentsMargins(kMargen, 4, kMargen, 6);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(text, 1);
  layout->addWidget(hint);
  resize(Sitio(*text) + QSize(0, hint->sizeHint().height()));
}

bool frmFigAbout::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) accept();
  return QDialog::eventFilter(watched, event);
}

}  // namespace pixmosa
