// The editor window: a grid of characters drawn on with tools.
#pragma once

#include <string>
#include <string_view>

#include <QMainWindow>

#include "editor/Historial.h"
#include "platform/Dialogs.h"
#include "platform/Font.h"
#include "platform/Shell.h"

class QAction;
class QLabel;
class QListWidget;

namespace pixmosa {

class Superficie;

class frmEditor final : public QMainWindow {
  Q_OBJECT

 public:
  frmEditor(BasEditor& editor, const Font& font, Dialogs& dialogs, Shell& shell, QWidget* parent);

  // Shows the window with a new drawing from a text (8-bit code page), which counts as saved. Asks first
  // where an open window's drawing would be lost; false, with that drawing as it was, where the user keeps
  // it.
  bool Abrir(std::string_view text);

 signals:
  void Enviado(const std::string& text);  // the drawing as DrawingText gives it, for the main window

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* CrearCentro();
  void CrearMenus();
  void CrearHerramientas();
  void CrearCaracteres();
  void Actualizar();
  void Enviar();
  bool Guardar();
  bool PuedePerderse();  // asks where there are changes

  BasEditor& editor_;
  Dialogs& dialogs_;
  Shell& shell_;
  Font font_;
  Historial history_;
  std::string saved_;  // the drawing's text as it was last opened, sent or saved
  Superficie* picDraw_;
  QAction *deshacer_ = nullptr, *rehacer_ = nullptr, *enviar_ = nullptr;
  QLabel* lblNoCabe_;
  QLabel* position_;
};

}  // namespace pixmosa
