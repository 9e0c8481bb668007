// The list of the system's fixed-pitch fonts; choosing one applies it.
#pragma once

#include <string>
#include <vector>

#include <QDialog>

namespace pixmosa {

class frmFonts final : public QDialog {
  Q_OBJECT

 public:
  frmFonts(const std::vector<std::string>& names, const std::string& current, QWidget* parent);

 signals:
  void Elegida(const QString& name);
};

}  // namespace pixmosa
