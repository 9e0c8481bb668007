// The editor window: a grid of characters drawn on with tools.
#pragma once

#include <filesystem>
#include <functional>
#include <future>
#include <string>
#include <string_view>

#include <QMainWindow>

#include "editor/Bloque.h"
#include "editor/Herramientas.h"
#include "editor/Historial.h"
#include "editor/Recuperacion.h"
#include "platform/Dialogs.h"
#include "platform/Dibujo.h"
#include "platform/Font.h"
#include "platform/Picture.h"
#include "platform/Shell.h"

class QAction;
class QComboBox;
class QLabel;
class QMenu;
class QSlider;
class QSpinBox;
class QTimer;
class QToolBar;

namespace pixmosa {

class PanelDeCaracteres;
class Superficie;
class frmReemplazar;
struct EntradaDeMenu;

// What the editor takes of the program around it; it does without what is not there.
struct MediosDelEditor {
  std::filesystem::path resguardo{};              // the folder of drawings kept while they are edited
  std::function<Picture()> imagen{};              // the working picture, or an empty one
  std::function<Picture()> elegirImagen{};        // one that the user chooses; an empty one on cancel
  std::function<void(const Dibujo&)> exportar{};  // writes the drawing in a format of the user's choice
};

class frmEditor final : public QMainWindow {
  Q_OBJECT

 public:
  frmEditor(BasEditor& editor, const Font& font, Dialogs& dialogs, Shell& shell, QWidget* parent,
            MediosDelEditor means = {});

  // Shows the window with a new drawing from a text (UTF-8), which counts as saved. Asks first where an open
  // window's drawing would be lost; false, with that drawing as it was, where the user keeps it. The drawing
  // with this very text, in colours that the text has not, stays as it is.
  bool Abrir(std::string_view text);

 signals:
  void Enviado(const std::string& text);  // the drawing as DrawingText gives it, for the main window

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  // --- frmEditor.cpp ---
  QWidget* CrearCentro();
  QLabel* CrearAviso(const char* name);
  void CrearEstado();
  void CrearCaracteres();

  // --- frmEditor_Menus.cpp ---
  QAction* Propia(QMenu* menu, const EntradaDeMenu& row, std::function<void()> work);
  void CrearMenus();
  void CrearArchivo();
  void CrearEdicion();
  void CrearSeleccion();
  void CrearVer();

  // --- frmEditor_Herramientas.cpp ---
  void CrearHerramientas();
  void CrearOpciones();
  void ElegirHerramienta(Tool tool);

  // --- frmEditor_Documento.cpp ---
  void Actualizar();
  void Enviar();
  bool Guardar();
  void Exportar();
  void Recuperar();
  void Resguardar();
  bool PuedePerderse();   // asks where there are changes
  void Mover(bool back);  // in the history

  // --- frmEditor_Vista.cpp ---
  void Escalar(int index, QPoint about);
  void VerTodo();
  void Calcar(bool shown);
  bool ElegirCalco();
  bool eventFilter(QObject* watched, QEvent* event) override;

  // --- frmEditor_Ordenes.cpp ---
  void Copiar();
  void Cortar();
  void Pegar();
  void SeleccionarTodo();
  void Voltear(Eje axis);
  void AbrirReemplazar();

  // --- frmEditor_Tamano.cpp ---
  QWidget* CrearTamano();
  void PedirTamano();
  void CambiarTamano();
  void Recortar(const ZonaDeCeldas& zone);

  BasEditor& editor_;
  Dialogs& dialogs_;
  Shell& shell_;
  Font font_;
  MediosDelEditor means_;
  Historial history_;
  Resguardo kept_;
  std::string saved_;                          // the drawing's text as it was last opened, sent or saved
  Bloque copied_;                              // what was last copied here, in its colours
  std::string copiedAs_;                       // its text on the clipboard
  bool shiftedIsFine_ = false, lost_ = false;  // there is a drawing of a run that ended abruptly
  Superficie* picDraw_;
  PanelDeCaracteres* characters_ = nullptr;
  frmReemplazar* replace_ = nullptr;
  QAction *deshacer_ = nullptr, *rehacer_ = nullptr, *enviar_ = nullptr, *alinear_ = nullptr;
  QAction *calco_ = nullptr, *rejilla_ = nullptr;
  std::vector<std::pair<QAction*, std::vector<Tool>>> options_;  // and the tools that they are for
  QLabel *lblNoCabe_ = nullptr, *lblDesplazado_ = nullptr, *lblRecuperar_ = nullptr, *lblPista_ = nullptr;
  QLabel *position_ = nullptr, *lblCoordenadas_ = nullptr, *lblMedidas_ = nullptr;
  QComboBox* cboEscala_ = nullptr;
  QSlider* sldCalco_ = nullptr;
  QWidget* size_ = nullptr;
  QSpinBox *numColumnas_ = nullptr, *numFilas_ = nullptr;
  QTimer* timer_ = nullptr;
  std::future<void> keeping_;  // the drawing being written
};

}  // namespace pixmosa
