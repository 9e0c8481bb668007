// The size of the canvas.
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>

#include "editor/frmEditor.h"
#include "editor/frmEditor_Superficie.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Named.h"

namespace pixmosa {

QWidget* frmEditor::CrearTamano() {
  auto* bar = named<QWidget>("barraTamano");
  auto* row = new QHBoxLayout(bar);
  const auto number = [&](const char* name, const char* caption, int most) {
    auto* field = named<QSpinBox>(name);
    field->setRange(1, most);
    field->setAccessibleName(QString::fromUtf8(caption));
    field->setToolTip(QStringLiteral("De 1 a %1").arg(most));
    row->addWidget(new QLabel(QString::fromUtf8(caption) + ":"));
    row->addWidget(field);
    connect(field->findChild<QLineEdit*>(), &QLineEdit::returnPressed, this,
            Con(dialogs_, [this] { CambiarTamano(); }));
    return field;
  };
  numColumnas_ = number("numColumnasEditor", "Columnas", kLadoMayor);
  numFilas_ = number("numFilasEditor", "Filas", kLadoMayor);
  const auto button = [&](const char* name, const char* text, auto work) {
    auto* b = named<QPushButton>(name, QString::fromUtf8(text));
    connect(b, &QPushButton::clicked, this, Con(dialogs_, [work](bool) { work(); }));
    row->addWidget(b);
    return b;
  };
  button("cmdRedimensionar", "Cambiar el tamaño", [this] { CambiarTamano(); });
  const auto close = [this] {
    size_->hide();
    picDraw_->setFocus();
  };
  button("cmdCerrarTamano", "Cerrar", close);
  auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), bar);
  escape->setContext(Qt::WidgetWithChildrenShortcut);
  connect(escape, &QShortcut::activated, this, close);
  row->addStretch(1);
  bar->hide();
  return bar;
}

void frmEditor::PedirTamano() {
  const bool asked =
      numColumnas_->value() != editor_.Grid.Columnas() || numFilas_->value() != editor_.Grid.Filas();
  if (size_->isVisible() && asked) return CambiarTamano();
  numColumnas_->setValue(editor_.Grid.Columnas());
  numFilas_->setValue(editor_.Grid.Filas());
  size_->show();
  numColumnas_->setFocus();
  numColumnas_->selectAll();
}

void frmEditor::CambiarTamano() {
  const int columns = numColumnas_->value(), rows = numFilas_->value();
  size_->hide();
  picDraw_->setFocus();
  if (columns == editor_.Grid.Columnas() && rows == editor_.Grid.Filas()) return;
  picDraw_->Hacer([&] { Redimensionar(editor_, columns, rows); });
}

void frmEditor::Recortar(const ZonaDeCeldas& zone) {
  picDraw_->Asentar();
  const ZonaDeCeldas inside = EnElLienzo(editor_.Grid, zone);
  picDraw_->Seleccionar(std::nullopt);
  picDraw_->Hacer([&] { Redimensionar(editor_, inside.Columnas(), inside.Filas(), inside.desde); });
}

}  // namespace pixmosa
