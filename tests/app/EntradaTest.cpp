// Other ways to a picture than its dialog, in the real window.
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QUrl>

#include "tests/support/MainWindow.h"

using namespace pixmosa;
using test::Find;

namespace {

QImage Red(int width) {
  QImage image(width, 3, QImage::Format_ARGB32);
  image.fill(Qt::red);
  return image;
}

}  // namespace

class EntradaTest : public QObject {
  Q_OBJECT

 private slots:
  void TheSampleIsOneClickAway();
  void TheGuideIsOneKeyAway();
  void PicturesFilesAndAddressesArePasted();
  void TextIsPastedIntoTheText();
};

void EntradaTest::TheSampleIsOneClickAway() {
  test::MainWindow m;
  auto& button = Find<QPushButton>(m.window, "cmdMuestra");
  QVERIFY(button.isVisible() && m.Area().rect().contains(button.geometry()));
  QCOMPARE(button.font().toString(), QApplication::font().toString());
  QTest::mouseClick(&button, Qt::LeftButton);
  QCOMPARE(NombreDeImagen(m.program), "muestra");
  QVERIFY(!m.Text().empty() && m.Text() == m.program.basAscii.ProducedText);
  QVERIFY(Find<QCheckBox>(m.window, "chkAlMomento").isChecked() && !button.isVisible());
}

void EntradaTest::TheGuideIsOneKeyAway() {
  test::MainWindow m;
  m.window.activateWindow();
  QTest::keyClick(&m.window, Qt::Key_F1);
  const auto page = ProgramFolder() / "guia" / "index.html";
  QVERIFY(std::filesystem::exists(page));
  QCOMPARE(m.shell.log, std::vector<std::string>{"Open|" + page.string()});
}

void EntradaTest::PicturesFilesAndAddressesArePasted() {
  test::MainWindow m;
  m.window.activateWindow();
  const QString file = QString::fromStdString(m.Save(Picture::Filled(7, 3, kWhite), "una imagen.png"));
  QClipboard& board = *QApplication::clipboard();
  const auto pasted = [&](const char* focus) {
    auto& widget = Find<QWidget>(m.window, focus);
    widget.setFocus();
    QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
    return m.program.imagen.picMain.Width();
  };
  m.Load(Picture::Filled(20, 20, kBlack));
  for (const char* focus : {"chkAsciiPrev", "txtAscii"}) {
    board.setImage(Red(5));
    QCOMPARE(pasted(focus), 5);
    QCOMPARE(m.program.imagen.picMain.Pixels()[0] & 0xFFFFFFU, 0xFF0000U);
    QVERIFY2(m.program.archivo.empty(), "the file before is not where this one came from");
    auto* urls = new QMimeData;
    urls->setUrls({QUrl::fromLocalFile(file)});
    board.setMimeData(urls);
    QCOMPARE(pasted(focus), 7);
  }
  for (const QString& address : {file, QUrl::fromLocalFile(file).toString(), " " + file + "\n"}) {
    board.setImage(Red(5));
    pasted("chkAsciiPrev");
    board.setText(address);
    QCOMPARE(pasted("chkAsciiPrev"), 7);
  }
  board.setText("hola");
  QCOMPARE(pasted("chkAsciiPrev"), 7);
  QVERIFY(Find<QLabel>(m.window, "lblEnlace").text().startsWith("No hay ninguna imagen que pegar"));
}

void EntradaTest::TextIsPastedIntoTheText() {
  test::MainWindow m;
  QApplication::clipboard()->setText(QString::fromStdString(m.Save(Picture::Filled(7, 3, kWhite))));
  m.Area().setFocus();
  QTest::keyClick(&m.Area(), Qt::Key_V, Qt::ControlModifier);
  QVERIFY(m.Text().ends_with("imagen.png") && !HayImagen(m.program));
}

QTEST_MAIN(EntradaTest)
#include "EntradaTest.moc"
