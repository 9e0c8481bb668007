// The inks of the editor's panel.
#include <string>

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "editor/frmEditor_Caracteres.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Muestra.h"
#include "platform/qt/Named.h"

namespace pixmosa {
namespace {

constexpr Colour kTintas[] = {Rgb(0, 0, 0),       Rgb(128, 0, 0),    Rgb(0, 128, 0),    Rgb(128, 128, 0),
                              Rgb(0, 0, 128),     Rgb(128, 0, 128),  Rgb(0, 128, 128),  Rgb(96, 96, 96),
                              Rgb(160, 160, 160), Rgb(230, 30, 30),  Rgb(40, 190, 40),  Rgb(230, 200, 30),
                              Rgb(50, 80, 240),   Rgb(230, 60, 230), Rgb(30, 190, 220), Rgb(255, 140, 0)};

}  // namespace

QWidget* PanelDeCaracteres::CrearTinta() {
  auto* box = new QWidget;
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(2);
  lblTinta_ = MuestraDeColor("lblTintaEditor", "Otra tinta...", kBlack);
  auto* none = named<QPushButton>("cmdSinTinta", QStringLiteral("Sin tinta"));
  none->setToolTip(QStringLiteral("La tinta de todo el dibujo, como en el texto"));
  grid->addWidget(new QLabel(QStringLiteral("Tinta:")), 0, 0, 1, 2);
  grid->addWidget(lblTinta_, 0, 2, 1, 2);
  grid->addWidget(none, 0, 4, 1, 4);
  connect(none, &QPushButton::clicked, this, [this] {
    PonerTinta(kNoColour);
    emit Pulsado();
  });
  connect(lblTinta_, &QPushButton::clicked, this, Con(dialogs_, [this](bool) {
            const Colour chosen = dialogs_.ChooseColour(brush_.tinta == kNoColour ? kBlack : brush_.tinta);
            if (chosen != kNoColour) PonerTinta(chosen);
          }));
  int place = 0;
  for (const Colour ink : kTintas) {
    const ColourParts c = SplitColour(ink);
    auto* swatch = MuestraDeColor(
        ("cmdTinta" + std::to_string(place)).c_str(),
        QStringLiteral("Rojo %1, verde %2, azul %3").arg(c.red).arg(c.green).arg(c.blue).toUtf8().constData(),
        ink);
    swatch->setMinimumWidth(0);
    swatch->setMaximumWidth(30);
    swatch->setFlat(true);
    grid->addWidget(swatch, 1 + place / 8, place % 8);
    connect(swatch, &QPushButton::clicked, this, [this, ink] {
      PonerTinta(ink);
      emit Pulsado();
    });
    ++place;
  }
  chkSoloTinta_ = named<QCheckBox>("chkSoloTinta", QStringLiteral("Solo la tinta"));
  chkSoloTinta_->setToolTip(QStringLiteral("Las herramientas cambian el color y dejan los caracteres"));
  connect(chkSoloTinta_, &QCheckBox::toggled, this, [this](bool on) {
    brush_.soloTinta = on;
    emit Elegido(brush_);
  });
  grid->addWidget(chkSoloTinta_, 3, 0, 1, 8);
  return box;
}

void PanelDeCaracteres::PonerTinta(Colour ink) {
  brush_.tinta = ink;
  Poner(brush_);
  emit Elegido(brush_);
}

}  // namespace pixmosa
