// One character for another.
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;

namespace pixmosa {

class frmReemplazar final : public QDialog {
  Q_OBJECT

 public:
  explicit frmReemplazar(QWidget* parent);

  // Shows it with these two; `selected` whether it works on the selection alone.
  void Mostrar(char32_t find, char32_t with, bool selected);
  void Decir(int count);

 signals:
  void Pedido(char32_t find, char32_t with);

 private:
  QLineEdit *txtBuscar_, *txtPoner_;
  QLabel* lblCuantos_;
};

}  // namespace pixmosa
