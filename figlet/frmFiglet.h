// The banner panel of the main window: the typed text, the fonts as a list, a tree or a gallery, layout,
// alignment, finish, adding fonts.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <QWidget>

#include "figlet/Catalogo.h"
#include "figlet/Letrero.h"
#include "platform/Escritorio.h"

class QAction;
class QActionGroup;
class QComboBox;
class QListWidget;
class QMenu;
class QSpinBox;
class QToolBar;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace pixmosa {

class AreaDeTexto;
class frmGaleria;

class frmFiglet final : public QWidget {
  Q_OBJECT

 public:
  // `folders`: the program's font folder, then the user's own. The desktop's parts outlive the panel.
  frmFiglet(BasFigLet& font, OpcionesDeLetrero& options, std::vector<std::filesystem::path> folders,
            const Escritorio& desktop, QWidget* parent);

  // The first time in a run: loads the first font of the list and shows the banner.
  void PrimeraVez();

  // Number of fonts in the flat list.
  int Cuantas() const;

  // Adds the fonts of files, folders and zips, lists them at once and takes the first of them; says what is
  // not as it was chosen.
  void Agregar(const std::vector<std::filesystem::path>& chosen);

 signals:
  // The state's banner, which is to be the produced text; empty while a font is being loaded. `utf8` is the
  // same where the code page lacks some of it, otherwise empty.
  void LetreroCambiado(const std::string& banner, const std::string& utf8);
  // How each line of the produced text has to lie within the visible width.
  void AlineacionCambiada(Qt::Alignment alignment);
  void ListaCambiada(int fonts);

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  // --- frmFiglet.cpp: the panel and its banner ---
  void CrearControles();
  QToolBar* CrearVistas();
  QToolBar* CrearAlineacion();
  QLayout* CrearBarras();
  QLayout* CrearComposicion();
  void Conectar();
  void Cargar(const std::string& name);
  void Dibujar();
  void Mostrar(std::string banner, const std::string& utf8 = {});
  void Alinear();
  void AbrirGaleria();

  // --- frmFiglet_Acabado.cpp: what is done to the banner ---
  QToolButton* CrearAcabado();
  void CrearMarcos(QMenu* menu);
  void CrearDegradados(QMenu* menu);
  // One of a submenu's entries; `choose` runs when it is chosen.
  template <typename Choose>
  QAction* Opcion(QMenu* menu, QActionGroup* group, const char* name, const char* text, Choose choose);
  void PedirColores(QAction* none, const QAction* down);
  void MostrarAcabado();

  // --- frmFiglet_Fuentes.cpp: the lists ---
  void LlenarListas();
  void LlenarArbol();
  void Senalar(const std::string& name);
  QMenu* CrearMenuDeAgregar();
  void PedirFuentes();
  void PedirCarpeta();
  void AbrirDirecta(const std::filesystem::path& file);

  BasFigLet& font_;
  OpcionesDeLetrero& opciones_;
  std::vector<std::filesystem::path> folders_;
  Escritorio desktop_;
  FuenteEnUso enUso_;
  bool directa_ = false;   // the font in use is a file as it is
  std::string cargada_;    // its name, or the one loaded last
  bool reciente_ = false;  // it was loaded by the press of a click that goes on
  Qt::Alignment lado_ = Qt::AlignLeft;
  AreaDeTexto* txtFigText_ = nullptr;
  QListWidget* lsvFuentesFig_ = nullptr;
  QTreeWidget* tvwFigFonts_ = nullptr;
  QComboBox* cboComposicion_ = nullptr;
  QSpinBox* numAncho_ = nullptr;
  QToolButton* cmdAcabado_ = nullptr;
  QAction* mnuAlinearTexto_ = nullptr;
  frmGaleria* galeria_ = nullptr;
  bool mostrada_ = false;
};

}  // namespace pixmosa
