// Choosing which frames of the last GIF go into the animation page.
#pragma once

#include <QDialog>

#include "platform/PictureCodec.h"
#include "web/basGIF.h"

class QLabel;
class QListWidget;

namespace pixmosa {

class frmGIFAvance final : public QDialog {
  Q_OBJECT

 public:
  frmGIFAvance(BasGif& gif, PictureCodec& pictures, QWidget* parent);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  // Every way of closing keeps the selection.
  void done(int result) override;

 private:
  void Mostrar(const QString& name);
  void MarcarTodos(bool checked);

  BasGif& gif_;
  PictureCodec& pictures_;
  QListWidget* lstwGIF_;
  QLabel* imgGIFPreview_;
  QPixmap shown_;
};

}  // namespace pixmosa
