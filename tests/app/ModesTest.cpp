// The six modes and the options panel, driven in the real window.
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "app/MarcoDeImagen.h"
#include "platform/qt/Muestra.h"
#include "programa/Dibujar.h"
#include "programa/Modos.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/FigletFont.h"
#include "tests/support/MainWindow.h"

using namespace pixmosa;
using test::Drawn;
using test::Find;

namespace {

const std::string kStale = "a mano";

// A window with a picture that every method converts differently: half black, half white, a gray band.
struct Loaded : test::MainWindow {
  explicit Loaded(const std::filesystem::path& fontFolder = {}) : test::MainWindow(fontFolder) {
    Picture p = Picture::Filled(400, 400, kWhite);
    std::uint32_t* to = p.Writable();
    for (int i = 0; i < 400 * 130; ++i) to[i] = 0xFF808080U;
    for (int y = 200; y < 300; ++y)
      for (int x = 100; x < 300; ++x) to[y * 400 + x] = 0xFF000000U;
    Load(p);
  }

  void Choose(int mode) { Trigger(kModos[static_cast<std::size_t>(mode)]); }

  // What a method makes of the picture with the controls as they are.
  std::string Expected(int method) {
    BasAscii ascii = program.basAscii;
    GenerateAscii(ascii, program.ajustes, program.imagen.picMain, method);
    return ascii.ProducedText;
  }

  // Does something to a control and lets the window follow.
  template <typename Do>
  void Do_(Do work) {
    Area().PonerTexto(kStale);
    work();
    QCoreApplication::processEvents();
    QTest::qWait(1);
  }

  // By choosing again the palette that is chosen.
  void Regenerate() {
    emit Find<QComboBox>(window, "cboPaletas").activated(0);
    QCoreApplication::processEvents();
  }

  bool Shown(const char* name) { return Find<QWidget>(window, name).isVisible(); }
};

}  // namespace

class ModesTest : public QObject {
  Q_OBJECT

 private slots:
  void EachModeShowsItsGroups();
  void TheSelectorShowsTheModeAndNothingJumps();
  void PlayRunsTheModesMethod();
  void OptionsRegenerateWithGrayscaleWhateverTheMode();
  void SizeRegeneratesWithTheModesMethod();
  void LabelsSetTheirSliders();
  void NothingRegeneratesWithoutAPicture();
  void DraggingRunsOnceWithTheLastValue();
  void SwatchesColourTheText();
  void WebPaletteEnablesItsText();
  void FillReachesTheOutlines();
  void BlackAndWhiteButtonChangesThePictureAtOnce();
  void GeneratingKeepsThePlaceAndTheAnimationNeedsNoPreview();
  void BannersAreTheProducedText();
  void EmptyOutlinesOfferBlackAndWhite();
  void SettingsAreWritten();
};

void ModesTest::EachModeShowsItsGroups() {
  Loaded m;
  const char* groups[] = {"mrcAlgoritmo(0)", "mrcAlgoritmo(1)", "mrcAscii(0)", "mrcAscii(1)",
                          "mrcAscii(2)",     "mrcweb(0)",       "mrcweb(1)"};
  struct Row {
    int mode;
    const char* shown;
  };  // one letter a group: x visible
  for (const Row& r : {Row{0, "x.x...."},
                       {1, "x..x..."},
                       {2, "x...x.."},
                       {4, ".x...x."},
                       {5, ".x....x"},
                       {3, ".x....x"},
                       {0, "x.x...."},
                       {3, "x.x...."}}) {
    m.Choose(r.mode);
    QCOMPARE(Find<QLabel>(m.window, "lblModo").text(),
             QString::fromUtf8(kModos[static_cast<std::size_t>(r.mode)]));
    if (r.mode == 3) continue;  // the banner's own panel stands in front; the groups stay as they were
    for (std::size_t i = 0; i < 7; ++i)
      QVERIFY2(m.Shown(groups[i]) == (r.shown[i] == 'x'), (std::to_string(r.mode) + " " + groups[i]).c_str());
  }
}

