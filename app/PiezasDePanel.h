// The pieces that panels are laid out of.
#pragma once

#include <QCursor>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>

#include "platform/qt/Named.h"

namespace pixmosa {

inline QVBoxLayout* Columna(QWidget* widget) {
  auto* layout = new QVBoxLayout(widget);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(5);
  return layout;
}

// A label that can be clicked, also by keyboard.
inline QToolButton* Etiqueta(const char* name, const char* text, const char* help) {
  auto* button = named<QToolButton>(name);
  button->setText(QString::fromUtf8(text));
  button->setToolTip(QString::fromUtf8(help));
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

inline QSlider* Deslizador(const char* name, int minimum, int maximum, int value, const char* help) {
  auto* slider = named<QSlider>(name, Qt::Horizontal);
  slider->setRange(minimum, maximum);
  slider->setValue(value);
  slider->setToolTip(QString::fromUtf8(help));
  QObject::connect(slider, &QSlider::sliderMoved, slider,
                   [](int v) { QToolTip::showText(QCursor::pos(), QString::number(v)); });
  return slider;
}

inline QLabel* Nota(const char* text) {
  auto* label = new QLabel(QString::fromUtf8(text));
  label->setWordWrap(true);
  return label;
}

// A label whose access key reaches its control.
inline QLabel* Titulo(const char* text, QWidget* control) {
  auto* label = new QLabel(QString::fromUtf8(text));
  // The underlined letter makes the text a little wider than it is measured.
  label->setMinimumWidth(label->sizeHint().width() + 3);
  label->setBuddy(control);
  return label;
}

// A label and its control in one row.
inline QHBoxLayout* FilaDePanel(const char* text, QWidget* control) {
  auto* row = new QHBoxLayout;
  row->addWidget(Titulo(text, control));
  row->addWidget(control, 1);
  return row;
}

}  // namespace pixmosa
