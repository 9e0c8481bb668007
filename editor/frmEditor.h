// The editor window: a grid of characters drawn on with tools.
#pragma once

#include <string_view>

#include <QMainWindow>

#include "editor/Historial.h"
#include "platform/Dialogs.h"
#include "platform/Font.h"
#include "platform/Shell.h"

class QLabel;
class QListWidget;

namespace pixmosa {

class Superficie;

class frmEditor final : public QMainWindow {
  Q_OBJECT

 public:
  frmEditor(BasEditor& editor, const Font& font, Dialogs& dialogs, Shell& shell, QWidget* parent);

  // Paints a text (8-bit code page) over the drawing; what stands there afterwards counts as saved.
  void Abrir(std::string_view text);

 signals:
  void Enviado(const std::string& text);  // the drawing as text, for the main window

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void CrearMenus();
  void CrearHerramientas();
  void CrearCaracteres();
  void Actualizar();
  void Enviar();
  void Guardar();

  BasEditor& editor_;
  Dialogs& dialogs_;
  Shell& shell_;
  Font font_;
  Historial history_;
  Characters sent_;  // the grid as it was last opened, sent or saved
  Superficie* picDraw_;
  QLabel* position_;
};

}  // namespace pixmosa
