#include <memory>

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include "app/frmMain.h"
#include "platform/PrivateFolder.h"
#include "platform/ProgramFolder.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtPictureCodec.h"
#include "platform/qt/QtRegistry.h"
#include "platform/qt/QtShell.h"
#include "platform/qt/QtTextSurface.h"

int main(int argc, char** argv) {
  using namespace pixmosa;
  QApplication app(argc, argv);
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
  QtPictureCodec pictures;
  QtDialogs dialogs;
  QtShell shell;
  QtRegistry registry;
  Programa program{{surface, pictures, dialogs, shell, registry}, ProgramFolder()};
  program.carpetasDeFuentes = FontFolders();
  if (!CargarPaleta3x2(program)) return 1;
  std::unique_ptr<PrivateFolder> scratch;
  try {
    scratch = std::make_unique<PrivateFolder>(std::filesystem::temp_directory_path(), "KTW");
    program.basGif.carpeta = scratch->Path();
  } catch (const std::exception& e) {
    dialogs.Fail(e.what(), {});  // pictures load all the same; only animated GIFs are not cut
  }
  frmMain window(program);
  dialogs.SetOwner(&window);
  window.show();
  if (const QStringList files = QApplication::arguments().mid(1); !files.isEmpty())
    window.AbrirImagen(files.first().toStdString());
  return QApplication::exec();
}
