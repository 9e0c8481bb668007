// The real main window over recording dialogs and desktop, driven by control names.
#pragma once

#include <thread>

#include <QAction>
#include <QApplication>
#include <QTest>

#include "app/frmMain.h"
#include "platform/AtomicFile.h"
#include "platform/ProgramFolder.h"
#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/QtPicture.h"
#include "platform/qt/QtPictureCodec.h"
#include "platform/qt/QtTextSurface.h"
#include "programa/Generar.h"
#include "tests/support/FakeRegistry.h"
#include "tests/support/Find.h"
#include "tests/support/RecordingDialogs.h"
#include "tests/support/TestFolder.h"

namespace pixmosa::test {

// Reads as late as it is told.
struct CodecTardo : QtPictureCodec {
  int milisegundos = 0;
  Picture Read(const std::filesystem::path& file, std::string* aviso = nullptr) override {
    std::this_thread::sleep_for(std::chrono::milliseconds(milisegundos));
    return QtPictureCodec::Read(file, aviso);
  }
};

struct MainWindow {
  std::filesystem::path fonts;
  TestFolder folder;
  TestFolder scratch;
  QtTextSurface surface;
  CodecTardo pictures;
  RecordingDialogs dialogs;
  RecordingShell shell;
  FakeRegistry registry;
  Programa program{surface, pictures, ProgramFolder()};
  frmMain window{Ready(program), {dialogs, shell, registry}};

  // `fontFolder`: of FIGlet fonts; an empty one by default. `before`: what earlier runs have remembered.
  explicit MainWindow(std::filesystem::path fontFolder = {}, FakeRegistry before = {})
      : fonts(std::move(fontFolder)), registry(std::move(before)) {
    window.show();
    [[maybe_unused]] const bool shown = QTest::qWaitForWindowExposed(&window);
  }

  // Chooses a menu entry or presses a toolbar button.
  void Trigger(const char* action) { Find<QAction>(window, action).trigger(); }

  // Writes a picture as a file of the test's folder; its path.
  std::string Save(const Picture& picture, const std::string& name = "imagen.png") {
    const std::string file = folder.File(name);
    EscribirArchivo(file, pictures.Encode(picture, name.substr(name.rfind('.') + 1)));
    return file;
  }

  // Loads a picture as the user does, by the menu and the dialog.
  void Load(const Picture& picture, const std::string& name = "imagen.png") {
    dialogs.paths.push_back(Save(picture, name));
    Trigger("mnuLoadImage");
  }

  // The start-up work that stands before the window.
  Programa& Ready(Programa& p) {
    CargarPaleta3x2(p);
    p.basGif.carpeta = scratch.Path();
    p.carpetasDeFuentes = {fonts.empty() ? folder.Path() / "Fonts" : fonts, folder.Path() / "Propias"};
    return p;
  }

  AreaDeTexto& Area() { return Find<AreaDeTexto>(window, "txtAscii"); }
  std::string Text() { return Area().Texto(); }
};

}  // namespace pixmosa::test
