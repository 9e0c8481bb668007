// The banner panel of the main window: the typed text, the fonts as a list or a tree, alignment, adding
// fonts.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <QWidget>

#include "figlet/Catalogo.h"
#include "figlet/basFigLet.h"
#include "platform/Dialogs.h"

class QListWidget;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace pixmosa {

class AreaDeTexto;

class frmFiglet final : public QWidget {
  Q_OBJECT

 public:
  // `folders`: the program's font folder, then the user's own.
  frmFiglet(BasFigLet& font, std::vector<std::filesystem::path> folders, Dialogs& dialogs, QWidget* parent);

  // The first time in a run: loads the first font of the list and shows the banner.
  void PrimeraVez();

  // Number of fonts in the flat list.
  int Cuantas() const;

  // Adds the fonts of files, folders and zips and lists them at once; says what is not as it was chosen.
  void Agregar(const std::vector<std::filesystem::path>& chosen);

 signals:
  // The state's banner, which is to be the produced text; empty while a font is being loaded.
  void LetreroCambiado(const std::string& banner);
  // How each line of the produced text has to lie within the visible width.
  void AlineacionCambiada(Qt::Alignment alignment);
  void ListaCambiada(int fonts);

 private:
  void CrearControles();
  QToolBar* CrearVistas();
  QToolBar* CrearAlineacion();
  QLayout* CrearBarras();
  void Conectar();
  void LlenarListas();
  void Cargar(const std::string& name);
  void Dibujar();
  void Mostrar(std::string banner);
  void Alinear(Qt::Alignment alignment);
  void PedirFuentes();
  void PedirCarpeta();

  BasFigLet& font_;
  std::vector<std::filesystem::path> folders_;
  Dialogs& dialogs_;
  AreaDeTexto* txtFigText_;
  QListWidget* lsvFuentesFig_;
  QTreeWidget* tvwFigFonts_;
  bool mostrada_ = false;
};

}  // namespace pixmosa
