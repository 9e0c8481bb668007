// Pictures in, text and settings out: loading, saving, clipboard.
#include "app/MenuDeImagen.h"
#include "app/basINI.h"
#include "app/frmMain.h"
#include "app/frmOpcAlgoritmo.h"
#include "conversion/TextoGuardado.h"
#include "platform/AtomicFile.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/QtText.h"
#include "programa/CargarImagen.h"

namespace pixmosa {
namespace {

constexpr char kFiltroDeImagenes[] = "Imagenes (*.bmp;*.gif;*.jpg;*.ico;*.wmf)|*.bmp;*.gif;*.jpg;*.ico;*.wmf";
constexpr char kFiltroDeTodas[] = "|Todas las imágenes que se pueden leer|";

}  // namespace

std::string frmMain::ElegirArchivoDeImagen() {
  std::string all;
  for (const std::string& ending : p_.codec.FormatosLegibles()) all += (all.empty() ? "*." : ";*.") + ending;
  return desktop_.dialogos.OpenFile("Seleccione una imagen...",
                                    std::string(kFiltroDeImagenes) + kFiltroDeTodas + all);
}

void frmMain::CargarImagen() {
  const std::string file = ElegirArchivoDeImagen();
  if (!file.empty()) AbrirImagen(file);
}

bool frmMain::AbrirImagen(const std::filesystem::path& file) {
  std::string warning;
  try {
    warning = CargarLeida(p_, file, Esperar([codec = &p_.codec, file] {
                            ImagenLeida read;
                            read.imagen = codec->Read(file, &read.aviso);
                            return read;
                          }));
  } catch (const TrabajoCancelado&) {
    Decir(QStringLiteral("Carga cancelada."));
    return true;
  } catch (const std::exception& e) {
    desktop_.dialogos.Fail("No se ha podido cargar la imagen", "Error en la carga", FraseDe(e));
    return false;
  }
  SeguirCarga(warning);
  return true;
}

void frmMain::GuardarTexto() {
  Guardar();
}

bool frmMain::Guardar() {
  if (txtAscii_->EstaVacia()) return false;
  const std::string file =
      desktop_.dialogos.SaveFile("Guardar el AsciiArt...", "*.txt", "txt", NombreDeImagen(p_));
  if (file.empty()) return false;
  return Intentar(
      desktop_.dialogos,
      [&] {
        const Font& font = p_.ajustes.font;
        const bool bytes = txtAscii_->CabeEnLaPagina();
        EscribirArchivo(file, bytes ? TextoGuardado(font, txtAscii_->Texto())
                                    : TextoGuardadoUtf8(font, txtAscii_->Utf8()));
        txtAscii_->DarPorGuardada();
        Titular();
        if (bytes) {
          NombrarArchivo("Texto guardado", file);
        } else {
          Decir("Guardado en UTF-8: tiene caracteres que no están en la página de códigos.", "Abrir",
                [this, file] { AbrirPagina(file); });
        }
      },
      "Error al guardar");
}

void frmMain::CopiarTexto() {
  if (txtAscii_->EstaVacia()) return;
  // What was only typed or drawn by hand was never produced: then the text itself is copied.
  const BasAscii& ascii = p_.basAscii;
  if (!ascii.ProducedUtf8.empty()) {
    desktop_.entorno.CopyUtf8(ascii.ProducedUtf8);
  } else if (!ascii.ProducedText.empty()) {
    desktop_.entorno.CopyText(ascii.ProducedText);
  } else if (txtAscii_->CabeEnLaPagina()) {
    desktop_.entorno.CopyText(txtAscii_->Texto());
  } else {
    desktop_.entorno.CopyUtf8(txtAscii_->Utf8());
  }
  const Font& font = p_.ajustes.font;
  desktop_.dialogos.Inform("Dibujo copiado en el portapapeles.\r\nUsar fuente: " + font.name +
                           ". Tamaño: " + std::to_string(font.points));
}

void frmMain::GrabarIni() {
  SaveSettings(IniPath(p_.carpeta), {.colorFondoAscii = p_.fondoTexto,
                                     .colorTextoAscii = p_.colorTexto,
                                     .tamañoAscii = p_.ajustes.size,
                                     .paletaAscii = p_.ajustes.palette,
                                     .luminosidadAscii = p_.ajustes.luminosity,
                                     .asciiNegativado = p_.basAscii.CountedColour == kBlack,
                                     .paletaWeb = p_.ajustesWeb.paleta,
                                     .previewAscii = p_.vistaPrevia,
                                     .fuente = p_.ajustes.font});
}

}  // namespace pixmosa
