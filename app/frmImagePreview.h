// The picture at natural size with two scroll bars.
#pragma once

#include <QDialog>

#include "platform/Picture.h"

namespace pixmosa {

class frmImagePreview final : public QDialog {
  Q_OBJECT

 public:
  frmImagePreview(const Picture& picture, QWidget* parent);
};

}  // namespace pixmosa
