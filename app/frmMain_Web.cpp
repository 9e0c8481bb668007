// Coloured pages, the frames of a GIF and animation pages.
#include <QCheckBox>
#include <QElapsedTimer>
#include <QMenuBar>
#include <QToolBar>

#include "app/Muestra.h"
#include "app/frmMain.h"
#include "app/frmOpcAlgoritmo.h"
#include "platform/CodePage.h"
#include "platform/qt/AreaDeTexto.h"
#include "web/AnimArt.h"
#include "web/frmGIFAvance.h"

namespace pixmosa {
namespace {

constexpr int kMilisegundosEntreTextos = 150;

// Thrown through the writer when the user closes the window in the middle of an animation.
struct Cancelada {};

// A path as the dialog gave it, without blanks around it.
std::string Recortada(const std::string& path) {
  const std::size_t first = path.find_first_not_of(' ');
  return first == std::string::npos ? "" : path.substr(first, path.find_last_not_of(' ') - first + 1);
}

bool TerminaEnGif(const std::filesystem::path& file) {
  const std::string name = LowerCase(file.filename().string());
  return name.ends_with("gif");
}

}  // namespace

void frmMain::GenerarWebArt(bool exactCopy) {
  Dialogs& dialogs = programa_.plataforma.dialogos;
  WebSettings settings;
  opciones_->LlenarAjustesWeb(settings);
  settings.exactCopy = exactCopy;
  if (settings.paleta == 0) programa_.azar.SeedFromSystem();
  PrepararPaleta(programa_.basWeb, settings, programa_.azar);
  const std::string file = Recortada(dialogs.SaveFile("Guardar el WebArt", "Archivo HTML|*.html", "html"));
  if (file.empty()) return;
  progreso_->Show();
  progreso_->Repintar();
  try {
    EscribirWebArt(programa_.basWeb, settings, Imagen(), file);
    progreso_->Hide();
    if (chkAsciiPrev_->isChecked()) AbrirPagina(file);
  } catch (const FileError& e) {
    progreso_->Hide();
    dialogs.Fail(e.what(), "Error al guardar");
  }
}

void frmMain::AbrirPagina(const std::string& file) {
  if (!programa_.plataforma.entorno.Open(file))
    programa_.plataforma.dialogos.Fail("No se ha podido abrir \"" + file +
                                       "\": no hay ningún programa para ello.");
}

void frmMain::ElegirFondoWeb(QPushButton* swatch, Colour& colour) {
  const Colour chosen = programa_.plataforma.dialogos.ChooseColour(colour);
  if (chosen == kNoColour) return;
  colour = chosen;
  programa_.basWeb.Fondo = TextoDeFondo(chosen);
  PintarMuestra(swatch, chosen);
}

void frmMain::CortarFotogramas(const std::filesystem::path& file) {
  if (TerminaEnGif(file) && !programa_.basGif.carpeta.empty()) {
    CortarGif(programa_.basGif, file);
    opciones_->PonerAnimArtDisponible(programa_.basGif.AnimArtDisponible());
  } else {
    // A still picture: the last GIF's frames stay, but this picture has none to animate.
    opciones_->PonerAnimArtDisponible(false);
  }
}

void frmMain::ElegirFotogramas() {
  frmGIFAvance(programa_.basGif, programa_.plataforma.imagenes, this).exec();
}

void frmMain::AnimArtDeGif() {
  const BasGif& gif = programa_.basGif;
  std::vector<std::filesystem::path> frames;
  for (const std::string& number : gif.Seleccionados)
    frames.push_back(ArchivoDeFotograma(gif.carpeta, number));
  if (!gif.FramesList.empty()) GenerarAnimArt(frames);
}

void frmMain::AnimArtDirectorio() {
  Dialogs& dialogs = programa_.plataforma.dialogos;
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
  const std::vector<std::filesystem::path> frames = ImagenesDeCarpeta(folder);
  if (!frames.empty()) GenerarAnimArt(frames);
}

void frmMain::GenerarAnimArt(const std::vector<std::filesystem::path>& frames) {
  Dialogs& dialogs = programa_.plataforma.dialogos;
  const std::string file = Recortada(dialogs.SaveFile("Guardar el AnimArt", "Archivo HTML|*.html", "html"));
  if (file.empty()) return;
  Ocupar(true);
  try {
    EscribirAnimArt(file, frames.size(), BytesOfUtf8(programa_.ajustes.font.name),
                    [&](std::size_t k) -> std::string& { return TextoDeFotograma(frames, k); });
    Ocupar(false);
    if (chkAsciiPrev_->isChecked()) AbrirPagina(file);
  } catch (const Cancelada&) {
    Ocupar(false);
    close();
  } catch (const FileError& e) {
    Ocupar(false);
    dialogs.Fail(e.what(), "Error al guardar");
  }
}

std::string& frmMain::TextoDeFotograma(const std::vector<std::filesystem::path>& frames, std::size_t k) {
  try {
    programa_.imagen.Asignar(programa_.plataforma.imagenes.Read(frames[k]));
  } catch (const PictureError&) {
    // The frame before stays, and with it its text.
  }
  opciones_->LlenarAjustes(programa_.ajustes);
  std::string& text = programa_.basAscii.ProducedText;
  if (!HayImagen()) return text;
  pixmosa::GenerateAscii(programa_.basAscii, programa_.ajustes, Imagen(), kGrayscale);
  const bool last = k + 1 == frames.size();
  if (last || !desdeElTexto_.isValid() || desdeElTexto_.elapsed() > kMilisegundosEntreTextos) {
    MostrarImagen();
    txtAscii_->PonerTexto(text);
    desdeElTexto_.start();
  }
  if (last && chkAsciiPrev_->isChecked() && !opciones_->AnimArt()) ShowPreview();
  progreso_->SetValue(static_cast<int>(100 * (k + 1) / frames.size()));
  progreso_->Yield();
  if (cerrarDespues_) throw Cancelada();
  return text;
}

void frmMain::Ocupar(bool busy) {
  ocupada_ = busy;
  cerrarDespues_ = cerrarDespues_ && !busy;
  for (QWidget* bar : findChildren<QToolBar*>()) bar->setEnabled(!busy);
  menuBar()->setEnabled(!busy);
  opciones_->setEnabled(!busy);
  txtAscii_->setReadOnly(busy);
  setAcceptDrops(!busy);
  if (busy) {
    progreso_->Show();
  } else {
    progreso_->Hide();
  }
}

}  // namespace pixmosa
