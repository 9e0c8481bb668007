// The conversion options, grouped by mode; the main window shows the form inside its area `PicAlgoritmos`.
#pragma once

#include <QWidget>

#include "platform/Dialogs.h"
#include "programa/Programa.h"

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;
class QSpinBox;
class QToolBar;
class QVBoxLayout;

namespace pixmosa {

// Each control writes its setting into the program's state and says what must be shown or made again.
class frmOpcAlgoritmo final : public QWidget {
  Q_OBJECT

 public:
  frmOpcAlgoritmo(Programa& program, Dialogs& dialogs, QWidget* parent);

  // Shows the groups of the current mode.
  void MostrarPaneles();

  // The AnimArt group: enabled and light where the picture has frames to animate, disabled and navy
  // elsewhere.
  void MostrarAnimArt();

  // There is a working picture, or none: what works on it can be chosen, or not.
  void PonerImagenDisponible(bool available);

  // The columns that the text's window shows, which were asked for; the size and the text follow.
  void PonerAncho(int columns);

  // The columns and the rows that they give, again after something else has changed them.
  void MostrarColumnas();

  // Chooses a conversion of the grayscale mode: kGrayscale, kTono or kFormas.
  void ElegirConversion(int method);

 signals:
  void TextoCaducado(int method);  // the text has to be made again by this method
  void LetrerosVisibles(bool shown);
  void ColoresCambiados();
  void RellenoCambiado();
  void BlancoYNegroPedido();
  void FotogramasPedidos();
  void ConversionElegida(int method);  // by the user or by ElegirConversion
  void ComparacionPedida();
  void AnchoPedido();                   // as many columns as the text's window shows
  void Aviso(const QString& sentence);  // what is wrong with what was typed

 protected:
  // A click on the caption of "Generar AnimArt del GIF" ticks its box.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // --- frmOpcAlgoritmo_Paneles.cpp: what there is ---
  QWidget* CrearPaginaAscii();
  QWidget* CrearPaginaWeb();
  QWidget* CrearAnimArt();
  void CrearTamaño(QVBoxLayout* layout);
  void CrearBordesWeb(QVBoxLayout* layout);

  // --- frmOpcAlgoritmo_Conversion.cpp: the grayscale mode's conversions and what goes with them ---
  QWidget* CrearConversion();
  QWidget* CrearFormas();
  QComboBox* CrearProporcion();
  void ConectarConversion();
  void MostrarConversion();  // the controls that apply to the chosen one
  void CaracteresEscritos();
  void ProporcionEscrita();

  // --- frmOpcAlgoritmo_Columnas.cpp: the size as a number ---
  QLayout* CrearColumnas();
  void ConectarColumnas();
  void PonerColumnas(int columns);

  // --- frmOpcAlgoritmo.cpp: how it reacts ---
  void Conectar();
  void ConectarWeb();
  void TamañoCambiado(int value);
  void SaltarATamaño(int value);
  bool ElegirColor(QPushButton* swatch, Colour& colour);

  Programa& program_;
  Dialogs& dialogs_;
  QWidget* mrcAlgoritmo_[2];
  QWidget* mrcAscii_[3];
  QWidget* mrcweb_[2];
  QComboBox* cboPaletas_;
  QCheckBox* chkAsciiNegativo_;
  QComboBox* cboConversion_;  // the items' data are the methods
  QPushButton* cmdComparar_;
  QWidget* mrcFormas_;
  QWidget* mrcNitidez_;
  QSlider* sldContrasteLocal_;
  QSlider* sldNitidez_;
  QCheckBox* chkAjustarTono_;
  QComboBox* cboCaracteres_;
  QLabel* lblCaracteres_;
  QComboBox* cboProporcion_;
  QSlider* sldLuminosidad_;
  QAbstractButton* label1_;
  QSpinBox* numLuminosidad_;
  QSlider* sldTamaño_;
  QSpinBox* numColumnas_;
  QLabel* lblFilas_;
  QComboBox* cboPresetColumnas_;
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
};

}  // namespace pixmosa
