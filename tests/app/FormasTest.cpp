// The conversions of the grayscale mode and Unicode text, driven in the real window.
#include <cmath>

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QTimer>

#include "app/frmPreview.h"
#include "conversion/frmComparar.h"
#include "editor/frmEditor.h"
#include "tests/support/MainWindow.h"

using namespace pixmosa;
using test::Find;

namespace {

// Continuous tones: a light spot on a dark ground, 200 x 150 pixels.
Picture Foto() {
  Picture p(200, 150);
  std::uint32_t* to = p.Writable();
  for (int y = 0; y < 150; ++y)
    for (int x = 0; x < 200; ++x) {
      const int g = static_cast<int>(250 * std::exp(-((x - 70) * (x - 70) + (y - 60) * (y - 60)) / 5000.0));
      *to++ = PixelOfColour(Rgb(g, g, g));
    }
  return p;
}

struct Loaded : test::MainWindow {
  Loaded() {
    program.basAscii.AsciiColumns = 40;
    Load(Foto());
  }

  // A click, or keys typed into a list and Enter, and what follows from them.
  void Click(const char* name) {
    auto& button = Find<QAbstractButton>(window, name);
    QTest::mouseClick(&button, Qt::LeftButton, {}, {8, button.height() / 2});
    Follow();
  }
  // By the keyboard, from the list's first item downwards.
  void Choose(const char* conversion) {
    auto& list = Find<QComboBox>(window, "cboConversion");
    QTest::keyClick(&list, Qt::Key_Home);
    for (int i = 1; i < list.count() && list.currentText() != QString::fromUtf8(conversion); ++i)
      QTest::keyClick(&list, Qt::Key_Down);
    Follow();
  }
  void Type(const char* list, const char* text) {
    auto& field = *Find<QComboBox>(window, list).lineEdit();
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, QString::fromUtf8(text));
    QTest::keyClick(&field, Qt::Key_Return);
    Follow();
  }
  void Follow() {
    QCoreApplication::processEvents();
    QTest::qWait(1);
  }

  // What the driver makes of the picture with these settings and characters measured anew.
  std::string Expected(int method) {
    BasAscii ascii = program.basAscii;
    ascii.Medidos = {};
    PrepararRepertorio(ascii, program.ajustes, surface);
    GenerateAscii(ascii, program.ajustes, program.imagen.picMain, method);
    return TextoEnUtf8(ascii);
  }

  bool Shown(const char* name) { return Find<QWidget>(window, name).isVisible(); }
  QString Sentence() { return Find<QLabel>(window, "lblEnlace").text(); }
};

}  // namespace

class FormasTest : public QObject {
  Q_OBJECT

 private slots:
  void AConversionIsOneClickAndIsRemembered();
  void EverySettingReachesTheText();
  void CharactersAreOfThePaletteOfASetOrTyped();
  void ProportionSetsTheRows();
  void FormasIsOfferedOnceForAPhotograph();
  void TheOtherConversionIsTakenFromTheComparison();
  void UnicodeIsShownSavedAndCopied();
  void TypedUnicodeIsKept();
};

void FormasTest::AConversionIsOneClickAndIsRemembered() {
  Loaded m;
  struct Row {
    const char* conversion;
    int method;
    bool group, sharpness;
  };
  for (const Row& r : {Row{"Formas", kFormas, true, true},
                       {"Tono", kTono, true, false},
                       {"Clásica", kGrayscale, false, false},
                       {"Formas", kFormas, true, true}}) {
    m.Choose(r.conversion);
    QCOMPARE(m.program.ajustes.conversion, r.method);
    QVERIFY2(m.Area().Utf8() == m.Expected(r.method), r.conversion);
    QCOMPARE(m.Shown("mrcFormas"), r.group);
    QCOMPARE(m.Shown("mrcNitidez"), r.sharpness);
  }
  Programa later{m.surface, m.pictures, ProgramFolder()};
  frmMain window(m.Ready(later), {m.dialogs, m.shell, m.registry});
  QCOMPARE(later.ajustes.conversion, static_cast<int>(kFormas));
  QVERIFY(Find<QComboBox>(window, "cboConversion").currentText() == "Formas");
}

