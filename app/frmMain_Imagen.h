// The "&Imagen" menu of the main window: effects through the dispatcher, flips, mirrors, undo and reload.
#pragma once

#include <QMenu>
#include <QObject>

#include "effects/MenuImagen.h"
#include "effects/mFiltros.h"

class QPlainTextEdit;

namespace pixmosa {

class frmEfectConfig;
class frmMain;

class MenuDeImagen final : public QObject, public VentanaDeEfectos {
  Q_OBJECT

 public:
  explicit MenuDeImagen(frmMain& owner);

  // The menu with every entry of the tree, to be put into the menu bar.
  QMenu* Menu() const { return menu_; }

  // Runs an effect on the working picture; with askConfig a configurable one opens its dialog instead.
  void Aplicar(int effect, std::int32_t argument, bool askConfig);

  // Lets the text area have Ctrl+Z only where its text was changed by hand.
  void CederDeshacer(QPlainTextEdit* area);

  void MostrarDialogo() override;
  void CargarEfecto(int effect) override;
  void RefrescarPicMain() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Hacer(const EntradaDeImagen& entry);

  frmMain& owner_;
  QMenu* menu_;
  frmEfectConfig* dialog_ = nullptr;
};

}  // namespace pixmosa