void ModesTest::TheSelectorShowsTheModeAndNothingJumps() {
  Loaded m;
  auto& button = Find<QToolButton>(m.window, "Modo");
  const QRect frame = Find<QWidget>(m.window, "picMarco").geometry();
  const QPoint size = Find<QWidget>(m.window, "sldTamaño").mapTo(&m.window, QPoint());
  QStringList sentences;
  for (const char* name : kModos) {
    const auto& item = Find<QAction>(m.window, name);
    // By the keyboard: the button opens its menu.
    QTimer::singleShot(0, &m.window, [&] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      QVERIFY(menu);
      menu->setActiveAction(&Find<QAction>(m.window, name));
      QTest::keyClick(menu, Qt::Key_Return);
    });
    QTest::keyClick(&button, Qt::Key_Space);
    QCOMPARE(Find<QLabel>(m.window, "lblModo").text(), QString::fromUtf8(name));
    QVERIFY2(button.icon().pixmap(16).toImage() == item.icon().pixmap(16).toImage(), name);
    QVERIFY2(!item.icon().isNull() && button.toolTip().startsWith(item.statusTip()), name);
    sentences += item.statusTip();
    QTest::qWait(1);
    QCOMPARE(Find<QWidget>(m.window, "picMarco").geometry(), frame);
    if (m.Shown("sldTamaño")) QCOMPARE(Find<QWidget>(m.window, "sldTamaño").mapTo(&m.window, QPoint()), size);
  }
  sentences.removeAll(QString());
  sentences.removeDuplicates();
  QCOMPARE(sentences.size(), 6);
}

void ModesTest::PlayRunsTheModesMethod() {
  Loaded m;
  for (const int mode : {0, 1, 2}) {
    m.Choose(mode);
    m.Trigger("Play");
    QVERIFY(m.Text() == m.Expected(mode));
  }
  QVERIFY(m.Expected(0) != m.Expected(1) && m.Expected(1) != m.Expected(2));
}

void ModesTest::OptionsRegenerateWithGrayscaleWhateverTheMode() {
  Loaded m;
  auto& preview = Find<QCheckBox>(m.window, "chkAsciiPrev");
  m.Choose(kModoBordes);
  m.Do_([&] { Find<QComboBox>(m.window, "cboPaletas").setCurrentIndex(3); });
  QVERIFY(m.Text() == m.Expected(kGrayscale));
  QVERIFY(m.Text().find_first_not_of("0123456789\r\n") == std::string::npos);
  m.Do_([&] { emit Find<QComboBox>(m.window, "cboPaletas").activated(3); });  // the same item once more
  QVERIFY(m.Text() == m.Expected(kGrayscale));

  m.Do_([&] { Find<QComboBox>(m.window, "cboPaletas").setCurrentIndex(1); });
  m.Do_([&] { Find<QCheckBox>(m.window, "chkAsciiNegativo").click(); });
  QCOMPARE(m.program.basAscii.CountedColour, kBlack);
  QVERIFY(m.Text() == m.Expected(kGrayscale));
  QVERIFY2(m.Text().find('\x1F') != std::string::npos, "black is code 31 in the negative");
  m.Do_([&] { Find<QCheckBox>(m.window, "chkAsciiNegativo").click(); });
  QCOMPARE(m.program.basAscii.CountedColour, kWhite);

  preview.setChecked(true);
  m.Choose(kModoMosaico);
  m.Do_([&] { Find<QSlider>(m.window, "sldLuminosidad").setValue(40); });
  QVERIFY(!preview.isChecked());
  QCOMPARE(m.program.ajustes.luminosity, 40);
  QVERIFY(m.Text() == m.Expected(kGrayscale));
}

