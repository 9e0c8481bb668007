// The about box: the product's name and the links to its author.
#pragma once

#include <QDialog>

#include "platform/Shell.h"

namespace pixmosa {

class frmAbout final : public QDialog {
  Q_OBJECT

 public:
  frmAbout(Shell& shell, QWidget* parent);
};

}  // namespace pixmosa
