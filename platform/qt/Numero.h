// Number fields beside sliders.
#pragma once

#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

#include "platform/qt/Named.h"

namespace pixmosa {

// Takes over a slider's range and value, which may have been set without its saying so.
inline void SeguirDeslizador(QSpinBox* number, const QSlider* slider) {
  const QSignalBlocker quiet(number);
  number->setRange(slider->minimum(), slider->maximum());
  number->setValue(slider->value());
}

// A number field for a slider's value, both ways.
inline QSpinBox* Numero(const char* name, QSlider* slider) {
  auto* number = named<QSpinBox>(name);
  number->setToolTip(slider->toolTip());
  number->setAccessibleName(slider->accessibleName());
  SeguirDeslizador(number, slider);
  QObject::connect(slider, &QSlider::valueChanged, number, &QSpinBox::setValue);
  QObject::connect(number, &QSpinBox::valueChanged, slider, &QSlider::setValue);
  return number;
}

}  // namespace pixmosa
