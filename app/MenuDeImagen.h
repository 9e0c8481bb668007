// The "&Imagen" menu of the main window: effects through the dispatcher, flips, mirrors, undo and reload of
// the working picture.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QMenu>
#include <QObject>

#include "effects/EntradasDeImagen.h"
#include "platform/Dialogs.h"
#include "platform/Progress.h"
#include "programa/Pasos.h"
#include "programa/Programa.h"

namespace pixmosa {

class AreaDeTexto;
class frmEfectConfig;

class MenuDeImagen final : public QObject {
  Q_OBJECT

 public:
  // `parent` is the window that the menu and the effect dialog belong to.
  MenuDeImagen(Programa& program, Progress& progress, Dialogs& dialogs, QWidget* parent);
  ~MenuDeImagen() override;

  // The menu with every entry of the tree, to be put into the menu bar.
  QMenu* Menu() const { return menu_; }

  // There is a working picture, or none: the entries can be chosen, or not.
  void PonerDisponible(bool available);

  // Runs an effect on the working picture; with askConfig a configurable one opens its dialog instead.
  void Aplicar(int effect, std::int32_t argument, bool askConfig);

  // "Blanco y negro" of the options: "Método 1" as the menu passes it, at once.
  void PonerEnBlancoYNegro();

  // The last effect once more, with its argument.
  void RepetirEfecto();
  bool PuedeRepetir() const { return ultimo_.has_value(); }

  // The working picture was replaced from outside: an open dialog shows that one.
  void SeguirImagen();

  // Lets a text area have Ctrl+Z and Ctrl+V only where it has something to take back or to take in.
  void CederAtajos(AreaDeTexto* area);

  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  // What was done to it, and the words that do it again: none where it is a picture that was there before.
  void ImagenCambiada(const QString& paso, const std::vector<std::string>& ordenes);

 private:
  void Hacer(const EntradaDeImagen& entry);
  void AbrirDialogo(int effect);
  void EfectoHecho(const Paso& step);
  void Avisar(const char* step, const std::vector<std::string>& words);

  Programa& program_;
  Progress& progress_;
  Dialogs& dialogs_;
  QWidget* window_;
  QMenu* menu_;
  std::vector<QAction*> entradas_;
  frmEfectConfig* dialog_ = nullptr;
  std::optional<Paso> ultimo_;  // effect
};

}  // namespace pixmosa
