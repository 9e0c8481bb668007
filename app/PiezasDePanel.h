// The pieces that panels are laid out of.
#pragma once

#include <QComboBox>
#include <QCursor>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>
#include <QVariant>

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

// Widgets in one another's place, of which one is seen: the place is as large as the largest, so that nothing
// around it moves when another is shown.
inline void Superponer(QGridLayout* place, QWidget* widget) {
  QSizePolicy keep = widget->sizePolicy();
  keep.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(keep);
  place->addWidget(widget, 0, 0, Qt::AlignTop);
}

inline QGridLayout* Superpuestos(std::initializer_list<QWidget*> widgets) {
  auto* place = new QGridLayout;
  for (QWidget* widget : widgets) Superponer(place, widget);
  return place;
}

// A slider with its number beside it.
inline QWidget* ConNumero(const char* title, QSlider* slider, const char* suffix) {
  auto* number = new QLabel;
  const QString after = QString::fromUtf8(suffix);
  const auto show = [number, after](int value) { number->setText(QString::number(value) + after); };
  number->setObjectName("lbl" + slider->objectName().mid(3));
  number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  number->setMinimumWidth(number->fontMetrics().horizontalAdvance("100" + after));
  QObject::connect(slider, &QSlider::valueChanged, number, show);
  show(slider->value());
  auto* widget = new QWidget;
  auto* row = FilaDePanel(title, slider);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(number);
  widget->setLayout(row);
  return widget;
}

// The text of a list that can be typed into becomes its last valid one, or that takes its place again.
inline bool Aceptado(QComboBox* list, bool valid) {
  constexpr char kValido[] = "valido";
  if (valid) {
    list->setProperty(kValido, list->currentText());
  } else {
    list->setEditText(list->property(kValido).toString());
  }
  return valid;
}

// A list that can also be typed into; nothing typed is added to it or completed.
inline QComboBox* ListaEscribible(const char* name, const QStringList& items, const char* help) {
  auto* list = named<QComboBox>(name);
  list->setEditable(true);
  list->setInsertPolicy(QComboBox::NoInsert);
  list->setCompleter(nullptr);
  list->addItems(items);
  list->setMinimumContentsLength(10);
  list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  list->setToolTip(QString::fromUtf8(help));
  Aceptado(list, true);
  return list;
}

}  // namespace pixmosa
