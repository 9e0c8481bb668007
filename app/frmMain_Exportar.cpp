// The drawing in the formats of today, as files and on the clipboard.
#include "app/frmMain.h"
#include "conversion/TextoGuardado.h"
#include "exportar/Rico.h"
#include "exportar/frmExportar.h"
#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/png/Png.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/QtText.h"
#include "programa/Dibujar.h"

namespace pixmosa {
namespace {

// "Página web|*.html|...", the format chosen first.
std::string Filtro(const Formato& first) {
  std::string filter;
  const auto add = [&](const Formato& f) {
    filter += (filter.empty() ? "" : "|") + std::string(f.rotulo) + "|*." + f.terminacion;
  };
  add(first);
  for (const Formato& f : Formatos())
    if (&f != &first) add(f);
  return filter;
}

std::string SinPunto(const std::string& ending) {
  return ending.empty() ? ending : ending.substr(1);
}

}  // namespace

std::string frmMain::EnFormato(const Dibujo& drawing, const Formato& format) {
  const Medios means = {p_.superficie,
                        p_.ajustes.font,
                        {p_.basAscii.CellWidth, p_.basAscii.CellHeight},
                        [](const Picture& picture) { return EscribirPng(picture, Empaquetado::Pequeno); },
                        [this](std::string_view text) { return TextoGuardado(p_.ajustes.font, text); }};
  return format.escribir(drawing, p_.exportar, means);
}

void frmMain::Exportar() {
  const Dibujo shown = DibujoDeUtf8(txtAscii_->Utf8());
  const Extent size{static_cast<int>(shown.Columnas()), static_cast<int>(shown.filas.size())};
  frmExportar dialog(p_, desktop_.dialogos, size, HayImagen(p_) && p_.metodoDelTexto >= 0, this);
  if (dialog.exec() != QDialog::Accepted) return;
  const Formato* format = FormatoDe(p_.formatoDeExportar);
  const std::string file = desktop_.dialogos.SaveFile("Exportar el dibujo", Filtro(*format),
                                                      format->terminacion, NombreDeImagen(p_));
  if (file.empty()) return;
  // The ending that was typed decides.
  if (const Formato* typed = FormatoDe(SinPunto(std::filesystem::path(file).extension().string())))
    format = typed;
  Intentar(
      desktop_.dialogos,
      [&] {
        EscribirArchivo(file, EnFormato(DibujoDeVentana(p_, txtAscii_->Utf8()), *format));
        NombrarArchivo(QStringLiteral("Dibujo exportado"), file);
      },
      "Error al guardar");
}

void frmMain::CopiarConFormato() {
  OpcionesDeExportar options = p_.exportar;
  options.papel = p_.fondoTexto;
  options.tinta = p_.colorTexto;
  const std::string text = txtAscii_->Utf8();
  desktop_.entorno.CopyRichText(TextoRico(DibujoDeVentana(p_, text), options, p_.ajustes.font), text);
  Decir(QStringLiteral("Copiado como texto con formato."));
}

void frmMain::CopiarComoImagen() {
  const std::string bytes = EnFormato(DibujoDeVentana(p_, txtAscii_->Utf8()), *FormatoDe("png"));
  desktop_.entorno.CopyPicture(p_.codec.ReadBytes(bytes, "portapapeles"));
  Decir(QStringLiteral("Copiado como imagen."));
}

}  // namespace pixmosa
