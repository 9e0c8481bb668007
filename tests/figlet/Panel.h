// The banner panel over two fonts of the test's own, one of them in the tree.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QTest>

#include "figlet/frmFiglet.h"
#include "platform/AtomicFile.h"
#include "tests/support/FakeRegistry.h"
#include "tests/support/FigletFont.h"
#include "tests/support/Find.h"
#include "tests/support/RecordingDialogs.h"
#include "tests/support/TestFolder.h"

namespace pixmosa::test {

struct Panel {
  TestFolder folder;
  RecordingDialogs dialogs;
  RecordingShell shell;
  FakeRegistry registry;
  BasFigLet font;
  OpcionesDeLetrero options;
  std::unique_ptr<frmFiglet> panel;
  std::vector<std::string> banners;

  Panel() {
    std::filesystem::create_directory(folder.Path() / "Fonts");
    Write("Fonts/alfa.flf", OwnFont());
    std::string upper = OwnFont();
    Write("Fonts/beta.flf", upper.replace(upper.find("Comentario"), 10, "La segunda"));
    Write("Fonts/categoriestree.txt", "[Uno]\r\n[Uno|Sub]\r\nbeta\r\nno-esta\r\n");
    panel = std::make_unique<frmFiglet>(font, options, std::vector{folder.Path() / "Fonts"},
                                        Escritorio{dialogs, shell, registry}, nullptr);
    QObject::connect(panel.get(), &frmFiglet::LetreroCambiado,
                     [this](const std::string& b, const std::string& utf8) {
                       banners.push_back(utf8.empty() ? b : utf8);
                     });
    panel->show();
  }
  std::string Write(const std::string& name, const std::string& bytes) {
    EscribirArchivo(folder.File(name), bytes);
    return folder.File(name);
  }
  template <typename Control>
  Control& Get(const char* name) {
    return Find<Control>(*panel, name);
  }
  template <typename View, typename Item>
  void Click(View& view, Item* item) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualItemRect(item).center());
  }
};

}  // namespace pixmosa::test
