// The working picture's history and the retouched picture as a file.
#include "app/MarcoDeImagen.h"
#include "app/MenuDeImagen.h"
#include "app/frmHistorial.h"
#include "app/frmMain.h"
#include "platform/AtomicFile.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/QtText.h"
#include "programa/Pasos.h"

namespace pixmosa {

const std::vector<frmMain::Entrada>& frmMain::EntradasDeHistorial() {
  static constexpr Entrada kSeparador = {{"", ""}, nullptr};
  static const std::vector<Entrada> entries = {
      kSeparador,
      {{"mnuDeshacerImagen", "Deshacer el últi&mo paso", "edit-undo", "Ctrl+Alt+Z",
        "Vuelve un paso atrás en todo lo hecho con la imagen"},
       &frmMain::DeshacerPaso},
      {{"mnuRehacerImagen", "&Rehacer el paso", "edit-redo", "Ctrl+Alt+Y", "Vuelve a dar el paso deshecho"},
       &frmMain::RehacerPaso},
      {{"mnuHistorial", "&Historial...", "view-history", nullptr,
        "Muestra los pasos dados, para ir a cualquiera de ellos"},
       &frmMain::MostrarHistorial},
      kSeparador,
      {{"mnuRecortar", "Re&cortar...", "transform-crop", "Ctrl+Shift+X",
        "Deja solo la parte de la imagen que usted marque con el ratón"},
       &frmMain::Recortar},
      {{"mnuRepetirEfecto", "Repetir último e&fecto", "view-refresh", "Ctrl+F",
        "Aplica otra vez el último efecto, con el mismo valor"},
       &frmMain::RepetirEfecto},
      kSeparador,
      {{"mnuGuardarImagen", "G&uardar la imagen...", "document-save-as", "Ctrl+Alt+S",
        "Guarda la imagen retocada en un archivo"},
       &frmMain::GuardarImagen},
  };
  return entries;
}

void frmMain::CrearEntradasDeHistorial() {
  LlenarMenu<Entrada>(imagen_->Menu(), EntradasDeHistorial(), this,
                      Con(desktop_.dialogos, [this](const Entrada& row) { (this->*row.hacer)(); }));
  for (const Entrada& row : EntradasDeHistorial())
    if (row.hacer) acciones_[row.nombre] = imagen_->Menu()->findChild<QAction*>(row.nombre);
}

void frmMain::PasoDado(const QString& name, const std::vector<std::string>& words) {
  AnotarPaso(p_, name.toStdString(), words);
  Decir({});
  MostrarPasos();
  MostrarImagen();
}

void frmMain::MostrarPasos() {
  if (historial_) historial_->Mostrar(p_.historial);
}

void frmMain::IrA(std::size_t step) {
  IrAlPaso(p_, step);
  MostrarPasos();
  MostrarImagen();
  imagen_->SeguirImagen();
  AlMomento();
}

void frmMain::DeshacerPaso() {
  if (PuedeDeshacerPaso(p_)) IrA(p_.historial.actual - 1);
}

void frmMain::RehacerPaso() {
  if (PuedeRehacerPaso(p_)) IrA(p_.historial.actual + 1);
}

void frmMain::MostrarHistorial() {
  if (!historial_) {
    historial_ = new frmHistorial(this);
    connect(historial_, &frmHistorial::PasoElegido, this,
            Con(desktop_.dialogos, [this](int k) { IrA(static_cast<std::size_t>(k)); }));
  }
  MostrarPasos();
  historial_->show();
  historial_->raise();
}

void frmMain::RepetirEfecto() {
  imagen_->RepetirEfecto();
}

void frmMain::Recortar() {
  marco_->Recortar();
}

void frmMain::TerminarRecorte(const Zona& zone) {
  const Paso step = {.recorte = zone};
  DarPaso(p_.mFiltros, p_.imagen, step, progreso_);
  PasoDado(QStringLiteral("Recortar"), {PalabraDe(step)});
  imagen_->SeguirImagen();
  AlMomento();
}

void frmMain::GuardarImagen() {
  std::string filter;
  for (const std::string& format : p_.codec.Formatos())
    filter += (filter.empty() ? "Imagen " : "|Imagen ") + format + "|*." + format;
  const std::string file = desktop_.dialogos.SaveFile("Guardar la imagen", filter, "png", NombreDeImagen(p_));
  if (file.empty()) return;
  Intentar(
      desktop_.dialogos,
      [&] {
        const std::string ending = std::filesystem::path(file).extension().string();
        const std::string format = ending.empty() ? "png" : ending.substr(1);
        EscribirArchivo(file, Esperar([codec = &p_.codec, picture = p_.imagen.picMain, format] {
                          return codec->Encode(picture, format);
                        }));
        NombrarArchivo(QStringLiteral("Imagen guardada"), file);
      },
      "Error al guardar");
}

}  // namespace pixmosa
