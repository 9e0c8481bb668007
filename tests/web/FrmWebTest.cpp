// Coloured pages and animations in the real window.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QTimer>

#include "programa/Modos.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/Gif.h"
#include "tests/support/MainWindow.h"

using namespace pixmosa;
using test::Find;
using test::Gif;
using Strings = std::vector<std::string>;

namespace {

struct Window : test::MainWindow {
  void LoadBytes(const std::string& name, const std::string& bytes) {
    EscribirArchivo(folder.File(name), bytes);
    dialogs.paths.push_front(folder.File(name));
    Trigger("mnuLoadImage");
  }
  bool AnimArtEnabled() { return Find<QCheckBox>(window, "chkAnimArt").isEnabled(); }
};

const std::string kSaveAnim = "SaveFile|Guardar el AnimArt|Archivo HTML|*.html|html";

}  // namespace

class FrmWebTest : public QObject {
  Q_OBJECT

 private slots:
  void MosaicAndExactCopy() {
    Window m;
    m.Load(Picture::Filled(4, 2, Rgb(7, 8, 9)));
    m.Trigger(kModos[kModoMosaico]);
    Find<QSlider>(m.window, "sldWTamaño").setValue(5);
    auto& palette = Find<QComboBox>(m.window, "cboPaletaWeb");
    palette.setFocus();
    QTest::keyClick(&palette, Qt::Key_Down);
    Find<QLineEdit>(m.window, "txtPaletaWeb").setText("xñ");
    m.dialogs.log.clear();
    m.Trigger("Play");
    QCOMPARE(m.dialogs.log, Strings{"SaveFile|Guardar el WebArt|Archivo HTML|*.html|html"});
    const std::string file = m.folder.File("p.html");
    m.dialogs.paths = {" " + file + " "};
    m.Trigger("Play");
    QVERIFY(LeerArchivo(file).find("rgb(7,8,9)\">x\xF1x\xF1<br>\r\n") != std::string::npos);
    QVERIFY(m.shell.log.empty());

    auto& swatch = Find<QPushButton>(m.window, "lblWebBackColor");
    m.dialogs.colours = {Rgb(10, 0, 255)};
    swatch.click();
    swatch.click();  // cancelled
    m.Trigger(kModos[kModoCopiaExacta]);
    const Picture small = m.program.imagen.picMain;
    m.program.imagen.Cargar(Picture::Filled(2000, 1500, kWhite));
    m.dialogs.paths = {file};
    m.Trigger("Play");
    QVERIFY2(m.dialogs.log.back().starts_with("Ask||La página puede ocupar hasta 129 MB"),
             "2001 x 1501 cells of 43");
    m.program.imagen.Cargar(small);
    m.Trigger("WebBArriba");
    Find<QCheckBox>(m.window, "chkAsciiPrev").click();
    m.shell.found = false;
    m.dialogs.paths = {file, "/dev/full"};
    m.Trigger("Play");
    QCOMPARE(m.shell.log, Strings{"Open|" + file});
    QCOMPARE(m.dialogs.log.back(),
             "Fail||No se ha podido abrir \"" + file + "\": no hay ningún programa para ello.");
    m.Trigger("Play");
    QCOMPARE(m.dialogs.log.back(),
             "Fail|Error al guardar|No se ha podido escribir \"/dev/full\": no queda espacio en el disco.");
    const std::string page = LeerArchivo(file);
    QVERIFY(page.find("bgcolor=\"#A00FF\"") != std::string::npos);
    QVERIFY(page.find("<font color=\"rgb(-1,0,0)\">0000<br>\r\n</font><font color=\"rgb(7,8,9)\">") !=
            std::string::npos);
  }

