// The comment block of the loaded font; a click closes the window.
#pragma once

#include <string>

#include <QDialog>

namespace pixmosa {

class frmFigAbout final : public QDialog {
  Q_OBJECT

 public:
  // `comment` is in the 8-bit code page.
  frmFigAbout(const std::string& comment, QWidget* parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace pixmosa
