#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDropEvent>
#include <QFocusEvent>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <QTextDocument>
#include <QTimer>
#include <QWheelEvent>

#include "app/MarcoDeImagen.h"
#include "app/frmPreview.h"
#include "editor/frmEditor.h"
#include "programa/Dibujar.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/MainWindow.h"

using namespace pixmosa;
using test::Find;
using test::Grays;
using Log = std::vector<std::string>;

namespace {

// The dialog of pictures: the usual kinds first, then every kind that can be read.
const std::string kOpen = [] {
  std::string asked =
      "OpenFile|Seleccione una imagen...|Imagenes "
      "(*.bmp;*.gif;*.jpg;*.ico;*.wmf)|*.bmp;*.gif;*.jpg;*.ico;*.wmf|Todas las imágenes que se pueden leer|";
  for (const std::string& ending : QtPictureCodec().FormatosLegibles()) asked += "*." + ending + ";";
  asked.pop_back();
  return asked;
}();
const std::string kRegenerate =
    "Ask||Se ha cambiado la fuente. Para un resultado óptimo es convenientecrear de nuevo el AsciiArt\r\n"
    "¿Desea generarlo ahora?";

QString LabelText(const QObject& root, const char* name) {
  return Find<QLabel>(root, name).text();
}

}  // namespace

class MainWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void StartsWithItsDefaults();
  void PlayWithoutPictureAsksFirst();
  void PlaysALoadedPicture();
  void PreviewFollowsTheCheckBox();
  void FailedLoadsLeaveEverything_data();
  void FailedLoadsLeaveEverything();
  void SaysWhatIsWrongWithAPictureThatLoads();
  void DroppedPictureLoads();
  void SavesTheEditedTextAndCopiesTheGenerated();
  void SaveSaysWhatIsWrong();
  void WhatHasNothingToWorkOnIsOff();
  void AsksBeforeATextThatNobodyReads();
  void ReplacedHandEditsComeBack();
  void WideTextAlwaysScrolls();
  void EveryCodeGoesThroughTheTextArea();
  void FontDialogMeasuresAgainAndPrompts();
  void FixedFontListAppliesTheChosenRow();
  void ScrollBarsMoveThePictureInSteps();
  void OtherWindowsOpen();
  void EditorSendsItsDrawingBack();
  void EditorGivesBackTheTextOfEveryMethod();
  void SystemPanelShowsTheRegistry();
};

void MainWindowTest::StartsWithItsDefaults() {
  test::MainWindow m;
  QCOMPARE(LabelText(m.window, "Fuente"), "Fuente: Lucida Console");
  QCOMPARE(LabelText(m.window, "Tamaño"), "Tamaño: 6");
  QCOMPARE(LabelText(m.window, "Modo"), "MODO ASCIIART");
  QCOMPARE(LabelText(m.window, "lblModo"), "AsciiArt -> Escala de grises");
  const BasAscii& ascii = m.program.basAscii;
  QCOMPARE(ascii.AsciiColumns, m.surface.ScreenWidth() / ascii.CellWidth);
  QVERIFY(ascii.BrightnessMin < ascii.BrightnessMax);
}

void MainWindowTest::PlayWithoutPictureAsksFirst() {
  test::MainWindow m;
  m.dialogs.answers = {false, true};
  m.Trigger("Play");
  QCOMPARE(m.dialogs.log, Log{"Ask||Antes debe cargar una imagen\r\n¿Desea cargarla ahora?"});
  m.Trigger("Play");
  QCOMPARE(m.dialogs.log.back(), kOpen);
  QVERIFY(!HayImagen(m.program));
}

void MainWindowTest::PlaysALoadedPicture() {
  test::MainWindow m;
  m.Load(Picture::Filled(40, 30, kWhite));
  QVERIFY(HayImagen(m.program));
  m.Trigger("Play");
  const BasAscii& ascii = m.program.basAscii;
  const auto columns = static_cast<std::size_t>(ascii.AsciiColumns);
  QCOMPARE(m.Text().substr(0, columns + 2), std::string(columns, ' ') + "\r\n");
  QCOMPARE(m.Text(), ascii.ProducedText);
}

