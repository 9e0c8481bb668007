#include "editor/frmReemplazar.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/qt/Named.h"

namespace pixmosa {
namespace {

QLineEdit* Campo(const char* name, const char* help) {
  auto* field = named<QLineEdit>(name);
  field->setMaximumWidth(60);
  field->setToolTip(QString::fromUtf8(help));
  // The character typed last takes the place of the one before.
  QObject::connect(field, &QLineEdit::textEdited, field, [field](const QString& text) {
    const auto letters = text.toUcs4();
    if (letters.size() > 1) field->setText(QString::fromUcs4(std::u32string(1, letters.back()).c_str(), 1));
  });
  return field;
}

// An empty field stands for the blank.
char32_t De(const QLineEdit* field) {
  const auto letters = field->text().toUcs4();
  return letters.isEmpty() ? U' ' : static_cast<char32_t>(letters[0]);
}

}  // namespace

frmReemplazar::frmReemplazar(QWidget* parent) : QDialog(parent) {
  setObjectName("frmReemplazar");
  setWindowTitle(QStringLiteral("Reemplazar caracteres"));
  txtBuscar_ = Campo("txtBuscar", "El carácter que se cambia; vacío, el blanco");
  txtPoner_ = Campo("txtPoner", "El que se pone en su lugar; vacío, el blanco");
  lblCuantos_ = named<QLabel>("lblCuantos");
  auto* buttons = new QDialogButtonBox;
  auto* replace = buttons->addButton(QStringLiteral("&Reemplazar"), QDialogButtonBox::AcceptRole);
  replace->setObjectName("cmdReemplazar");
  replace->setDefault(true);
  buttons->addButton(QStringLiteral("Cerrar"), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { emit Pedido(De(txtBuscar_), De(txtPoner_)); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  setMinimumWidth(300);  // its title
  auto* form = new QFormLayout(this);
  form->addRow(QStringLiteral("&Buscar:"), txtBuscar_);
  form->addRow(QStringLiteral("&Poner:"), txtPoner_);
  form->addRow(lblCuantos_);
  form->addRow(buttons);
}

void frmReemplazar::Mostrar(char32_t find, char32_t with, bool selected) {
  const auto text = [](char32_t c) { return QString::fromUcs4(&c, 1); };
  txtBuscar_->setText(find < 32 ? QStringLiteral(" ") : text(find));
  txtPoner_->setText(text(with));
  lblCuantos_->setText(selected ? QStringLiteral("En lo seleccionado.")
                                : QStringLiteral("En todo el dibujo."));
  show();
  raise();
  activateWindow();
  txtBuscar_->setFocus();
  txtBuscar_->selectAll();
}

void frmReemplazar::Decir(int count) {
  lblCuantos_->setText(count == 1 ? QStringLiteral("Se ha cambiado 1.")
                                  : QStringLiteral("Se han cambiado %1.").arg(count));
}

}  // namespace pixmosa
