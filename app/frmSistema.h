// The display settings of the system's text editor and web browser, read from the registry; only the
// browser's text size can be changed.
#pragma once

#include <QDialog>

#include "platform/Registry.h"

class QCheckBox;
class QComboBox;
class QLabel;

namespace pixmosa {

class frmSistema final : public QDialog {
  Q_OBJECT

 public:
  frmSistema(Registry& registry, QWidget* parent);

 private:
  void Mostrar();
  void ElegirTamaño(int index);
  bool AjusteDeLinea();

  Registry& registry_;
  QCheckBox* chkNAjuste_;
  QLabel* lblNSize_;
  QLabel* lblNFont_;
  QComboBox* cboESize_;
};

}  // namespace pixmosa