void MainWindowTest::PreviewFollowsTheCheckBox() {
  test::MainWindow m;
  m.Trigger("VistaPrevia");
  QVERIFY(!m.window.findChild<frmPreview*>());
  m.Load(Grays({{0, 255}}));
  m.Trigger("Play");
  QVERIFY(!m.window.findChild<frmPreview*>());
  Find<QCheckBox>(m.window, "chkAsciiPrev").click();
  m.Trigger("Play");
  auto& preview = Find<frmPreview>(m.window, "frmPreview");
  QVERIFY(preview.isVisible());
  QCOMPARE(Find<AreaDeTexto>(preview, "txtAscii").Texto(), m.Text());
}

void MainWindowTest::FailedLoadsLeaveEverything_data() {
  QTest::addColumn<QByteArray>("bytes");
  QTest::newRow("empty") << QByteArray();
  QTest::newRow("not a picture") << QByteArray("hola, esto no es una imagen");
  QTest::newRow("cut BMP") << QByteArray::fromHex(
      "424d360c0000000000003600000028000000200000002000000001001800000000000000000000000000000000000000000000"
      "0000000102");
  QTest::newRow("absurdly large BMP") << QByteArray::fromHex(
      "424d3600000000000000360000002800000000000f4200000f4201001800000000000000000000000000000000000000000000"
      "000000");
}

void MainWindowTest::FailedLoadsLeaveEverything() {
  QFETCH(QByteArray, bytes);
  test::MainWindow m;
  m.Load(Grays({{0, 255}, {255, 0}}));
  m.Trigger("Play");
  const std::string text = m.Text();
  const ImagenDeTrabajo before = m.program.imagen;
  m.dialogs.log.clear();
  const std::string bad = m.folder.File("mala.bmp");
  EscribirArchivo(bad, bytes.toStdString());
  for (const std::string& path : {bad, m.folder.Path().string(), m.folder.File("no-existe.gif")}) {
    m.dialogs.paths = {path};
    m.Trigger("CargarImagen");
  }
  const std::string failed = "Fail|Error en la carga|No se ha podido cargar la imagen";
  QCOMPARE(m.dialogs.log, (Log{kOpen, failed, kOpen, failed, kOpen, failed}));
  QCOMPARE(m.program.imagen.picMain.Pixels(), before.picMain.Pixels());
  QCOMPARE(m.program.imagen.picUndo.Pixels(), before.picUndo.Pixels());
  QCOMPARE(m.Text(), text);
  QVERIFY2(m.dialogs.details.back().find("no-existe.gif") != std::string::npos, "the reason stands below");
}

void MainWindowTest::SaysWhatIsWrongWithAPictureThatLoads() {
  test::MainWindow m;
  const std::string file = m.folder.File("a&b.svg");
  EscribirArchivo(
      file,
      R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="9" height="9">)"
      R"(<image width="9" height="9" xlink:href="no"/></svg>)");
  m.dialogs.paths = {file};
  m.Trigger("CargarImagen");
  const auto& label = Find<QLabel>(m.window, "lblEnlace");
  QTextDocument shown;  // as the label shows it
  if (label.textFormat() == Qt::RichText || Qt::mightBeRichText(label.text())) {
    shown.setHtml(label.text());
  } else {
    shown.setPlainText(label.text());
  }
  QCOMPARE(shown.toPlainText().trimmed(),
           QString("No se ha podido dibujar todo lo que contiene la imagen \"%1\".").arg(file.c_str()));
}

