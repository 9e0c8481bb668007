// The preview: the produced text in a window of its own, large and read-only.
#pragma once

#include <string_view>

#include <QDialog>

#include "platform/Colour.h"
#include "platform/Font.h"

namespace pixmosa {

class AreaDeTexto;

class frmPreview final : public QDialog {
  Q_OBJECT

 public:
  explicit frmPreview(QWidget* parent);

  // Shows the window with a text, UTF-8.
  void Mostrar(std::string_view utf8, const Font& font, Colour background, Colour ink);

 private:
  AreaDeTexto* txtAscii_;
};

}  // namespace pixmosa
