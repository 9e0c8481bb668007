#include "app/MenuDeImagen.h"

#include <QKeyEvent>

#include "effects/Giros.h"
#include "effects/basFiltrosConfig.h"
#include "effects/frmEfectConfig.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Menus.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

constexpr int kMetodo1 = 18;

}  // namespace

MenuDeImagen::MenuDeImagen(Programa& program, Progress& progress, Dialogs& dialogs, QWidget* parent)
    : QObject(parent),
      program_(program),
      progress_(progress),
      dialogs_(dialogs),
      window_(parent),
      menu_(new QMenu(Q(kMenuImagen), parent)) {
  program_.mFiltros.AbrirDialogo = [this](int effect) { AbrirDialogo(effect); };
  menu_->setObjectName("mnuImagen");
  std::vector<QMenu*> open = {menu_};
  for (const EntradaDeImagen& entry : EntradasDeImagen()) {
    open.resize(static_cast<std::size_t>(entry.nivel) + 1);
    QMenu* parentMenu = open.back();
    if (entry.accion == Accion::Separador) {
      parentMenu->addSeparator();
    } else if (entry.accion == Accion::Submenu) {
      open.push_back(parentMenu->addMenu(Q(entry.caption)));
      open.back()->setObjectName(entry.control);
    } else {
      const char* icon = entry.accion == Accion::Deshacer ? "edit-undo" : nullptr;
      QAction* action =
          AccionDe({entry.control, entry.caption, icon, *entry.atajo ? entry.atajo : nullptr}, parentMenu);
      parentMenu->addAction(action);
      entradas_.push_back(action);
      connect(action, &QAction::triggered, this, Con(dialogs_, [this, &entry](bool) { Hacer(entry); }));
    }
  }
}

MenuDeImagen::~MenuDeImagen() {
  program_.mFiltros.AbrirDialogo = nullptr;
}

void MenuDeImagen::PonerDisponible(bool available) {
  for (QAction* action : entradas_) action->setEnabled(available);
}

void MenuDeImagen::Hacer(const EntradaDeImagen& entry) {
  std::vector<std::string> words;
  switch (entry.accion) {
    case Accion::Efecto:
      Aplicar(entry.efecto, entry.argumento, true);
      return;
    case Accion::Giro:
      PedirGiro(program_.mFiltros, program_.imagen, *entry.giro);
      words = {entry.giro->orden};
      break;
    case Accion::Deshacer:
      program_.imagen.Deshacer();
      break;
    case Accion::Recargar:
      program_.imagen.VolverALaOriginal();
      break;
    case Accion::Submenu:
    case Accion::Separador:
      return;
  }
  Avisar(entry.caption, words);
}

void MenuDeImagen::Aplicar(int effect, std::int32_t argument, bool askConfig) {
  Intentar(
      dialogs_,
      [&] {
        if (ApplyEffect(program_.mFiltros, program_.imagen, effect, program_.imagen, argument, progress_,
                        askConfig))
          EfectoHecho({effect, argument});
      },
      "Efectos");
}

void MenuDeImagen::EfectoHecho(const Paso& step) {
  ultimo_ = step;
  Avisar(Efecto(step.efecto)->caption, {PalabraDe(step)});
}

void MenuDeImagen::RepetirEfecto() {
  if (ultimo_) Aplicar(ultimo_->efecto, ultimo_->argumento, false);
}

void MenuDeImagen::PonerEnBlancoYNegro() {
  Aplicar(kMetodo1, Efecto(kMetodo1)->menu, false);
}

void MenuDeImagen::AbrirDialogo(int effect) {
  if (!dialog_) {
    dialog_ = new frmEfectConfig(program_.mFiltros, program_.imagen, dialogs_, window_);
    connect(dialog_, &frmEfectConfig::Aplicado, this, [this](int applied, std::int32_t argument) {
      EfectoHecho({applied, argument});
    });
  }
  dialog_->Abrir(effect);
}

void MenuDeImagen::SeguirImagen() {
  if (dialog_) dialog_->SeguirImagen();
}

void MenuDeImagen::Avisar(const char* step, const std::vector<std::string>& words) {
  emit ImagenCambiada(Q(step), words);
  SeguirImagen();
}

void MenuDeImagen::CederAtajos(AreaDeTexto* area) {
  area->installEventFilter(this);
}

bool MenuDeImagen::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) return false;
  const auto* area = qobject_cast<AreaDeTexto*>(watched);
  if (!area) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  return (key->matches(QKeySequence::Undo) && !area->PuedeDeshacer()) ||
         (key->matches(QKeySequence::Paste) && !area->canPaste());
}

}  // namespace pixmosa
