// "Generar al momento" in the real window.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QTest>

#include "tests/support/MainWindow.h"

using namespace pixmosa;
using test::Find;

namespace {

// White with a black band at the left, `band` pixels wide.
Picture Band(int band) {
  Picture p = Picture::Filled(200, 100, kWhite);
  for (int y = 0; y < 100; ++y) std::fill_n(p.Writable() + y * 200, band, 0xFF000000U);
  return p;
}

struct Window : test::MainWindow {
  Window() { program.basAscii.AsciiColumns = 40; }

  void Click(const char* box) {
    auto& button = Find<QCheckBox>(window, box);
    QTest::mouseClick(&button, Qt::LeftButton, {}, {8, button.height() / 2});
  }
  // The text is what this method makes of the picture as it is now.
  bool Drawn(int method) {
    BasAscii ascii = program.basAscii;
    GenerateAscii(ascii, program.ajustes, program.imagen.picMain, method);
    return Text() == ascii.ProducedText;
  }
  QString Sentence() { return Find<QLabel>(window, "lblEnlace").text(); }
};

}  // namespace

class AlMomentoTest : public QObject {
  Q_OBJECT

 private slots:
  void NothingIsDrawnUntilItIsWanted();
  void EveryChangeDraws();
  void WhatIsTooLargeOrAsksForAFileWaits();
  void EveryHandEditComesBack();
};

void AlMomentoTest::NothingIsDrawnUntilItIsWanted() {
  Window m;
  QVERIFY(!Find<QCheckBox>(m.window, "chkAlMomento").isChecked());
  m.Load(Band(60));
  m.Trigger("mnuNegativo");
  m.Trigger(kModos[kModoBordes]);
  QVERIFY(m.Text().empty());
  m.Click("chkAlMomento");
  QVERIFY(m.Drawn(kEdges) && !m.Text().empty());
  Programa later{m.surface, m.pictures, ProgramFolder()};
  frmMain window(m.Ready(later), {m.dialogs, m.shell, m.registry});
  QVERIFY(Find<QCheckBox>(window, "chkAlMomento").isChecked());
  m.Click("chkAlMomento");
  const std::string before = m.Text();
  m.Load(Band(90));
  QVERIFY(m.Text() == before);
}

void AlMomentoTest::EveryChangeDraws() {
  Window m;
  m.Click("chkAlMomento");
  QVERIFY2(m.Text().empty() && m.dialogs.log.empty(), "there is no picture");
  m.Load(Band(60));
  std::string before;
  const auto changed = [&](int method) {
    const bool other = m.Text() != before;
    before = m.Text();
    return other && m.Drawn(method);
  };
  QVERIFY(changed(kGrayscale));
  m.Trigger("mnuNegativo");
  QVERIFY(changed(kGrayscale));
  m.Trigger("mnuUndoPicture");
  QVERIFY(changed(kGrayscale));
  m.Trigger(kModos[kModoBordes]);
  QVERIFY(changed(kEdges));
  m.Click("chkRelleno");
  QVERIFY(changed(kEdges));
  m.Trigger(kModos[kModoAntialias]);
  QVERIFY(changed(kAntiAlias));
  m.Load(Band(90));
  QVERIFY(changed(kAntiAlias));
}

void AlMomentoTest::WhatIsTooLargeOrAsksForAFileWaits() {
  Window m;
  m.Click("chkAlMomento");
  m.Load(Band(60));
  m.dialogs.log.clear();
  m.Trigger(kModos[kModoMosaico]);
  m.Trigger("mnuNegativo");
  m.Trigger(kModos[kModoTexto]);
  QVERIFY(m.dialogs.log.empty());
  m.Trigger(kModos[kModoGrises]);
  struct Row {
    int height;
    const char* sentence;
  };
  for (const Row& r : {Row{2'000, "no se genera solo"}, {1'000'000, "demasiado grande"}}) {
    m.dialogs.log.clear();
    m.Load(Picture::Filled(1, r.height, kBlack));
    QVERIFY2(m.dialogs.log.size() == 1, "the file is asked for, and nothing else");
    QVERIFY2(m.Sentence().contains(r.sentence), r.sentence);
  }
  const std::string file = m.folder.File("a.svg");
  EscribirArchivo(
      file,
      R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="9" height="9">)"
      R"(<image width="9" height="9" xlink:href="no"/></svg>)");
  m.dialogs.paths = {file};
  m.Trigger("mnuLoadImage");
  QVERIFY2(m.Drawn(kGrayscale) && m.Sentence().startsWith("No se ha podido dibujar todo"), "a warning stays");
}

void AlMomentoTest::EveryHandEditComesBack() {
  Window m;
  m.Click("chkAlMomento");
  m.Load(Band(60));
  std::vector<std::string> edited;
  for (const char* typed : {"uno", "dos", "tres"}) {
    m.Area().setFocus();
    QTest::keyClicks(&m.Area(), typed);
    edited.push_back(m.Text());
    m.Trigger("mnuNegativo");
    QVERIFY(m.Drawn(kGrayscale));
    QVERIFY(m.Sentence().startsWith("El texto editado a mano se ha sustituido."));
  }
  for (; !edited.empty(); edited.pop_back()) {
    QTest::keyClick(&m.Area(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(m.Text() == edited.back());
  }
}

QTEST_MAIN(AlMomentoTest)
#include "AlMomentoTest.moc"
