// The banner panel of the main window: the typed text, the fonts as a list or a tree, alignment, adding
// fonts.
#pragma once

#include <filesystem>
#include <vector>

#include <QWidget>

#include "figlet/Catalogo.h"
#include "figlet/basFigLet.h"
#include "platform/Dialogs.h"

class QListWidget;
class QTreeWidget;
class QTreeWidgetItem;
class QVBoxLayout;

namespace pixmosa {

class AreaDeTexto;

class frmFiglet final : public QWidget {
  Q_OBJECT

 public:
  // `folders`: the program's font folder, then the user's own. The banner goes into `target`, the text area
  // of the produced text.
  frmFiglet(BasFigLet& font, std::vector<std::filesystem::path> folders, Dialogs& dialogs,
            AreaDeTexto& target, QWidget* parent);

  // The first time in a run: loads the first font of the list and shows the banner.
  void PrimeraVez();

  // Number of fonts in the flat list.
  int Cuantas() const;

  // Rewrites standard fonts (or all of a folder) and lists them at once; says what was refused.
  void AgregarFuentes(const std::vector<std::filesystem::path>& files);

 signals:
  void ListaCambiada(int fonts);

 private:
  void CrearControles();
  QLayout* CrearBarras();
  void Conectar();
  void LlenarListas();
  void Cargar(const std::string& name);
  void Dibujar();
  void Alinear(Qt::Alignment alignment);
  void PedirFuentes();
  void PedirCarpeta();

  BasFigLet& font_;
  std::vector<std::filesystem::path> folders_;
  Dialogs& dialogs_;
  AreaDeTexto& target_;
  AreaDeTexto* txtFigText_;
  QListWidget* lsvFuentesFig_;
  QTreeWidget* tvwFigFonts_;
  bool mostrada_ = false;
};

}  // namespace pixmosa