void ModesTest::SizeRegeneratesWithTheModesMethod() {
  Loaded m;
  auto& size = Find<QSlider>(m.window, "sldTamaño");
  auto& preview = Find<QCheckBox>(m.window, "chkAsciiPrev");
  QCOMPARE(size.minimum(), 1);
  QCOMPARE(size.maximum(), 198);
  QCOMPARE(size.value(), 100);
  const int whole = m.program.basAscii.AsciiColumns;
  for (const int mode : {0, 1, 2, 4, 5}) {
    m.Choose(mode);
    preview.setChecked(true);
    m.Do_([&] { size.setValue(50 + 2 * mode); });
    QVERIFY(!preview.isChecked());
    QCOMPARE(m.program.basAscii.AsciiColumns, RoundHalfEven((50 + 2 * mode) * whole / 100.0));
    QVERIFY(m.Text() == (mode <= 2 ? m.Expected(mode) : kStale));
  }
}

void ModesTest::LabelsSetTheirSliders() {
  Loaded m;
  auto& size = Find<QSlider>(m.window, "sldTamaño");
  const int whole = m.program.basAscii.AsciiColumns;
  struct Row {
    const char* label;
    int value;
  };
  for (const Row& r : {Row{"lblTamañoAsciiMin", 1}, {"lblTamañoAsciiMax", 198}, {"lbl100", 100}}) {
    m.Do_([&] { QTest::mouseClick(&Find<QToolButton>(m.window, r.label), Qt::LeftButton); });
    QCOMPARE(size.value(), r.value);
    QCOMPARE(m.program.basAscii.AsciiColumns, std::max(1, RoundHalfEven(r.value * whole / 100.0)));
    QCOMPARE(m.Text(), kStale);  // no regeneration
  }
  Find<QSlider>(m.window, "sldLuminosidad").setValue(-30);
  Find<QToolButton>(m.window, "Label1").click();
  QCOMPARE(Find<QSlider>(m.window, "sldLuminosidad").value(), 0);
  m.Choose(kModoMosaico);
  auto& detail = Find<QSlider>(m.window, "sldWTamaño");
  Find<QToolButton>(m.window, "lblTamañowebMax").click();
  QCOMPARE(detail.value(), 5);
  Find<QToolButton>(m.window, "lblTamañowebMin").click();
  QCOMPARE(detail.value(), 1);
}

void ModesTest::NothingRegeneratesWithoutAPicture() {
  test::MainWindow m;
  m.Area().PonerTexto(kStale);
  Find<QComboBox>(m.window, "cboPaletas").setCurrentIndex(2);
  Find<QCheckBox>(m.window, "chkAsciiNegativo").click();
  Find<QSlider>(m.window, "sldLuminosidad").setValue(10);
  Find<QSlider>(m.window, "sldTamaño").setValue(10);
  QTest::qWait(5);
  QCOMPARE(m.Text(), kStale);
  QCOMPARE(m.program.basAscii.PaletteFirst, 65.0F);
}

void ModesTest::DraggingRunsOnceWithTheLastValue() {
  Loaded m;
  auto& light = Find<QSlider>(m.window, "sldLuminosidad");
  int changes = 0;
  connect(&m.Area(), &QPlainTextEdit::textChanged, this, [&] { ++changes; });
  for (int v = 1; v <= 50; ++v) light.setValue(v);
  QTest::qWait(5);
  QCOMPARE(changes, 1);
  QVERIFY(m.Text() == m.Expected(kGrayscale));
}

void ModesTest::SwatchesColourTheText() {
  test::MainWindow m;
  m.dialogs.colours = {kNoColour, Rgb(1, 2, 3), Rgb(200, 100, 50)};
  auto& back = Find<QPushButton>(m.window, "lblAsciiBackcolor");
  back.click();
  QCOMPARE(m.Area().palette().color(QPalette::Base), QColor(Qt::white));
  back.click();
  Find<QPushButton>(m.window, "lblAsciiForeColor").click();
  QCOMPARE(m.Area().palette().color(QPalette::Base), QColor(1, 2, 3));
  QCOMPARE(m.Area().palette().color(QPalette::Text), QColor(200, 100, 50));
  QCOMPARE(m.dialogs.log,
           (std::vector<std::string>{"ChooseColour|16777215", "ChooseColour|16777215", "ChooseColour|0"}));
}

