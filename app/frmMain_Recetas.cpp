// Recipes: the steps of the picture kept under a name, and applied again.
#include <QMenu>

#include "app/MenuDeImagen.h"
#include "app/frmMain.h"
#include "platform/ProgramFolder.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Menus.h"
#include "platform/qt/Named.h"
#include "platform/qt/QtText.h"
#include "programa/Recetas.h"

namespace pixmosa {

void frmMain::CrearRecetas() {
  QMenu* pictures = imagen_->Menu();
  auto* menu = named<QMenu>("mnuRecetas", QStringLiteral("R&ecetas"), pictures);
  menu->setToolTipsVisible(true);
  pictures->insertMenu(acciones_.at("mnuGuardarImagen"), menu);
  acciones_["mnuRecetas"] = menu->menuAction();
  QAction* keep = AccionDe({"mnuGuardarReceta", "&Guardar los pasos como receta...", "document-save", nullptr,
                            "Guarda lo hecho desde que se cargó la imagen, para hacerlo con otras"},
                           menu);
  acciones_["mnuGuardarReceta"] = keep;
  menu->addAction(keep);
  QAction* folder =
      AccionDe({"mnuCarpetaDeRecetas", "&Abrir la carpeta de las recetas", "folder-open", nullptr,
                "Las recetas son archivos de texto: se pueden leer, cambiar, copiar y borrar"},
               menu);
  menu->addAction(folder);
  connect(folder, &QAction::triggered, this, Con(desktop_.dialogos, [this](bool) {
            std::error_code none;
            std::filesystem::create_directories(RecipeFolder(), none);
            AbrirPagina(RecipeFolder().string());
          }));
  menu->addSeparator();
  connect(keep, &QAction::triggered, this, Con(desktop_.dialogos, [this](bool) { GuardarReceta(); }));
  connect(menu, &QMenu::aboutToShow, this, &frmMain::ListarRecetas);
  ListarRecetas();
}

void frmMain::ListarRecetas() {
  auto* menu = imagen_->Menu()->findChild<QMenu*>("mnuRecetas");
  const QList<QAction*> entries = menu->actions();
  for (QAction* old : entries.mid(3)) delete old;
  for (const std::string& name : RecetasGuardadas(RecipeFolder())) {
    QAction* entry = menu->addAction(Q(name).replace("&", "&&"));
    entry->setObjectName("receta:" + Q(name));
    entry->setToolTip(QStringLiteral("Da los pasos de esta receta a la imagen"));
    entry->setEnabled(HayImagen(p_));
    connect(entry, &QAction::triggered, this,
            Con(desktop_.dialogos, [this, name](bool) { AplicarReceta(name); }));
  }
  acciones_.at("mnuGuardarReceta")->setEnabled(!PasosDados(p_).empty());
}

void frmMain::GuardarReceta() {
  const std::optional<std::string> name =
      desktop_.dialogos.AskText("Nombre de la receta:", "Guardar la receta", NombreDeImagen(p_));
  if (!name) return;
  const std::filesystem::path folder = RecipeFolder(), file = SitioDeReceta(folder, *name);
  std::error_code none;
  if (std::filesystem::exists(file, none) &&
      !desktop_.dialogos.Ask("Ya hay una receta \"" + *name + "\".\r\n¿Desea sustituirla?", "Recetas"))
    return;
  pixmosa::GuardarReceta(folder, *name, PasosDados(p_));
  ListarRecetas();
  NombrarArchivo(QStringLiteral("Receta guardada"), file.string());
}

void frmMain::AplicarReceta(const std::string& name) {
  if (!HayImagen(p_) || p_.mFiltros.EffectBusy) return;
  const std::vector<Paso> steps = LeerReceta(SitioDeReceta(RecipeFolder(), name));
  std::vector<std::string> words;
  words.reserve(steps.size());
  for (const Paso& step : steps) words.push_back(PalabraDe(step));
  Ocupar(true);
  const bool done = Intentar(
      desktop_.dialogos, [&] { DarPasos(p_, steps, progreso_); }, "Recetas");
  const bool cancelled = cancelada_, leave = cerrarDespues_;
  Ocupar(false);
  if (done) {
    PasoDado(Q("Receta " + name), words);
    imagen_->SeguirImagen();
    AlMomento();
  } else if (cancelled) {
    Decir(QStringLiteral("Receta cancelada: la imagen queda como estaba."));
  }
  if (leave) close();
}

}  // namespace pixmosa