void MainWindowTest::DroppedPictureLoads() {
  test::MainWindow m;
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QString::fromStdString(m.Save(Grays({{1, 2, 3}}))))});
  QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&m.window, &enter);
  QVERIFY(enter.isAccepted());
  QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&m.window, &drop);
  QCOMPARE(m.program.imagen.picMain.Width(), 3);
  AreaDeTexto area;
  QDragEnterEvent over({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(area.viewport(), &over);
  QVERIFY2(!over.isAccepted(), "a text area leaves a file to the window around");
}

void MainWindowTest::SavesTheEditedTextAndCopiesTheGenerated() {
  test::MainWindow m;
  const std::string file = m.folder.File("dibujo.txt");
  m.dialogs.paths = {file};
  m.Trigger("Guardar");
  m.Trigger("mnuClipboard");
  QVERIFY2(m.dialogs.log.empty(), "an empty text is neither saved nor copied");

  m.dialogs.paths.clear();
  m.Load(Grays({{0, 255}}));
  m.Trigger("Play");
  QTest::keyClicks(&m.Area(), "hola");
  QVERIFY(m.Text().starts_with("hola"));
  m.dialogs.paths = {file};
  m.dialogs.log.clear();
  m.Trigger("Guardar");
  m.Trigger("mnuClipboard");
  QCOMPARE(m.dialogs.log,
           (Log{"SaveFile|Guardar el AsciiArt...|*.txt|txt",
                "Inform||Dibujo copiado en el portapapeles.\r\nUsar fuente: Lucida Console. Tamaño: 6"}));
  QCOMPARE(LeerArchivo(file),
           "Ascii Art generado por Pixmosa. Fuente: Lucida Console Tama\xF1o: 6\r\n" + m.Text() + "\r\n");
  QCOMPARE(m.shell.clipboard, m.program.basAscii.ProducedText);
  QVERIFY(!m.shell.clipboard.starts_with("hola"));
}

void MainWindowTest::SaveSaysWhatIsWrong() {
  test::MainWindow m;
  m.Area().PonerTexto("x");
  m.dialogs.paths = {"/dev/full", ""};
  m.Trigger("Guardar");
  QCOMPARE(m.dialogs.log.back(),
           "Fail|Error al guardar|No se ha podido escribir \"/dev/full\": no queda espacio en el disco.");
  m.Trigger("Guardar");
  QCOMPARE(m.dialogs.log.back(), "SaveFile|Guardar el AsciiArt...|*.txt|txt");
}

void MainWindowTest::AsksBeforeATextThatNobodyReads() {
  test::MainWindow m;
  m.Load(Picture::Filled(1, 2000, kBlack));
  m.dialogs.log.clear();
  m.Trigger("Play");
  QVERIFY(m.dialogs.log.size() == 1 && m.dialogs.log[0].starts_with("Ask||El dibujo tendría "));
  Find<QSlider>(m.window, "sldLuminosidad").setValue(5);
  QTest::qWait(1);
  QVERIFY(m.Text().empty() && LabelText(m.window, "lblEnlace").contains("no se genera solo"));
  m.Load(Picture::Filled(1, 1'000'000, kBlack));
  m.Trigger("Play");
  QVERIFY(m.dialogs.log.back().starts_with("Fail||El texto sería demasiado grande: "));
}

void MainWindowTest::WhatHasNothingToWorkOnIsOff() {
  test::MainWindow m;
  const auto on = [&](const char* name) { return Find<QAction>(m.window, name).isEnabled(); };
  for (const char* name :
       {"mnuNegativo", "mnuHFlip", "mnuUndoPicture", "Guardar", "VistaPrevia", "mnuClipboard"})
    QVERIFY2(!on(name), name);
  QVERIFY(on("Play") && on("mnuImagePreview") && on("mnuEditor"));
  m.Load(Grays({{0, 255}}));
  QVERIFY(on("mnuNegativo") && !on("Guardar"));
  m.Trigger("Play");
  QVERIFY(on("Guardar") && on("VistaPrevia") && on("mnuClipboard"));
}

void MainWindowTest::ReplacedHandEditsComeBack() {
  test::MainWindow m;
  m.Load(Grays({{0, 255}, {255, 0}}));
  m.Trigger("Play");
  m.Area().setFocus();
  QTest::keyClicks(&m.Area(), "hola");
  const std::string edited = m.Text();
  for (const int light : {10, 20, 30}) {
    Find<QSlider>(m.window, "sldLuminosidad").setValue(light);
    QCoreApplication::processEvents();
    QTest::qWait(1);
  }
  QVERIFY(m.Text() != edited);
  QVERIFY(LabelText(m.window, "lblEnlace").startsWith("El texto editado a mano se ha sustituido."));
  QTest::keyClick(&m.Area(), Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(m.Text(), edited);

  m.dialogs.respuestas = {Respuesta::Cancelar, Respuesta::Guardar, Respuesta::Guardar};
  m.dialogs.paths = {"", m.folder.File("a.txt")};
  m.dialogs.log.clear();
  QVERIFY(!m.window.close());
  QCOMPARE(m.dialogs.log, Log{"AskToSave|Pixmosa|El texto editado a mano no se ha guardado."});
  QVERIFY2(!m.window.close(), "no file was named");
  QVERIFY(m.window.close());
  QVERIFY(LeerArchivo(m.folder.File("a.txt")).find("hola") != std::string::npos);
}

void MainWindowTest::WideTextAlwaysScrolls() {
  AreaDeTexto area;
  area.resize(200, 100);
  area.show();
  area.PonerTexto("corta\r\nno");
  area.Alinear(Qt::AlignHCenter);
  QVERIFY(area.cursorRect().x() > 40);
  area.PonerTexto(std::string(500, 'x') + "\r\nno");
  QTest::qWait(1);
  QVERIFY(area.horizontalScrollBar()->maximum() > 0);
  area.horizontalScrollBar()->setValue(0);
  QVERIFY2(area.cursorRect().x() >= 0, "its left part is reached");
}

void MainWindowTest::EveryCodeGoesThroughTheTextArea() {
  std::string all = "\xAD\xA0 ";
  for (int c = 1; c < 256; ++c) all += static_cast<char>(c);
  all += "\r\n\r\n\r\r\n\n\x1F\x1F\r\n";
  AreaDeTexto area;
  area.PonerTexto(all);
  QCOMPARE(area.Texto(), all);
  QTest::keyClick(&area, Qt::Key_Return, Qt::ShiftModifier);
  QCOMPARE(area.Texto(), "\r\n" + all);
  area.PonerTexto("");
  QVERIFY(area.EstaVacia());
  area.insertPlainText(QString::fromUtf8("a≠😀ñ"));
  QCOMPARE(area.Texto(), "a??\xF1");
}

void MainWindowTest::FontDialogMeasuresAgainAndPrompts() {
  test::MainWindow m;
  m.Trigger("Fuentes");
  QCOMPARE(m.dialogs.log, Log{"ChooseFont|Lucida Console|6"});
  const int narrow = m.program.basAscii.CellWidth, columns = m.program.basAscii.AsciiColumns;

  m.dialogs.fonts = {{"DejaVu Sans Mono", -16}, {"DejaVu Sans Mono", -13}, {"DejaVu Sans Mono", 12}};
  m.Trigger("mnuFontsChange");
  QCOMPARE(LabelText(m.window, "Fuente"), "Fuente: DejaVu Sans Mono");
  QCOMPARE(LabelText(m.window, "Tamaño"), "Tamaño: 12");
  QVERIFY(m.program.basAscii.CellWidth > narrow);
  QVERIFY(m.program.basAscii.AsciiColumns < columns);
  QCOMPARE(m.dialogs.log.size(), 2U);  // no text, no prompt

  m.Load(Grays({{0, 255}}));
  m.Trigger("Play");
  const std::string text = m.Text();
  m.dialogs.answers = {true};
  m.Trigger("mnuFontsChange");
  QCOMPARE(m.program.ajustes.font.points, 9);
  QCOMPARE(m.dialogs.log.back(), kRegenerate);
  QVERIFY(m.Text() != text);

  m.dialogs.log.clear();
  m.Trigger("mnuFontsChange");  // 12 pixels are 9 points again: the same font, no prompt
  QCOMPARE(m.dialogs.log, Log{"ChooseFont|DejaVu Sans Mono|9"});
}

void MainWindowTest::FixedFontListAppliesTheChosenRow() {
  test::MainWindow m;
  const auto names = m.surface.ListFixedFonts();
  QTimer::singleShot(0, [&] {
    auto* list = QApplication::activeModalWidget();
    QCOMPARE(LabelText(*list, "lblFontCount"), QString("Fuentes encontradas: %1").arg(names.size()));
    auto& rows = Find<QListWidget>(*list, "lvwFuentes");
    QCOMPARE(rows.count(), static_cast<int>(names.size()));
    rows.setFocus();
    QApplication::sendEvent(&rows, std::make_unique<QFocusEvent>(QEvent::FocusIn).get());
    QCOMPARE(m.program.ajustes.font, Font());
    const auto* row = rows.findItems("DejaVu Sans Mono", Qt::MatchExactly).value(0);
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualItemRect(row).center());
    list->close();
  });
  m.Trigger("mnuFixedFonts");
  QCOMPARE(m.program.ajustes.font, (Font{"DejaVu Sans Mono", 6}));
  QCOMPARE(LabelText(m.window, "Fuente"), "Fuente: DejaVu Sans Mono");
}

void MainWindowTest::ScrollBarsMoveThePictureInSteps() {
  struct Row {
    int hidden, value, maximum, step, left;
  };
  for (const Row& r : {Row{680, 340, 680, 6, -336},
                       {681, 1, 2, 6, -336},
                       {680, 680, 680, 6, -678},
                       {5, 5, 5, 6, 0},
                       {250, 30, 100, 12, -72},
                       {0, 0, 0, 6, 0},
                       {-50, 1, 1, 6, 0}})
    QCOMPARE(MarcoDeImagen::Desplazamiento(r.hidden, r.value, r.maximum, r.step), r.left);

  test::MainWindow m;
  m.Load(Picture::Filled(1500, 1400, kWhite));
  m.Trigger("mnuAjustarImagen");
  auto& bar = Find<QScrollBar>(m.window, "HScroll1");
  bar.setValue(bar.maximum());
  const int hidden = 1500 - Find<QWidget>(m.window, "picMarco").width();
  QCOMPARE(Find<QWidget>(m.window, "picMain").x(), -(hidden / 6 * 6));
  // A touchpad's small turns add up to the same way as one turn of a wheel: three steps.
  bar.setValue(0);
  QWidget& frame = *Find<QWidget>(m.window, "picMarco").parentWidget();
  for (int i = 0; i < 40; ++i) {
    QWheelEvent turn({5, 5}, {5, 5}, {}, {-3, 0}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&frame, &turn);
  }
  QCOMPARE(bar.value(), 3 * 6);
  m.Load(Picture::Filled(20, 20, kWhite));
  QCOMPARE(Find<QWidget>(m.window, "picMain").pos(), QPoint(0, 0));
  QVERIFY(!bar.isEnabled());
}

void MainWindowTest::OtherWindowsOpen() {
  test::MainWindow m;
  m.shell.found = false;
  m.Trigger("mnuCharMap");
  QCOMPARE(m.dialogs.log.back(),
           "Fail|Mapa de caracteres|No se ha encontrado el mapa de caracteres del sistema.");
  m.Load(Picture::Filled(500, 400, kWhite));
  m.Trigger("mnuImagePreview");
  QCOMPARE(Find<QWidget>(Find<QDialog>(m.window, "frmImagePreview"), "picMain").size(), QSize(500, 400));
  QTimer::singleShot(0, [&] {
    auto* about = QApplication::activeModalWidget();
    emit Find<QLabel>(*about, "lblWeb").linkActivated("https://pixmosa.example");
    about->close();
  });
  m.Trigger("mnuAcercaDe");
  QCOMPARE(m.shell.log.back(), "Open|https://pixmosa.example");
}

void MainWindowTest::EditorSendsItsDrawingBack() {
  test::MainWindow m;
  m.Area().PonerTexto("hola");
  m.Trigger("mnuEditor");
  auto& editor = Find<frmEditor>(m.window, "frmEditor");
  QVERIFY(editor.isVisible());
  PintarCaracter(m.program.basEditor, 1, 3, 'x');
  Find<QAction>(editor, "mnuEnviar").trigger();
  QCOMPARE(m.Text(), "hola\r\n\r\nx");
  m.Area().Deshacer();
  QCOMPARE(m.Text(), "hola");
  m.program.carpetaDeDibujos = m.folder.Path();
  EscribirArchivo(m.folder.File("dibujo-99999999.pixmosa"), "");  // of no process
  const frmMain next(m.program, {m.dialogs, m.shell, m.registry});
  QVERIFY(Find<QLabel>(next, "lblEnlace").text().startsWith("El programa terminó de golpe"));
  m.program.carpetaDeDibujos.clear();
  PintarCaracter(m.program.basEditor, 1, 4, 'y');
  QVERIFY2(!m.window.close(), "the editor's unsent changes are asked about first");
  QVERIFY(m.dialogs.log.back().starts_with("AskToSave|Editor Ascii|"));
  QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
  m.Trigger("mnuEstadisticas");
}

void MainWindowTest::EditorGivesBackTheTextOfEveryMethod() {
  test::MainWindow m;
  Picture shades = Picture::Filled(300, 200, kWhite);
  for (int i = 0; i < 300 * 200; ++i)
    shades.Writable()[i] = PixelOfColour(Rgb(i % 251, i / 240, i % 300 / 2));
  m.Load(shades);
  PrepararRepertorio(m.program.basAscii, m.program.ajustes, m.surface);
  for (int method = kGrayscale; method <= kFormas; ++method) {
    GenerarDe(m.program, OrigenDe(shades).reducida, method);
    const std::string text = TextoEnUtf8(m.program.basAscii);
    QVERIFY(text.size() > 2000);
    m.Area().PonerUtf8(text);
    m.Trigger("mnuEditor");
    m.Area().PonerTexto("otro");
    m.Trigger("mnuEnviar");
    QCOMPARE(m.Area().Utf8(), text);
  }
}

void MainWindowTest::SystemPanelShowsTheRegistry() {
  test::MainWindow m;
  const std::string notepad = "Software\\Microsoft\\Notepad";
  const std::string explorer = "Software\\Microsoft\\Internet Explorer\\International\\Scripts\\3";
  m.registry.values[{notepad, "iPointSize"}] = {RegistryType::Number, std::string("\x5F\0\0\0", 4)};
  m.registry.values[{notepad, "fwrap"}] = {RegistryType::Number, std::string("\1\0\0\0", 4)};
  m.registry.values[{notepad, "lfFaceName"}] = {RegistryType::Text, std::string("Fixedsys\0", 9)};
  QTimer::singleShot(0, [&] {
    auto& panel = *QApplication::activeModalWidget();
    panel.setLocale(QLocale::Spanish);
    QCOMPARE(LabelText(panel, "lblNSize").replace(u',', u'.'), "9.5");
    QCOMPARE(LabelText(panel, "lblNFont"), "Fixedsys");
    auto& wrap = Find<QCheckBox>(panel, "chkNAjuste");
    QVERIFY(wrap.isChecked());
    wrap.click();
    QVERIFY2(wrap.isChecked(), "it goes back by itself");
    auto& size = Find<QComboBox>(panel, "cboESize");
    QCOMPARE(size.currentIndex(), -1);
    size.setFocus();
    for (int i = 0; i < 5; ++i) QTest::keyClick(&size, Qt::Key_Down);
    panel.close();
  });
  m.Trigger("mnuSistema");
  QCOMPARE((m.registry.values[{explorer, "IEFontSize"}].data), std::string("\4\0\0", 3));
}

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