  void AnimationFromAGif() {
    Window m;
    QVERIFY(!m.AnimArtEnabled());
    m.LoadBytes("a.GiF", Gif({1, 0, 1}));
    QVERIFY(m.AnimArtEnabled() && Find<QPushButton>(m.window, "cmdGIFAvance").isEnabled());
    Find<QSlider>(m.window, "sldTamaño").setValue(2);
    QTest::mouseClick(&Find<QLabel>(m.window, "lblAnimArt"), Qt::LeftButton);
    Find<QCheckBox>(m.window, "chkAsciiPrev").setChecked(true);
    m.program.basGif.Seleccionados = {"02", "03"};
    const std::string file = m.folder.File("p.html");
    m.dialogs.paths = {file};
    m.dialogs.log.clear();
    m.Trigger("Play");
    QCOMPARE(m.dialogs.log, Strings{kSaveAnim});
    QCOMPARE(m.shell.log, Strings{"Open|" + file});
    const std::string page = LeerArchivo(file);
    QVERIFY(page.find("var max_pics=2;") != std::string::npos);
    QVERIFY(page.find("face=Lucida Console; Size = 1 > \r\n") != std::string::npos);
    QCOMPARE(m.program.imagen.picMain.ColourAt(0, 0), kWhite);  // the last frame
    QVERIFY(page.ends_with(m.Text() + "\r\n  </font></pre>\r\n </div>\r\n</body>\r\n</html>\r\n"));

    m.dialogs.log.clear();
    m.Trigger("Play");
    QCOMPARE(m.dialogs.log, Strings{kSaveAnim});  // cancelled: nothing else
    m.LoadBytes("b.gif", Gif({1}));
    QVERIFY(!m.AnimArtEnabled() && !Find<QCheckBox>(m.window, "chkAnimArt").isChecked());
  }

  void AGifOfFarTooManyPixelsIsNotAnimated() {
    Window m;
    m.LoadBytes("vasto.gif", Gif(std::vector<int>(41, 1)).replace(6, 4, "\x88\x13\x88\x13"));
    Find<QCheckBox>(m.window, "chkAnimArt").setChecked(true);
    m.dialogs.log.clear();
    m.Trigger("Play");
    QCOMPARE(m.dialogs.log,
             Strings{"Fail||El GIF \"vasto\" es demasiado grande: 41 fotogramas de 5000 x 5000 "
                     "píxeles. Elija menos fotogramas."});
  }

