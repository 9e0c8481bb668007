#include "app/frmMain_Imagen.h"

#include <new>
#include <vector>

#include <QKeyEvent>
#include <QPlainTextEdit>

#include "app/frmMain.h"
#include "effects/Giros.h"
#include "effects/frmEfectConfig.h"
#include "platform/qt/Menus.h"
#include "platform/qt/QtText.h"

namespace pixmosa {

MenuDeImagen::MenuDeImagen(frmMain& owner)
    : QObject(&owner), owner_(owner), menu_(new QMenu(Q(kMenuImagen), &owner)) {
  menu_->setObjectName("mnuImagen");
  std::vector<QMenu*> open = {menu_};
  for (const EntradaDeImagen& entry : MenuImagen()) {
    open.resize(static_cast<std::size_t>(entry.nivel) + 1);
    QMenu* parent = open.back();
    if (entry.accion == Accion::Separador) {
      parent->addSeparator();
    } else if (entry.accion == Accion::Submenu) {
      open.push_back(parent->addMenu(Q(entry.caption)));
      open.back()->setObjectName(entry.control);
    } else {
      const char* icon = entry.accion == Accion::Deshacer ? "edit-undo" : nullptr;
      QAction* action =
          AccionDe({entry.control, entry.caption, icon, *entry.atajo ? entry.atajo : nullptr}, parent);
      parent->addAction(action);
      connect(action, &QAction::triggered, this, [this, &entry] { Hacer(entry); });
    }
  }
}

void MenuDeImagen::Hacer(const EntradaDeImagen& entry) {
  ImagenDeTrabajo& image = owner_.programa().imagen;
  switch (entry.accion) {
    case Accion::Efecto:
      Aplicar(entry.efecto, entry.argumento, true);
      return;
    case Accion::Giro:
      Girar(image, *entry.giro);
      break;
    case Accion::Deshacer:
      image.Deshacer();
      break;
    case Accion::Recargar:
      image.VolverALaOriginal();
      break;
    case Accion::Submenu:
    case Accion::Separador:
      return;
  }
  owner_.MostrarImagen();
}

void MenuDeImagen::Aplicar(int effect, std::int32_t argument, bool askConfig) {
  Programa& program = owner_.programa();
  try {
    ApplyEffect(program.mFiltros, program.imagen, *this, effect, BitmapDe(program.imagen), argument,
                owner_.progreso(), askConfig);
  } catch (const std::bad_alloc&) {
    program.plataforma.dialogos.Fail("No hay memoria suficiente para aplicar el efecto a esta imagen.",
                                     "Efectos");
  }
}

void MenuDeImagen::MostrarDialogo() {
  Programa& program = owner_.programa();
  if (!dialog_)
    dialog_ =
        new frmEfectConfig(program.mFiltros, program.imagen, *this, program.plataforma.dialogos, &owner_);
  dialog_->Mostrar();
}

void MenuDeImagen::CargarEfecto(int effect) {
  dialog_->CargarEfecto(effect);
}

void MenuDeImagen::RefrescarPicMain() {
  owner_.MostrarImagen();
}

void MenuDeImagen::CederDeshacer(QPlainTextEdit* area) {
  area->installEventFilter(this);
}

bool MenuDeImagen::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) return false;
  const auto* area = qobject_cast<QPlainTextEdit*>(watched);
  const bool undo = static_cast<QKeyEvent*>(event)->matches(QKeySequence::Undo);
  // An empty document counts as changed once it has got its font.
  return undo && area && (area->document()->isEmpty() || !area->document()->isModified());
}

}  // namespace pixmosa