void ModesTest::WebPaletteEnablesItsText() {
  test::MainWindow m;
  m.Trigger(kModos[kModoMosaico]);
  auto& palette = Find<QComboBox>(m.window, "cboPaletaWeb");
  auto& text = Find<QLineEdit>(m.window, "txtPaletaWeb");
  QVERIFY(!text.isEnabled());
  m.window.activateWindow();
  palette.setFocus();
  QTest::keyClick(&palette, Qt::Key_Down);
  QVERIFY(text.isEnabled());
  QCOMPARE(m.window.focusWidget(), &text);
  palette.setFocus();
  QTest::keyClick(&palette, Qt::Key_Up);
  QVERIFY(!text.isEnabled());
  palette.setCurrentIndex(1);
  QVERIFY(text.isEnabled());
}

void ModesTest::FillReachesTheOutlines() {
  Loaded m;
  m.Choose(kModoBordes);
  m.Trigger("Play");
  QVERIFY(m.Text().find(':') == std::string::npos);
  Find<QCheckBox>(m.window, "chkRelleno").click();
  m.Trigger("Play");
  QVERIFY(m.Text().find(":::::") != std::string::npos);
}

void ModesTest::BlackAndWhiteButtonChangesThePictureAtOnce() {
  test::MainWindow m;
  auto& button = Find<QPushButton>(m.window, "cmdBN");
  button.click();  // without a picture: nothing
  m.Load(test::Grays({{0, 149, 150, 255}}));
  m.Area().PonerTexto(kStale);
  button.click();
  QCOMPARE(test::Levels(m.program.imagen.picMain), (std::vector<std::vector<int>>{{0, 0, 255, 255}}));
  QCOMPARE(test::Levels(m.program.imagen.picUndo), (std::vector<std::vector<int>>{{0, 149, 150, 255}}));
  QCOMPARE(m.Text(), kStale);
  QVERIFY2(!m.window.findChild<QWidget*>("frmEfectConfig"), "the effect runs without its dialog");
}

void ModesTest::GeneratingKeepsThePlaceAndTheAnimationNeedsNoPreview() {
  Loaded m;
  Find<QSlider>(m.window, "sldTamaño").setValue(198);
  m.Trigger("Play");
  m.Area().verticalScrollBar()->setValue(20);
  m.Area().horizontalScrollBar()->setValue(30);
  m.Trigger("Play");
  QCOMPARE(m.Area().verticalScrollBar()->value(), 20);
  QCOMPARE(m.Area().horizontalScrollBar()->value(), 30);

  Find<QCheckBox>(m.window, "chkAsciiPrev").setChecked(true);
  Find<QCheckBox>(m.window, "chkAnimArt").setChecked(true);
  m.Regenerate();
  QVERIFY(!m.window.findChild<QWidget*>("frmPreview"));
  Find<QCheckBox>(m.window, "chkAnimArt").setChecked(false);
  m.Regenerate();
  QVERIFY(m.window.findChild<QWidget*>("frmPreview"));
}

