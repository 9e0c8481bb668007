// The comparison of two conversions, without the main window.
#include <cmath>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include "conversion/frmComparar.h"
#include "conversion/frmComparar_Vista.h"
#include "platform/ProgramFolder.h"
#include "platform/qt/QtTextSurface.h"
#include "programa/Ajustes.h"
#include "programa/Comparacion.h"
#include "tests/support/FakePictureCodec.h"
#include "tests/support/Find.h"
#include "tests/support/RecordingDialogs.h"

using namespace pixmosa;
using test::Find;

namespace {

struct Comparador {
  QtTextSurface surface;
  test::FakePictureCodec codec;
  test::RecordingDialogs dialogs;
  Programa program{surface, codec, ProgramFolder()};

  // Rings of all tones.
  explicit Comparador(int columns = 40) {
    Picture p(160, 120);
    std::uint32_t* to = p.Writable();
    for (int y = 0; y < 120; ++y)
      for (int x = 0; x < 160; ++x) {
        const int g = static_cast<int>(127 + 120 * std::sin(std::hypot(x - 60, y - 50) / 9));
        *to++ = PixelOfColour(Rgb(g, g, g));
      }
    program.imagen.Asignar(p);
    Medir(program);
    program.basAscii.AsciiColumns = columns;
  }
};

}  // namespace

class FrmCompararTest : public QObject {
  Q_OBJECT

 private slots:
  void ScoresBothConversionsAndGivesTheChosenOne() {
    Comparador c;
    c.program.basAscii.ProducedText = "queda";
    frmComparar window(c.program, c.dialogs, nullptr);
    window.show();
    const auto points = [&](int method) {
      return QStringLiteral("<b>%1 de 100</b>")
          .arg(std::lround(Puntuar(c.program, TextoDe(c.program, method)).Puntos()));
    };
    auto &first = Find<QLabel>(window, "lblPuntosPrimera"),
         &second = Find<QLabel>(window, "lblPuntosSegunda");
    QVERIFY(first.text().startsWith(points(kGrayscale)) && second.text().startsWith(points(kFormas)));
    QVERIFY(second.text().contains("la más parecida") && !first.text().contains("la más parecida"));
    QTest::keyClick(&Find<QComboBox>(window, "cboConversionPrimera"), Qt::Key_Down);
    QVERIFY(first.text().startsWith(points(kTono)));
    QSignalSpy chosen(&window, &frmComparar::Elegida);
    QTest::mouseClick(&Find<QPushButton>(window, "cmdUsarPrimera"), Qt::LeftButton);
    QVERIFY(chosen.size() == 1 && chosen[0][0].toInt() == kTono && !window.isVisible());
    QCOMPARE(c.program.basAscii.ProducedText, "queda");
  }

  void TheViewsMoveTogether() {
    Comparador c;
    frmComparar window(c.program, c.dialogs, nullptr);
    window.show();
    auto &image = Find<VistaComparada>(window, "vistaImagen"),
         &text = Find<VistaComparada>(window, "vistaSegunda");
    const QImage whole = text.grab().toImage();
    QWheelEvent wheel({40, 40}, image.mapToGlobal(QPointF(40, 40)), {}, {0, 600}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&image, &wheel);
    const QImage near = text.grab().toImage();
    QVERIFY(near != whole);
    QTest::mousePress(&text, Qt::LeftButton, {}, {60, 60});
    QMouseEvent drag(QEvent::MouseMove, QPointF(90, 90), text.mapToGlobal(QPointF(90, 90)), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(&text, &drag);
    QVERIFY(text.grab().toImage() != near);
    QTest::mouseDClick(&image, Qt::LeftButton);
    QVERIFY(text.grab().toImage() == whole);
    for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Right}) {
      const QImage before = text.grab().toImage();
      QTest::keyClick(&image, key);
      QVERIFY(text.grab().toImage() != before);
    }
    QTest::keyClick(&image, Qt::Key_Home);
    QVERIFY(text.grab().toImage() == whole);
  }

  void ADrawingTooLargeIsSaid() {
    Comparador c(8000);  // of 5 x 9 pixels: 40,000 x 30,000
    frmComparar window(c.program, c.dialogs, nullptr);
    window.show();
    QVERIFY(Find<QLabel>(window, "lblPuntosPrimera").text().isEmpty());
  }
};

QTEST_MAIN(FrmCompararTest)
#include "FrmCompararTest.moc"