void FormasTest::EverySettingReachesTheText() {
  Loaded m;
  m.Choose("Formas");
  const std::string before = m.Text();
  AjustesDeFormas wanted;
  const auto changed = [&] {
    return m.program.ajustes.formas == wanted && m.Area().Utf8() == m.Expected(kFormas);
  };
  for (const auto& [slider, setting, label] : {std::tuple{"sldContrasteLocal", &wanted.contrasteLocal, "0 %"},
                                               std::tuple{"sldNitidez", &wanted.nitidez, "0"}}) {
    QTest::keyClick(&Find<QSlider>(m.window, slider), Qt::Key_Home);
    m.Follow();
    *setting = 0;
    QVERIFY2(changed() && m.Text() != before, slider);
    QCOMPARE(Find<QLabel>(m.window, QByteArray(slider).replace("sld", "lbl")).text(), label);
  }
  m.Click("chkAjustarTono");
  wanted.ajustarTono = false;
  QVERIFY(changed());
}

void FormasTest::CharactersAreOfThePaletteOfASetOrTyped() {
  Loaded m;
  m.Choose("Formas");
  const std::string palette = m.Text();
  m.Type("cboCaracteres", "bloques");
  QVERIFY(m.Area().Utf8() == m.Expected(kFormas) && m.Area().Utf8().find("█") != std::string::npos);
  QVERIFY(!m.Shown("lblCaracteres"));
  m.Choose("Clásica");
  QVERIFY2(m.Shown("lblCaracteres"), "the code page has no blocks");
  QVERIFY(m.Text().find_first_not_of(" ?\r\n") != std::string::npos && m.Area().CabeEnLaPagina());

  m.Type("cboCaracteres", "#.:");
  QVERIFY(!m.Shown("lblCaracteres"));
  for (const char* conversion : {"Clásica", "Tono", "Formas"}) {
    m.Choose(conversion);
    QVERIFY2(m.Text().find_first_not_of(" .:#\r\n") == std::string::npos, conversion);
  }
  m.Type("cboCaracteres", "   ");
  QVERIFY(m.Sentence().startsWith("Hace falta algún carácter que se vea"));
  QCOMPARE(Find<QComboBox>(m.window, "cboCaracteres").currentText(), "#.:");
  m.Type("cboCaracteres", "los de la paleta");
  QVERIFY(m.Text() == palette);
}

void FormasTest::ProportionSetsTheRows() {
  Loaded m;
  m.Choose("Formas");
  const int own = m.Area().blockCount();
  struct Row {
    const char* typed;
    int rows;               // of 200 x 150 pixels in 40 columns: 30 / proportion
    const char* left = "";  // what stands in the list instead of what is wrong
  };
  for (const Row& r : {Row{"terminal", 15},
                       {"web", 16},
                       {"1,5", 20},
                       {"mucha", 20, "1,5"},
                       {"2.5", 12},
                       {"0", 12, "2.5"},
                       {"3", 10},
                       {"la de la fuente", own}}) {
    m.Type("cboProporcion", r.typed);
    QVERIFY2(m.Area().blockCount() == r.rows, r.typed);
    const QString shown = Find<QComboBox>(m.window, "cboProporcion").currentText();
    QCOMPARE(shown, *r.left ? r.left : QString::fromUtf8(r.typed));
    QCOMPARE(m.Sentence().startsWith("La proporción es un número"), *r.left != 0);
  }
}

void FormasTest::FormasIsOfferedOnceForAPhotograph() {
  Loaded m;
  m.Load(Picture::Filled(200, 200, kBlack));
  m.Trigger("Play");
  QVERIFY2(m.Sentence().isEmpty(), "a drawing is as well served");
  m.Load(Foto());
  m.Trigger("Play");
  QVERIFY(m.Sentence().startsWith("De una fotografía, la conversión Formas"));
  emit Find<QLabel>(m.window, "lblEnlace").linkActivated("#");
  m.Follow();
  QVERIFY(Find<QComboBox>(m.window, "cboConversion").currentText() == "Formas" &&
          m.Area().Utf8() == m.Expected(kFormas));
  m.Choose("Clásica");
  m.Trigger("Play");
  QVERIFY(m.Sentence().isEmpty());
}