  void SelectionDialogKeepsItsChoice() {
    Window m;
    m.LoadBytes("a.gif", Gif({0, 1, 2, 3, 0, 1, 2, 3, 0, 1, 2, 3}));
    const auto open = [&](auto work) {
      QTimer::singleShot(0, [&] {
        auto& dialog = *QApplication::activeModalWidget();
        work(dialog, Find<QListWidget>(dialog, "lstwGIF"));
        dialog.close();
      });
      Find<QPushButton>(m.window, "cmdGIFAvance").click();
    };
    open([&](QWidget& dialog, QListWidget& list) {
      QCOMPARE(dialog.windowTitle(), "Propiedades avanzadas del AnimArt");
      QCOMPARE(list.count(), 12);
      QCOMPARE(list.item(0)->text() + list.item(11)->text(), "Fotograma 01Fotograma 12");
      QCOMPARE(list.item(11)->data(Qt::UserRole).toString(), "F12");
      QCOMPARE(list.item(11)->checkState(), Qt::Checked);
      Find<QPushButton>(dialog, "cmdNome").click();
      for (const int i : {4, 1}) list.item(i)->setCheckState(Qt::Checked);
      const auto preview = [&] {
        return Find<QLabel>(dialog, "imgGIFPreview").pixmap().toImage().pixelColor(0, 0);
      };
      QCOMPARE(preview(), QColor(Qt::black));
      QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(2)).center());
      QCOMPARE(preview(), QColor(255, 0, 0));
    });
    QCOMPARE(m.program.basGif.Seleccionados, (Strings{"02", "05"}));
    open([&](QWidget& dialog, QListWidget& list) {
      QCOMPARE(list.item(4)->checkState(), Qt::Checked);
      QCOMPARE(list.item(0)->checkState(), Qt::Unchecked);
      Find<QPushButton>(dialog, "cmdNome").click();
    });
    QVERIFY(m.program.basGif.Seleccionados.empty());
    open([&](QWidget& dialog, QListWidget&) { Find<QPushButton>(dialog, "cmdAll").click(); });
    QCOMPARE(m.program.basGif.Seleccionados.size(), 12U);
  }

  void AnimationFromAFolder() {
    Window m;
    const std::string pictures = m.folder.File("imagenes");
    std::filesystem::create_directory(pictures);
    for (const char* name : {"imagenes/b.bmp", "imagenes/A.bmp"}) m.Save(Picture::Filled(3, 3, kWhite), name);
    EscribirArchivo(pictures + "/c.jpg", "rota");
    const std::string file = m.folder.File("p.html");
    Find<QSlider>(m.window, "sldTamaño").setValue(2);
    m.Trigger("mnuAnimArtDirectorio");
    m.dialogs.answers = {true, true};
    m.Trigger("mnuAnimArtDirectorio");
    m.dialogs.paths = {pictures, file};
    m.Trigger("mnuAnimArtDirectorio");
    const std::string ask =
        "Ask||Mediante esta opcion generará un archivo HTML con la animación de los bmp´s que se encuentren "
        "en el directorio seleccionado.\r\nSe seguirá un orden alfabético de los archivos para la generación "
        "de la animación. Si el directorio contiene muchos archivos,este proceso puede llevar bastante "
        "tiempo.\r\n ¿Desea continuar?";
    const std::string choose = "ChooseFolder|Seleccione la carpeta donde están los bmp";
    QCOMPARE(m.dialogs.log, (Strings{ask, ask, choose, ask, choose, kSaveAnim}));
    const std::string page = LeerArchivo(file);
    QVERIFY(page.find("var max_pics=3;") != std::string::npos);
    QVERIFY(Find<QLabel>(m.window, "lblEnlace")
                .text()
                .startsWith("Animación escrita (sin leer 1 de 3 fotogramas)"));
    const std::size_t second = page.find("<div id=\"text2\">"), third = page.find("<div id=\"text3\">");
    QCOMPARE(page.substr(second + 16, third - second - 17), page.substr(third + 16, third - second - 17));

    m.dialogs.answers = {true};
    m.dialogs.paths = {m.folder.File("vacia")};
    m.dialogs.log.clear();
    m.Trigger("mnuAnimArtDirectorio");
    QCOMPARE(m.dialogs.log, (Strings{ask, choose}));  // an empty folder ends silently
  }

  void ClosingInTheMiddleIsSafe() {
    Window m;
    m.LoadBytes("a.gif", Gif(std::vector<int>(400, 1)));
    Find<QCheckBox>(m.window, "chkAnimArt").click();
    const std::string file = m.folder.File("p.html");
    m.dialogs.paths = {file};
    QTimer::singleShot(0, [&] {
      auto& cancel = Find<QPushButton>(m.window, "cmdCancelar");
      QVERIFY(cancel.isVisible() && !Find<QWidget>(m.window, "PicAlgoritmos").isEnabled());
      cancel.click();
    });
    m.Trigger("Play");
    QVERIFY(!std::filesystem::exists(file) && m.window.isVisible());
    QCOMPARE(Find<QLabel>(m.window, "lblEnlace").text(), "Animación cancelada: no se ha escrito nada.");

    m.dialogs.paths = {file};
    QTimer::singleShot(0, [&] {
      m.Trigger("mnuLoadImage");  // its menu is off: nothing happens
      QVERIFY(!m.window.close());
    });
    m.dialogs.log.clear();
    m.Trigger("Play");
    QVERIFY(!m.window.isVisible());
    QVERIFY2(!std::filesystem::exists(file), "the page is written whole or not at all");
  }
};

QTEST_MAIN(FrmWebTest)
#include "FrmWebTest.moc"
