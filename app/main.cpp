#include <cstdio>
#include <memory>
#include <span>
#include <string_view>

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include "app/Recuerdos.h"
#include "app/frmMain.h"
#include "platform/PrivateFolder.h"
#include "platform/ProgramFolder.h"
#include "platform/Temporales.h"
#include "platform/qt/Estilo.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtPictureCodec.h"
#include "platform/qt/QtRegistry.h"
#include "platform/qt/QtShell.h"
#include "platform/qt/QtTextSurface.h"
#include "platform/qt/UltimaFrase.h"
#include "programa/Generar.h"

namespace {

// What no slot has caught still ends in a message and not in the program's end.
class Aplicacion final : public QApplication {
 public:
  Aplicacion(int& argc, char** argv, pixmosa::Dialogs& dialogs)
      : QApplication(argc, argv), dialogs_(dialogs) {}

  bool notify(QObject* receiver, QEvent* event) override {
    bool handled = false;
    pixmosa::Intentar(dialogs_, [&] { handled = QApplication::notify(receiver, event); });
    return handled;
  }

 private:
  pixmosa::Dialogs& dialogs_;
};

constexpr char kFallo[] = "pixmosa: El programa ha tenido que terminar por un fallo suyo.\n";
constexpr char kSinQt[] =
    "pixmosa: No se ha podido abrir la ventana: no hay pantalla, o la instalación de Qt está incompleta.\n";

constexpr char kAyuda[] =
    "Uso: pixmosa [IMAGEN]\n\n"
    "Abre la ventana de Pixmosa, con la imagen cargada si se da una.\n"
    "Las órdenes sin ventana son las de pixmosa-cli; \"pixmosa-cli --help\" las explica.\n\n"
    "  --help     muestra esta ayuda\n"
    "  --version  muestra la versión\n";

// What the terminal is told without a window; null where the window is wanted.
const char* RespuestaDeTerminal(int argc, char** argv) {
  for (const std::string_view word : std::span(argv, static_cast<std::size_t>(argc)).subspan(1)) {
    if (word == "--help" || word == "-h") return kAyuda;
    if (word == "--version") return "pixmosa " PIXMOSA_VERSION "\n";
  }
  return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace pixmosa;
  if (const char* answer = RespuestaDeTerminal(argc, argv)) return std::fputs(answer, stdout) < 0 ? 1 : 0;
  PonerUltimaFrase<kFallo, kSinQt>();
  QuitarTemporalesAlTerminar();
  QtDialogs dialogs;
  Aplicacion app(argc, argv, dialogs);
  QApplication::setStyle(new Estilo);
  // No display name: the window system would add it to every caption.
  QApplication::setApplicationName("Pixmosa");
  QApplication::setApplicationVersion(PIXMOSA_VERSION);
  // A quick stroke in the editor must keep every position that the pointer reported.
  QApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
  // The system's own dialogs speak Spanish too.
  QTranslator spanish;
  if (spanish.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(&spanish);

  QtTextSurface surface;
  // While another process decodes, the window goes on showing itself; it takes no orders meanwhile.
  QtPictureCodec pictures([] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); });
  QtShell shell;
  QtRegistry registry;
  Programa program{surface, pictures, ProgramFolder(), FontFolders()};
  program.carpetaDeDibujos = DrawingFolder();
  if (!Intentar(dialogs, [&] { CargarPaleta3x2(program); })) return 1;
  std::unique_ptr<PrivateFolder> scratch;
  try {
    scratch = std::make_unique<PrivateFolder>(std::filesystem::temp_directory_path(), "KTW");
    program.basGif.carpeta = scratch->Path();
  } catch (const std::exception& e) {
    dialogs.Fail(FraseDe(e), {}, {});  // pictures load all the same; only animated GIFs are not cut
  }
  dialogs.PonerCarpeta(QString::fromStdString(Recordado(registry, Recuerdo::Carpeta)));
  frmMain window(program, {dialogs, shell, registry});
  dialogs.SetOwner(&window);
  window.show();
  if (const QStringList files = QApplication::arguments().mid(1); !files.isEmpty())
    window.AbrirImagen(files.first().toStdString());
  const int status = QApplication::exec();
  Recordar(registry, Recuerdo::Carpeta, dialogs.Carpeta().toStdString());
  return status;
}