void FormasTest::TheOtherConversionIsTakenFromTheComparison() {
  Loaded m;
  m.Trigger(kModos[kModoBordes]);
  QTimer::singleShot(0, [&] {
    auto& dialog = Find<frmComparar>(m.window, "frmComparar");
    QTest::mouseClick(&Find<QPushButton>(dialog, "cmdUsarSegunda"), Qt::LeftButton);
  });
  m.Trigger("mnuComparar");
  m.Follow();
  QVERIFY(m.program.modo == kModoGrises &&
          Find<QComboBox>(m.window, "cboConversion").currentText() == "Formas");
  QVERIFY(m.Area().Utf8() == m.Expected(kFormas));
}

void FormasTest::UnicodeIsShownSavedAndCopied() {
  Loaded m;
  m.Choose("Formas");
  m.Type("cboCaracteres", "braille");
  const std::string art = m.Expected(kFormas);
  QVERIFY(m.Area().Utf8() == art && !m.Area().CabeEnLaPagina());
  // Its cells are as wide as those of the font, which may have no such characters.
  const QTextBlock row = m.Area().document()->begin();
  const int cell = m.program.basAscii.CellWidth;
  QCOMPARE(std::lround(row.layout()->lineAt(0).naturalTextWidth()), 40L * cell);
  const double height = row.layout()->lineAt(0).height();
  m.Area().PonerTexto("a");
  QCOMPARE(m.Area().document()->begin().layout()->lineAt(0).height(), height);
  m.Area().PonerUtf8(art);

  m.dialogs.paths = {m.folder.File("a.txt")};
  m.Trigger("mnuGuardar");
  QCOMPARE(LeerArchivo(m.folder.File("a.txt")),
           "Ascii Art generado por Pixmosa. Fuente: Lucida Console Tamaño: 6\r\n" + art + "\r\n");
  QVERIFY(
      m.Sentence().startsWith("Guardado en UTF-8: tiene caracteres que no están en la página de códigos."));
  m.Trigger("mnuClipboard");
  QCOMPARE(m.shell.clipboard, art);
  m.Trigger("VistaPrevia");
  QCOMPARE(Find<AreaDeTexto>(Find<frmPreview>(m.window, "frmPreview"), "txtAscii").Utf8(), art);

  m.Trigger("mnuEditor");
  m.Area().PonerTexto("otro");
  Find<QAction>(Find<frmEditor>(m.window, "frmEditor"), "mnuEnviar").trigger();
  QCOMPARE(m.Area().Utf8(), art);
}

void FormasTest::TypedUnicodeIsKept() {
  test::MainWindow m;
  m.Area().PonerTexto("ab\r\n\xAD\x01");
  QInputMethodEvent typed;
  typed.setCommitString(QString::fromUtf8("≠"));
  QApplication::sendEvent(&m.Area(), &typed);
  m.Area().insertPlainText(QString::fromUtf8("😀\uE0B0"));
  QCOMPARE(m.Area().Utf8(), "≠😀\uE0B0ab\r\n\u00AD\u0001");
  QCOMPARE(m.Text(), "???ab\r\n\xAD\x01");
  m.Area().selectAll();
  m.Area().copy();
  QCOMPARE(QApplication::clipboard()->text().toStdString(), "≠😀\uE0B0ab\r\n\u00AD\u0001");
  m.Area().PonerTexto("otro");
  m.Area().Deshacer();
  QVERIFY2(m.Area().Utf8().starts_with("≠😀\uE0B0ab"), "what was typed comes back");
  m.dialogs.paths = {m.folder.File("a.txt")};
  m.Trigger("mnuGuardar");
  QVERIFY(LeerArchivo(m.folder.File("a.txt")).find("≠😀\uE0B0ab\r\n") != std::string::npos);
}

QTEST_MAIN(FormasTest)
#include "FormasTest.moc"
