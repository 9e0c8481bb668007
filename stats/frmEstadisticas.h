// The statistics window: the counts of a text as a sortable list.
#pragma once

#include <string_view>

#include <QDialog>

#include "platform/Shell.h"

class QTreeWidget;

namespace pixmosa {

class frmEstadisticas final : public QDialog {
  Q_OBJECT

 public:
  // `text` is in the 8-bit code page.
  frmEstadisticas(std::string_view text, Shell& shell, QWidget* parent);

 private:
  void Copiar();

  Shell& shell_;
  QTreeWidget* lsvEstadistica_;
};

}  // namespace pixmosa
