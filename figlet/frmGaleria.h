// The gallery of fonts: the user's own text in each, searched and sieved. A click takes a font.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <QDialog>
#include <QTimer>

#include "figlet/Letrero.h"
#include "platform/Registry.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListView;
class QModelIndex;
class QSpinBox;

namespace pixmosa {

class AreaDeTexto;
class frmGaleriaModelo;
class frmGaleriaPintor;

class frmGaleria final : public QDialog {
  Q_OBJECT

 public:
  frmGaleria(std::vector<std::filesystem::path> folders, Registry& registry, QWidget* parent);

  // The text (UTF-8) and how it is laid out, as they are elsewhere.
  void PonerTexto(const std::string& utf8, const OpcionesDeLetrero& options);
  // Selects a font by its file's name.
  void Senalar(const std::string& name);
  // There are other fonts.
  void Releer();

 signals:
  void FuenteElegida(const std::string& name);
  void TextoCambiado(const std::string& utf8);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QLayout* CrearBusqueda();
  QLayout* CrearMedidas();
  void LlenarCategorias();
  void Conectar();
  void Cribar();
  void Elegir(const QModelIndex& index);
  void Medir();
  void MostrarFavorita();
  void MostrarCuantas();

  frmGaleriaModelo* modelo_;
  frmGaleriaPintor* pintor_;
  AreaDeTexto* txtTextoGaleria_;
  QLineEdit* txtBuscarFuente_;
  QComboBox* cboCategoria_;
  QComboBox* cboOrden_;
  QCheckBox* chkEspanol_;
  QCheckBox* chkFavorita_;
  QSpinBox* numAltoMayor_;
  QSpinBox* numAnchoMayor_;
  QLabel* lblCuantas_;
  QListView* lsvGaleria_;
  OpcionesDeLetrero opciones_;
  QTimer medida_;
  bool midiendo_ = true;
};

}  // namespace pixmosa
