#include "app/frmAbout.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/Named.h"

namespace pixmosa {
namespace {

struct Enlace {
  const char* nombre;
  const char* texto;
  const char* destino;
};

constexpr Enlace kEnlaces[] = {
    {"lblCorreo", "Escribir al autor: autor@pixmosa.example", "mailto:autor@pixmosa.example"},
    {"lblWeb", "Página web: https://pixmosa.example", "https://pixmosa.example"},
};

}  // namespace

frmAbout::frmAbout(Shell& shell, QWidget* parent) : QDialog(parent) {
  setObjectName("frmAbout");
  setWindowTitle(QStringLiteral("Acerca de Pixmosa"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(28, 22, 28, 18);
  layout->setSpacing(10);
  auto* name = named<QLabel>("lblProducto", QStringLiteral("Pixmosa " PIXMOSA_VERSION));
  QFont large = name->font();
  large.setPointSizeF(large.pointSizeF() * 1.8);
  large.setBold(true);
  name->setFont(large);
  layout->addWidget(name, 0, Qt::AlignHCenter);
  layout->addWidget(
      new QLabel(QStringLiteral("Imágenes y textos convertidos en dibujos hechos con caracteres.")), 0,
      Qt::AlignHCenter);
  for (const Enlace& link : kEnlaces) {
    auto* label =
        named<QLabel>(link.nombre, QStringLiteral("<a href=\"%1\">%2</a>").arg(link.destino, link.texto));
    label->setTextInteractionFlags(Qt::TextBrowserInteraction);
    label->setToolTip(link.destino);
    layout->addWidget(label, 0, Qt::AlignHCenter);
    connect(label, &QLabel::linkActivated, this,
            [&shell](const QString& target) { shell.Open(target.toStdString()); });
  }
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
  buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("Aceptar"));
  layout->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
}

}  // namespace pixmosa
