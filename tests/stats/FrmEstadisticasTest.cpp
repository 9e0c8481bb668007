#include <QHeaderView>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "stats/frmEstadisticas.h"
#include "tests/support/Find.h"
#include "tests/support/RecordingDialogs.h"

using namespace pixmosa;
using test::Find;

class FrmEstadisticasTest : public QObject {
  Q_OBJECT

 private slots:
  void ShowsSortsAndCopies() {
    test::RecordingShell shell;
    frmEstadisticas window("bbbbbbbbbbbb\r\na\xF1", shell, nullptr);
    window.show();
    auto& list = Find<QTreeWidget>(window, "lsvEstadistica");
    QCOMPARE(window.windowTitle() + list.headerItem()->text(0) + list.headerItem()->text(1),
             "Estadisticas del Ascii ArtItemNúmero");
    const auto copied = [&] {
      Find<QPushButton>(window, "cmdCopiar").click();
      return shell.clipboard;
    };
    const std::string totals = "Caracteres\t16\r\nLineas\t2\r\nColumnas\t12\r\n",
                      ends = "  (Cod. 10)\t1\r\n  (Cod. 13)\t1\r\n", a = "a (Cod. 97)\t1\r\n",
                      b = "b (Cod. 98)\t12\r\n", n = "\xF1 (Cod. 241)\t1\r\n";
    QCOMPARE(copied(), totals + ends + a + b + n);
    auto* header = list.header();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, {header->sectionViewportPosition(1) + 8, 5});
    QCOMPARE(copied(), ends + a + n + "Lineas\t2\r\nColumnas\t12\r\n" + b + "Caracteres\t16\r\n");
    list.topLevelItem(2)->setSelected(true);
    QCOMPARE(copied(), a);
  }
};

QTEST_MAIN(FrmEstadisticasTest)
#include "FrmEstadisticasTest.moc"
