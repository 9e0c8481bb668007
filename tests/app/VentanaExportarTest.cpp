// Exporting the drawing from the window, and copying it with its looks.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>

#include "platform/Dibujo.h"
#include "tests/support/MainWindow.h"

using namespace pixmosa;
using test::Find;

class VentanaExportarTest : public QObject {
  Q_OBJECT

 private slots:
  void TheEndingPicksTheFormatAndOptionsAreKept();
  void CopiesWithItsLooks();
  void FilmsOfAFolder();
  void TheInksOfTheEditor();

 private:
  // A picture, red at the left and blue at the right, converted into dense characters.
  static void Prepare(test::MainWindow& m) {
    Picture p = Picture::Filled(200, 100, Rgb(200, 0, 0));
    for (int y = 0; y < 100; ++y)
      std::fill_n(p.Writable() + y * 200 + 100, 100, PixelOfColour(Rgb(0, 0, 200)));
    m.Load(p);
    m.program.basAscii.AsciiColumns = 10;
    m.Trigger("mnuPlay");
  }

  // Opens the dialog, lets `fill` set it, and saves as `file`.
  template <typename Fill>
  static std::string Export(test::MainWindow& m, const std::string& file, Fill fill,
                            const char* entry = "mnuExportar") {
    m.dialogs.paths.push_back(m.folder.File(file));
    QTimer::singleShot(0, &m.window, [&] {
      auto* dialog = QApplication::activeModalWidget();
      fill(*dialog);
      QTest::mouseClick(&Find<QAbstractButton>(*dialog, "cmdExportar"), Qt::LeftButton);
    });
    m.Trigger(entry);
    return LeerArchivo(m.folder.File(file));
  }

  static void Choose(QWidget& dialog, const char* format) {
    auto& box = Find<QComboBox>(dialog, "cboFormato");
    box.setCurrentIndex(box.findData(format));
  }
};

void VentanaExportarTest::TheEndingPicksTheFormatAndOptionsAreKept() {
  test::MainWindow m;
  QVERIFY(!Find<QAction>(m.window, "mnuExportar").isEnabled());
  Prepare(m);
  const std::string svg = Export(m, "a.svg", [](QWidget& dialog) {
    Choose(dialog, "svg");
    QVERIFY(Find<QCheckBox>(dialog, "chkTrazos").isVisible());
    QVERIFY(!Find<QSpinBox>(dialog, "numEscala").isVisible());
    Find<QCheckBox>(dialog, "chkColorDeImagen").click();
  });
  QVERIFY(svg.find("<svg") != std::string::npos);
  QVERIFY(svg.find("#c80000") != std::string::npos && svg.find("#0000c8") != std::string::npos);
  // What was chosen before stands there again; the ending that is typed decides.
  const std::string ansi = Export(m, "a.ANS", [](QWidget& dialog) {
    QCOMPARE(Find<QComboBox>(dialog, "cboFormato").currentData().toString(), QString("svg"));
    QVERIFY(Find<QCheckBox>(dialog, "chkColorDeImagen").isChecked());
  });
  QVERIFY(ansi.find("\x1b[38;2;200;0;0m") != std::string::npos);
  const std::string png = Export(m, "a.png", [&m](QWidget& dialog) {
    Choose(dialog, "png");
    Find<QSpinBox>(dialog, "numEscala").setValue(3);
    const auto& ascii = m.program.basAscii;
    QVERIFY(
        Find<QLabel>(dialog, "lblTamano").text().startsWith(QString::number(30 * ascii.CellWidth) + " x "));
  });
  QCOMPARE(m.pictures.ReadBytes(png, "a.png").Width(), 30 * m.program.basAscii.CellWidth);
  QVERIFY(Find<QLabel>(m.window, "lblEnlace").text().contains("a.png"));
}

void VentanaExportarTest::CopiesWithItsLooks() {
  test::MainWindow m;
  Prepare(m);
  m.program.exportar.color = true;
  m.Trigger("mnuCopiarComoTexto");
  QCOMPARE(m.shell.clipboard, TextoEnUtf8(m.program.basAscii));
  m.Trigger("mnuCopiarConFormato");
  QVERIFY(m.shell.log.back().find("color:#c80000") != std::string::npos);
  QVERIFY(m.shell.clipboard.find("\r\n") != std::string::npos);
  m.Trigger("mnuCopiarComoImagen");
  const auto& ascii = m.program.basAscii;
  const std::size_t rows = DibujoDeTexto(ascii.ProducedText).filas.size();
  QCOMPARE(m.shell.log.back(), "CopyPicture|" + std::to_string(20 * ascii.CellWidth) + "x" +
                                   std::to_string(2 * rows * static_cast<std::size_t>(ascii.CellHeight)));
}

void VentanaExportarTest::TheInksOfTheEditor() {
  test::MainWindow m;
  m.Area().PonerTexto("ab");
  m.Trigger("mnuEditor");
  PintarCelda(m.program.basEditor, {2, 1}, U'─', Rgb(1, 2, 3));
  const auto ask = [](QWidget& dialog) {
    auto& own = Find<QCheckBox>(dialog, "chkColorDeImagen");
    QVERIFY(own.isChecked() && own.text() == "Con los &colores del dibujo");
    Choose(dialog, "ans");
  };
  QVERIFY(Export(m, "e.ans", ask, "mnuExportarDibujo").find("a\x1b[38;2;1;2;3m─") != std::string::npos);
  QVERIFY2(!m.program.exportar.color, "the picture's colours are another choice");
}

void VentanaExportarTest::FilmsOfAFolder() {
  test::MainWindow m;
  std::filesystem::create_directory(m.folder.File("cine"));
  m.Save(Picture::Filled(60, 60, kBlack), "cine/foto10.png");
  m.Save(Picture::Filled(60, 60, kWhite), "cine/foto2.png");
  m.program.basAscii.AsciiColumns = 6;
  m.dialogs.paths = {m.folder.File("cine"), m.folder.File("cine.cast")};
  QTimer::singleShot(0, &m.window, [] {
    auto* dialog = QApplication::activeModalWidget();
    QVERIFY(!Find<QRadioButton>(*dialog, "optAnimada").isEnabled());
    QVERIFY(Find<QRadioButton>(*dialog, "optCarpeta").isChecked());
    Find<QSpinBox>(*dialog, "numRitmo").setValue(250);
    QTest::mouseClick(&Find<QAbstractButton>(*dialog, "cmdExportarPelicula"), Qt::LeftButton);
  });
  m.Trigger("mnuExportarPelicula");
  const std::string cast = LeerArchivo(m.folder.File("cine.cast"));
  QVERIFY(cast.starts_with("{\"version\": 2") || cast.starts_with("{\"version\":2"));
  QVERIFY(cast.find("[0.25") != std::string::npos);
  QVERIFY(Find<QLabel>(m.window, "lblEnlace").text().contains("cine.cast"));
  QVERIFY2(!HayImagen(m.program), "the working picture stays as it was");
}

QTEST_MAIN(VentanaExportarTest)
#include "VentanaExportarTest.moc"