void ModesTest::BannersAreTheProducedText() {
  test::TestFolder fonts;
  std::filesystem::create_directory(fonts.Path() / "Fonts");
  EscribirArchivo(fonts.File("Fonts/alfa.flf"), test::OwnFont());
  Loaded m(fonts.Path() / "Fonts");
  m.Trigger("Play");
  QCOMPARE(Find<QLabel>(m.window, "Figlet").text(), "Fuentes FigLet encontradas (1)");
  m.Choose(kModoTexto);
  const std::string banner = "P1i1x1m1o1s1a1\r\nP2i2x2m2o2s2a2\r\n\r\n\r\n";
  QCOMPARE(m.Text(), banner);
  m.Trigger("mnuClipboard");
  QCOMPARE(m.shell.clipboard, banner);
  m.Trigger("VistaPrevia");
  QCOMPARE(Find<AreaDeTexto>(Find<QDialog>(m.window, "frmPreview"), "txtAscii").Texto(), banner);

  const auto side = [&] { return m.Area().document()->defaultTextOption().alignment(); };
  Find<QAction>(Find<QWidget>(m.window, "frmFiglet"), "Centrado").trigger();
  QVERIFY(side().testFlag(Qt::AlignHCenter));
  m.Choose(kModoGrises);
  m.Trigger("Play");
  QVERIFY2(side().testFlag(Qt::AlignLeft), "a picture's text shows from the left");
  m.Choose(kModoTexto);
  QTest::keyClicks(&Find<AreaDeTexto>(m.window, "txtFigText"), "P");
  QVERIFY2(side().testFlag(Qt::AlignHCenter), "the next banner lies as the button says");

  QVERIFY2(!m.window.findChild<MarcoDeImagen*>()->isVisible(), "the fonts have the picture's place");
  m.Trigger("mnuMarcoLinea");
  m.Trigger("mnuArcoiris");
  QVERIFY(m.program.basAscii.ProducedText.starts_with("+-----"));
  QVERIFY(m.Area().Utf8().starts_with("┌─────"));
  m.Trigger("mnuClipboard");
  QCOMPARE(m.shell.clipboard, m.Area().Utf8());
  const Dibujo drawn = DibujoDeVentana(m.program, m.Area().Utf8());
  QCOMPARE(drawn.filas[0].front().tinta, Rgb(230, 0, 0));
  QCOMPARE(drawn.filas[0].back().tinta, Rgb(230, 0, 230));
  QVERIFY(OpcionesDeVentana(m.program).color);
  m.Choose(kModoGrises);
  QVERIFY(m.window.findChild<MarcoDeImagen*>()->isVisible());
  m.Trigger("Play");
  QVERIFY(!OpcionesDeVentana(m.program).color);
}

void ModesTest::EmptyOutlinesOfferBlackAndWhite() {
  test::MainWindow m;
  m.window.resize(1008, 640);
  m.Load(test::Grays({{200, 200, 200, 200}, {200, 9, 9, 200}, {200, 200, 200, 200}, {200, 200, 200, 200}}));
  m.Trigger(kModos[kModoBordes]);
  m.Trigger("Play");
  auto& link = Find<QLabel>(m.window, "lblEnlace");
  QVERIFY(link.text().startsWith("El dibujo ha salido en blanco"));
  auto& panel = Find<QLabel>(m.window, "Figlet");
  QTest::qWait(1);
  QVERIFY2(link.width() >= link.sizeHint().width() && !panel.isVisible(), "the link is within reach");
  emit link.linkActivated("#");
  QVERIFY(panel.isVisible());
  QCOMPARE(test::Levels(m.program.imagen.picMain)[1], (std::vector<int>{255, 0, 0, 255}));
  QVERIFY(m.Text().find_first_not_of(" \r\n") != std::string::npos);
}

void ModesTest::SettingsAreWritten() {
  test::MainWindow m;
  m.program.carpeta = m.folder.Path();
  Find<QSlider>(m.window, "sldTamaño").setValue(150);
  Find<QSlider>(m.window, "sldLuminosidad").setValue(-7);
  Find<QComboBox>(m.window, "cboPaletas").setCurrentIndex(2);
  Find<QCheckBox>(m.window, "chkAsciiNegativo").click();
  Find<QCheckBox>(m.window, "chkAsciiPrev").click();
  m.dialogs.colours = {255};
  Find<QPushButton>(m.window, "lblAsciiBackcolor").click();
  m.Trigger("mnuGrabarIni");
  QCOMPARE(LeerArchivo(m.folder.File("KTV.ini")),
           "[Main]\r\nColorFondoAscii=255\r\nColorTextoAscii=0\r\nTama\xF1oAscii=150\r\nPaletaAscii=2\r\n"
           "LuminosidadAscii=-7\r\nAsciiNegativado=1\r\nPaletaWeb=0\r\nPreviewAscii=1\r\n"
           "[Fuente]\r\nNombre=Lucida Console\r\nTama\xF1o=6\r\n");
  m.program.carpeta = "/no/such/folder";
  m.dialogs.log.clear();
  m.Trigger("mnuGrabarIni");
  QVERIFY2(m.dialogs.log.empty(), "a folder that cannot be written is silent");
}

QTEST_MAIN(ModesTest)
#include "ModesTest.moc"
