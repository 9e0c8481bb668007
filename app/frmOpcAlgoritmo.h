// The conversion options, grouped by mode; the main window shows the form inside its area `PicAlgoritmos`.
#pragma once

#include <QWidget>

#include "conversion/basAscii.h"
#include "platform/qt/UltimoValor.h"
#include "web/basWeb.h"

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;
class QToolBar;
class QVBoxLayout;

namespace pixmosa {

class frmMain;

class frmOpcAlgoritmo final : public QWidget {
  Q_OBJECT

 public:
  frmOpcAlgoritmo(frmMain& window, QWidget* parent);

  // Shows the groups of the current mode.
  void MostrarPaneles();

  // The settings as the controls show them now.
  void LlenarAjustes(AsciiSettings& settings) const;

  // The AnimArt group's state: enabled and light, or disabled and navy.
  void PonerAnimArtDisponible(bool available);

  // The same for the WebArt page.
  void LlenarAjustesWeb(WebSettings& settings) const;

  // "Generar AnimArt del GIF" is ticked.
  bool AnimArt() const;

  // The swatches' colours.
  Colour ColorDeFondo() const;
  Colour ColorDeTexto() const;

 private:
  // --- frmOpcAlgoritmo_Paneles.cpp: what there is ---
  QWidget* CrearPaginaAscii();
  QWidget* CrearPaginaWeb();
  QWidget* CrearAnimArt();
  void CrearTamaño(QVBoxLayout* layout);
  void CrearBordesWeb(QVBoxLayout* layout);

  // --- frmOpcAlgoritmo.cpp: how it reacts ---
  void Conectar();
  void ConectarWeb();
  void PaletaElegida();
  void NegativoElegido();
  void LuminosidadCambiada();
  void TamañoCambiado();
  void PonerTamaño(int value);
  void ElegirColor(QPushButton* swatch, Colour& colour);
  void Regenerar(int method);

  frmMain& window_;
  QWidget* mrcAlgoritmo_[2];
  QWidget* mrcAscii_[3];
  QWidget* mrcweb_[2];
  QComboBox* cboPaletas_;
  QCheckBox* chkAsciiNegativo_;
  QSlider* sldLuminosidad_;
  QAbstractButton* label1_;
  QSlider* sldTamaño_;
  QAbstractButton* lblTamañoAsciiMin_;
  QAbstractButton* lblTamañoAsciiMax_;
  QAbstractButton* lbl100_;
  QPushButton* lblAsciiBackcolor_;
  QPushButton* lblAsciiForeColor_;
  QCheckBox* chkRelleno_;
  QPushButton* cmdBN_;
  QFrame* mrcAnimArt_;
  QLabel* lblAnimArt_;
  QCheckBox* chkAnimArt_;
  QPushButton* cmdGIFAvance_;
  QSlider* sldWTamaño_;
  QAbstractButton* lblTamañowebMin_;
  QAbstractButton* lblTamañowebMax_;
  QPushButton* lblWebBackColor_;
  QComboBox* cboPaletaWeb_;
  QLineEdit* txtPaletaWeb_;

  Colour fondo_ = kWhite, texto_ = kBlack, fondoWeb_ = kBlack;
  int regenerarCon_ = 0;
  UltimoValor regeneracion_;
};

}  // namespace pixmosa
