// Coloured pages, the frames of a GIF and animation pages.
#include "app/frmMain.h"
#include "app/frmOpcAlgoritmo.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/Intentar.h"
#include "web/frmGIFAvance.h"

namespace pixmosa {
namespace {

constexpr int kMilisegundosEntreTextos = 150;
constexpr std::uint64_t kMegabytesSinPreguntar = 100;

// A path as the dialog gave it, without blanks around it.
std::string Recortada(const std::string& path) {
  const std::size_t first = path.find_first_not_of(' ');
  return first == std::string::npos ? "" : path.substr(first, path.find_last_not_of(' ') - first + 1);
}

}  // namespace

void frmMain::GenerarWebArt() {
  WebSettings& settings = p_.ajustesWeb;
  settings.exactCopy = p_.modo == kModoCopiaExacta;
  if (settings.paleta == 0) p_.azar.SeedFromSystem();
  PrepararPaleta(p_.basWeb, settings, p_.azar);
  const std::string file = Recortada(
      desktop_.dialogos.SaveFile("Guardar el WebArt", "Archivo HTML|*.html", "html", NombreDeImagen(p_)));
  if (file.empty()) return;
  const std::uint64_t megabytes = MayorPagina(settings, p_.imagen.picMain) / 1'000'000;
  if (megabytes > kMegabytesSinPreguntar &&
      !desktop_.dialogos.Ask("La página puede ocupar hasta " + std::to_string(megabytes) +
                             " MB, más de lo que abren muchos navegadores.\r\n¿Desea escribirla?"))
    return;
  bool written = false;
  Intentar(
      desktop_.dialogos,
      [&] {
        Ocupar(true);
        progreso_.Repintar();
        written = EscribirWebArt(p_.basWeb, settings, p_.imagen.picMain, file, [this] {
          progreso_.Yield();
          return !cancelada_ && !cerrarDespues_;
        });
      },
      "Error al guardar");
  TerminarPagina("Página escrita", "Página cancelada: no se ha escrito nada.", written, file);
}

void frmMain::TerminarPagina(const QString& done, const QString& cancelled, bool written,
                             const std::string& file) {
  const bool leave = cerrarDespues_, stopped = cancelada_;
  Ocupar(false);
  if (written) NombrarArchivo(done, file);
  if (stopped) Decir(cancelled);
  if (leave) {
    close();
  } else if (written && p_.vistaPrevia) {
    AbrirPagina(file);
  }
}

void frmMain::AbrirPagina(const std::string& file) {
  if (!desktop_.entorno.Open(file))
    desktop_.dialogos.Fail("No se ha podido abrir \"" + file + "\": no hay ningún programa para ello.");
}

void frmMain::ElegirFotogramas() {
  frmGIFAvance(p_.basGif, p_.codec, this).exec();
}

void frmMain::AnimArtDeGif() {
  if (p_.basGif.FramesList.empty()) return;
  const Serie frames = SerieDeGif(p_);
  if (const std::string excess = Exceso(frames); excess.empty()) {
    GenerarAnimArt(frames);
  } else {
    desktop_.dialogos.Fail("El GIF \"" + frames.nombre + "\" es demasiado grande: " + excess +
                           ". Elija menos fotogramas.");
  }
}

void frmMain::AnimArtDirectorio() {
  Dialogs& dialogs = desktop_.dialogos;
  if (!dialogs.Ask("Mediante esta opcion generará un archivo HTML con la animación de los bmp´s que se "
                   "encuentren en el "
                   "directorio seleccionado.\r\nSe seguirá un orden alfabético de los archivos para la "
                   "generación de la "
                   "animación. Si el directorio contiene muchos archivos,este proceso puede llevar bastante "
                   "tiempo.\r\n"
                   " ¿Desea continuar?"))
    return;
  const std::string folder = dialogs.ChooseFolder("Seleccione la carpeta donde están los bmp");
  if (folder.empty()) return;
  const Serie frames = SerieDeCarpeta(p_, folder);
  if (frames.cuantos > 0) GenerarAnimArt(frames);
}

void frmMain::GenerarAnimArt(const Serie& frames) {
  const std::string file = Recortada(
      desktop_.dialogos.SaveFile("Guardar el AnimArt", "Archivo HTML|*.html", "html", frames.nombre));
  if (file.empty()) return;
  bool written = false;
  int unreadable = 0;
  Intentar(
      desktop_.dialogos,
      [&] {
        Ocupar(true);
        written = EscribirAnimacion(p_, frames, file, [&](std::size_t k, const std::string& failure) {
          if (!failure.empty()) ++unreadable;
          return SeguirAnimacion(k, frames.cuantos);
        });
      },
      "Error al guardar");
  const QString done = unreadable == 0 ? QStringLiteral("Animación escrita")
                                       : QStringLiteral("Animación escrita (sin leer %1 de %2 fotogramas)")
                                             .arg(unreadable)
                                             .arg(frames.cuantos);
  TerminarPagina(done, "Animación cancelada: no se ha escrito nada.", written, file);
}

bool frmMain::SeguirAnimacion(std::size_t k, std::size_t frames) {
  const bool last = k + 1 == frames;
  if (last || !desdeElTexto_.isValid() || desdeElTexto_.elapsed() > kMilisegundosEntreTextos) {
    MostrarImagen();
    txtAscii_->PonerUtf8(TextoEnUtf8(p_.basAscii));
    desdeElTexto_.start();
  }
  if (last && p_.vistaPrevia && !p_.animArt) ShowPreview();
  progreso_.SetValue(static_cast<int>(100 * (k + 1) / frames));
  progreso_.Yield();
  return !cancelada_ && !cerrarDespues_;
}

}  // namespace pixmosa
