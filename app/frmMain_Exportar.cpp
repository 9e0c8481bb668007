// The drawing in the formats of today, as files and on the clipboard.
#include "app/frmMain.h"
#include "conversion/TextoGuardado.h"
#include "exportar/Rico.h"
#include "exportar/frmExportar.h"
#include "exportar/frmExportarPelicula.h"
#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/png/Png.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/QtText.h"
#include "programa/Dibujar.h"
#include "programa/Generar.h"
#include "programa/Pelicula.h"

namespace pixmosa {
namespace {

// "Página web|*.html|...", the format chosen first.
template <typename Row>
std::string Filtro(std::span<const Row> formats, const Row& first) {
  std::string filter;
  const auto add = [&](const Row& f) {
    filter += (filter.empty() ? "" : "|") + std::string(f.rotulo) + "|*." + f.terminacion;
  };
  add(first);
  for (const Row& f : formats)
    if (&f != &first) add(f);
  return filter;
}

std::string SinPunto(const std::string& ending) {
  return ending.empty() ? ending : ending.substr(1);
}

}  // namespace

Medios frmMain::MediosDeExportar() {
  return {p_.superficie,
          p_.ajustes.font,
          {p_.basAscii.CellWidth, p_.basAscii.CellHeight},
          [](const Picture& picture) { return EscribirPng(picture, Empaquetado::Pequeno); },
          [font = p_.ajustes.font](std::string_view text) { return TextoGuardado(font, text); }};
}

std::string frmMain::EnFormato(const Dibujo& drawing, const Formato& format) {
  return format.escribir(drawing, OpcionesDeVentana(p_), MediosDeExportar());
}

void frmMain::Exportar() {
  const Dibujo shown = DibujoDeUtf8(txtAscii_->Utf8());
  const Extent size{static_cast<int>(shown.Columnas()), static_cast<int>(shown.filas.size())};
  frmExportar dialog(p_, desktop_.dialogos, size, HayImagen(p_) && p_.metodoDelTexto >= 0, this);
  if (dialog.exec() == QDialog::Accepted)
    EscribirDibujo([this] { return DibujoDeVentana(p_, txtAscii_->Utf8()); });
}

void frmMain::EscribirDibujo(const std::function<Dibujo()>& drawing) {
  const Formato* format = FormatoDe(p_.formatoDeExportar);
  const std::string file = desktop_.dialogos.SaveFile("Exportar el dibujo", Filtro(Formatos(), *format),
                                                      format->terminacion, NombreDeImagen(p_));
  if (file.empty()) return;
  // The ending that was typed decides.
  if (const Formato* typed = FormatoDe(SinPunto(std::filesystem::path(file).extension().string())))
    format = typed;
  Intentar(
      desktop_.dialogos,
      [&] {
        const auto made = std::make_shared<Dibujo>(drawing());
        EscribirArchivo(file,
                        Esperar([made, format, options = OpcionesDeVentana(p_), means = MediosDeExportar()] {
                          return format->escribir(*made, options, means);
                        }));
        NombrarArchivo(QStringLiteral("Dibujo exportado"), file);
      },
      "Error al guardar");
}

std::optional<Pelicula> frmMain::PeliculaDeLaImagen() const {
  if (!HayImagen(p_)) return std::nullopt;
  try {
    Pelicula film =
        PeliculaDeArchivo(p_.codec, LeerArchivo(p_.archivo, kMasBytesDeImagen), p_.archivo.string());
    if (film.cuantas > 1) return film;
  } catch (const ErrorDelPrograma&) {
    // A picture that can no longer be read is no film either.
  }
  return std::nullopt;
}

void frmMain::ExportarPelicula() {
  std::optional<Pelicula> film = PeliculaDeLaImagen();
  frmExportarPelicula dialog(p_, film ? p_.archivo.filename().string() : "", this);
  if (dialog.exec() != QDialog::Accepted) return;
  const PedidoDePelicula asked = dialog.Pedido();
  if (asked.deCarpeta) {
    const std::string folder = desktop_.dialogos.ChooseFolder("Seleccione la carpeta de las imágenes");
    if (folder.empty()) return;
    film = PeliculaDeCarpeta(p_.codec, folder, asked.milisegundos);
    if (film->cuantas == 0) {
      desktop_.dialogos.Fail("No hay imágenes en la carpeta \"" + folder + "\".");
      return;
    }
  }
  EscribirPelicula(*film, asked.terminacion);
}

void frmMain::EscribirPelicula(const Pelicula& film, const std::string& ending) {
  const FormatoDePelicula* format = FormatoDePeliculaDe(ending);
  const std::string file = desktop_.dialogos.SaveFile(
      "Exportar la película", Filtro(FormatosDePelicula(), *format), ending, film.nombre);
  if (file.empty()) return;
  if (const auto* typed = FormatoDePeliculaDe(SinPunto(std::filesystem::path(file).extension().string())))
    format = typed;
  const int mode = MetodoDe(p_), method = mode < 0 ? p_.ajustes.conversion : mode;
  if (EsDeFormas(method)) PrepararRepertorio(p_.basAscii, p_.ajustes, p_.superficie);
  bool written = false;
  std::size_t unreadable = 0;
  Intentar(
      desktop_.dialogos,
      [&] {
        Ocupar(true);
        Revelado how = {method, p_.exportar, MediosDeExportar()};
        written = pixmosa::EscribirPelicula(
            p_, film, file, *format, how, [&](std::size_t k, const std::string& failure) {
              unreadable += failure.empty() ? 0 : 1;
              progreso_.SetValue(static_cast<int>(100 * (k + 1) / std::max(film.cuantas, k + 1)));
              progreso_.Yield();
              return !cancelada_ && !cerrarDespues_;
            });
      },
      "Error al guardar");
  const QString done = unreadable == 0
                           ? QStringLiteral("Película escrita")
                           : QStringLiteral("Película escrita (sin leer %1 fotogramas)").arg(unreadable);
  TerminarPagina(done, "Película cancelada: no se ha escrito nada.", written, file);
}

void frmMain::CopiarComoTexto() {
  desktop_.entorno.CopyUtf8(txtAscii_->Utf8());
  Decir(QStringLiteral("Copiado como texto."));
}

void frmMain::CopiarConFormato() {
  OpcionesDeExportar options = OpcionesDeVentana(p_);
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
