// The dialog of the nine configurable effects: a slider, and a preview computed on a picture of its own,
// beside the picture as it is, whole and in a detail. It begins with the value that the effect was last
// applied with.
#pragma once

#include <map>

#include <QDialog>
#include <QTimer>

#include "effects/mFiltros.h"
#include "platform/Dialogs.h"
#include "platform/qt/QtProgress.h"

class QLabel;
class QProgressBar;
class QSlider;
class QSpinBox;

namespace pixmosa {

class DetalleDeImagen;

// The preview `Image1`: a picture at natural size from the top left, or stretched to the whole widget.
class ImagenEstirable final : public QWidget {
  Q_OBJECT

 public:
  explicit ImagenEstirable(QWidget* parent = nullptr) : QWidget(parent) {}
  void Mostrar(const Picture& picture, bool stretch);
  bool Estirada() const { return stretch_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Picture picture_;
  bool stretch_ = false;
};

// A slider value that arrives while an effect runs is remembered, and the last of them is previewed
// afterwards; "Aplicar" waits for it, so that what is applied is what the slider and the preview show.
class frmEfectConfig final : public QDialog {
  Q_OBJECT

 public:
  frmEfectConfig(MFiltros& m, ImagenDeTrabajo& image, Dialogs& dialogs, QWidget* parent);

  // Opens the dialog where it is closed, and loads the effect (a configurable one) unless it holds it
  // already.
  void Abrir(int effect);

  // The working picture is another one: the preview is made of that.
  void SeguirImagen();

  void done(int result) override;

 signals:
  // The working picture is the preview of an effect with a worker's argument now.
  void Aplicado(int effect, std::int32_t argument);

 private:
  void Mostrar();
  void CargarEfecto(int effect);
  void Componer();
  void CambiarValor();
  void Previsualizar();
  void UnaVista();
  void Aplicar();
  void FitPreview();
  std::int32_t Argumento() const;

  MFiltros& m_;
  ImagenDeTrabajo& image_;
  Dialogs& dialogs_;
  ImagenDeTrabajo Picture1_;  // the working copy that previews are computed on
  ImagenEstirable* Image1_;
  ImagenEstirable* antes_;
  DetalleDeImagen* picDetalle_;
  QSlider* sldEfecto_;
  QSpinBox* numEfecto_;
  QLabel* lblEfecto_;
  QLabel* lblRango_;
  QLabel* lblValor_;
  QProgressBar* prgBar1_;
  QtProgress progress_;
  QTimer retry_;                // while another effect keeps the dispatcher busy
  std::map<int, int> ultimos_;  // the value that each effect was last applied with
  bool probado_ = false;        // the slider has been moved since the effect was loaded: the preview shows it
  bool running_ = false, pending_ = false, applying_ = false;
};

}  // namespace pixmosa
