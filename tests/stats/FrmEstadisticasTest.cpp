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
  void ShowsSortsAndCopies();
};

void FrmEstadisticasTest::ShowsSortsAndCopies() {
  test::RecordingShell shell;
  frmEstadisticas window("bb\r\na\xF1", shell, nullptr);
  QCOMPARE(window.windowTitle(), "Estadisticas del Ascii Art");
  auto& list = Find<QTreeWidget>(window, "lsvEstadistica");
  QCOMPARE(list.headerItem()->text(0) + "|" + list.headerItem()->text(1), QString::fromUtf8("Item|Número"));
  const auto shown = [&] {
    QStringList rows;
    for (int i = 0; i < list.topLevelItemCount(); ++i)
      rows += list.topLevelItem(i)->text(0).trimmed() + "=" + list.topLevelItem(i)->text(1);
    return rows.join(" ");
  };
  const QString first = QString::fromUtf8(
      "Caracteres=6 Lineas=2 Columnas=2 (Cod. 10)=1 (Cod. 13)=1 a (Cod. 97)=1 b (Cod. 98)=2 ñ (Cod. 241)=1");
  QCOMPARE(shown(), first);
  window.show();
  const auto clickHeader = [&](int column) {
    auto* header = list.header();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      {header->sectionViewportPosition(column) + 8, 5});
  };
  clickHeader(1);
  QVERIFY(shown() != first);
  QVERIFY(shown().startsWith("(Cod. 10)=1") || shown().startsWith("Caracteres=6"));
  Find<QPushButton>(window, "cmdCopiar").click();
  QVERIFY(shell.clipboard.find("\xF1 (Cod. 241)\t1\r\n") != std::string::npos);
}

QTEST_MAIN(FrmEstadisticasTest)
#include "FrmEstadisticasTest.moc"
