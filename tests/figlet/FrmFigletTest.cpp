// The banner panel by itself.
#include <QComboBox>
#include <QDropEvent>
#include <QListWidget>
#include <QMimeData>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <QUrl>

#include "platform/qt/AreaDeTexto.h"
#include "tests/figlet/Panel.h"

using namespace pixmosa;
using test::Find;
using test::Panel;
using Strings = std::vector<std::string>;

class FrmFigletTest : public QObject {
  Q_OBJECT

 private slots:
  void BannersFollowTheTextAndTheFont() {
    Panel p;
    p.panel->PrimeraVez();
    const std::string banner = "P1i1x1m1o1s1a1\r\nP2i2x2m2o2s2a2\r\n\r\n\r\n";
    QCOMPARE(p.banners, (Strings{"", banner}));
    QCOMPARE(p.font.Banner, banner);
    p.banners.clear();
    p.panel->PrimeraVez();  // later showings load nothing
    auto& text = p.Get<AreaDeTexto>("txtFigText");
    text.PonerTexto("");
    QTest::keyClicks(&text, "ab");
    QTest::keyClick(&text, Qt::Key_Return);
    QCOMPARE(p.banners, (Strings{"", "a1\r\na2\r\n", "a1b1\r\na2b2\r\n", "a1b1\r\na2b2\r\n\r\n\r\n"}));
  }

  void ListAndTreeLoadFonts() {
    Panel p;
    auto& list = p.Get<QListWidget>("lsvFuentesFig");
    auto& tree = p.Get<QTreeWidget>("tvwFigFonts");
    QCOMPARE(list.item(0)->text() + list.item(1)->text(), "alfa.flfbeta.flf");
    for (const auto& [row, comment] : {std::pair{1, "\r\nLa segunda"}, {0, "\r\nComentario"}}) {
      p.Click(list, list.item(row));
      QCOMPARE(p.font.Comment, comment);
    }
    QVERIFY(!tree.isVisible() && list.isVisible());
    p.Get<QAction>("Lista agrupada por categorías").trigger();
    QVERIFY(tree.isVisible() && !list.isVisible() && !p.Get<QAction>("Lista simple").isChecked());
    tree.expandAll();
    auto* sub = tree.topLevelItem(0)->child(0);
    // Only fonts react; a missing file leaves what a load begins with.
    for (const auto& [item, comment] : {std::pair{tree.topLevelItem(0), "\r\nComentario"},
                                        {sub, "\r\nComentario"},
                                        {sub->child(0), "\r\nLa segunda"},
                                        {sub->child(1), ""}}) {
      p.Click(tree, item);
      QCOMPARE(p.font.Comment, comment);
    }
    QVERIFY(p.dialogs.log.empty());
    p.Get<QAction>("Lista simple").trigger();
    QVERIFY(!tree.isVisible() && list.isVisible());
  }

  void InformationAndAlignment() {
    Panel p;
    p.panel->PrimeraVez();
    QTimer::singleShot(0, [] {
      auto& about = *QApplication::activeModalWidget();
      QCOMPARE(about.windowTitle(), "Información sobre la fuente");
      auto& text = Find<AreaDeTexto>(about, "txtAbout");
      QCOMPARE(text.Texto(), "\r\nComentario");
      QTest::mouseClick(text.viewport(), Qt::LeftButton);
      QVERIFY(!about.isVisible());
    });
    p.Get<QToolButton>("cmdInfoFIG").click();
    p.banners.clear();
    QSignalSpy aligned(p.panel.get(), &frmFiglet::AlineacionCambiada);
    QVERIFY(p.Get<QAction>("Izquierda").isChecked());
    for (const auto& [key, value] : {std::pair{"Centrado", Qt::AlignHCenter},
                                     {"Derecha", Qt::AlignRight},
                                     {"Izquierda", Qt::AlignLeft}}) {
      p.Get<QAction>(key).trigger();
      QCOMPARE(aligned.takeFirst().at(0).value<Qt::Alignment>(), Qt::Alignment(value));
      QVERIFY(p.Get<AreaDeTexto>("txtFigText").document()->defaultTextOption().alignment().testFlag(value));
      for (const char* other : {"Izquierda", "Centrado", "Derecha"})
        QCOMPARE(p.Get<QAction>(other).isChecked(), std::string(other) == key);
    }
    QVERIFY(p.banners.empty());
  }

  void ArrowsLoadFontsAndEveryViewShowsWhich() {
    Panel p;
    p.panel->PrimeraVez();
    auto& list = p.Get<QListWidget>("lsvFuentesFig");
    auto& tree = p.Get<QTreeWidget>("tvwFigFonts");
    tree.expandAll();
    p.banners.clear();
    QTest::keyClick(&list, Qt::Key_Down);
    QCOMPARE(p.font.Comment, "\r\nLa segunda");
    QCOMPARE(p.banners.size(), 2U);
    QCOMPARE(tree.currentItem()->text(0), "beta");
    QTest::keyClick(&list, Qt::Key_Up);
    QVERIFY(!tree.currentItem());
    p.Get<QAction>("Lista agrupada por categorías").trigger();
    tree.setCurrentItem(tree.topLevelItem(0)->child(0));
    QTest::keyClick(&tree, Qt::Key_Down);
    QCOMPARE(list.currentItem()->text(), "beta.flf");
    p.banners.clear();
    p.Click(tree, tree.currentItem());
    p.Click(tree, tree.currentItem());
    QVERIFY2(!p.banners.empty(), "a click on the same font loads it anew");
  }

  void LayoutAndFinishShapeTheBanner() {
    Panel p;
    p.panel->PrimeraVez();
    p.Get<AreaDeTexto>("txtFigText").PonerTexto("a (b\r\nc");
    const auto last = [&] { return p.banners.back(); };
    const std::string full = last();
    auto& layout = p.Get<QComboBox>("cboComposicion");
    QCOMPARE(layout.currentText(), "Ancho completo");
    layout.setCurrentText("Fundir");
    QCOMPARE(last(), "a1(b1\r\na2(b2\r\nc1\r\nc2\r\n");
    layout.setCurrentText("Juntar");
    QCOMPARE(last(), "a1 1(1b1\r\na2 2(2b2\r\nc1\r\nc2\r\n");
    layout.setCurrentIndex(0);
    p.Get<QSpinBox>("numAncho").setValue(5);
    QCOMPARE(last(), "a1\r\na2\r\n(1b1\r\n(2b2\r\nc1\r\nc2\r\n");
    QSignalSpy aligned(p.panel.get(), &frmFiglet::AlineacionCambiada);
    p.Get<QAction>("Derecha").trigger();
    p.Get<QAction>("mnuAlinearTexto").trigger();
    QCOMPARE(last(), "   a1\r\n   a2\r\n (1b1\r\n (2b2\r\n   c1\r\n   c2\r\n");
    QCOMPARE(aligned.back().at(0).value<Qt::Alignment>(), Qt::Alignment(Qt::AlignLeft));
    p.Get<QAction>("mnuAlinearTexto").trigger();
    p.Get<QSpinBox>("numAncho").setValue(0);
    QCOMPARE(last(), full);
    QCOMPARE(aligned.back().at(0).value<Qt::Alignment>(), Qt::Alignment(Qt::AlignRight));
    p.Get<AreaDeTexto>("txtFigText").PonerTexto("(");
    for (const char* entry : {"mnuEspejo", "mnuMarcoDoble", "mnuComentarioSh"})
      p.Get<QAction>(entry).trigger();
    QCOMPARE(last(), "# ╔════╗\r\n# ║ 1) ║\r\n# ║ 2) ║\r\n# ╚════╝\r\n");
    QCOMPARE(p.font.Banner.substr(0, 10), "# +====+\r\n");
    QCOMPARE(p.Get<QToolButton>("cmdAcabado").text(), "Acabado (3)");
    p.dialogs.colours = {Rgb(1, 2, 3), Rgb(4, 5, 6)};
    p.Get<QAction>("mnuDosColores").trigger();
    p.Get<QAction>("mnuHaciaAbajo").trigger();
    QVERIFY(p.options.acabado.degradado == (Degradado{Rgb(1, 2, 3), Rgb(4, 5, 6), false, true}));
    p.Get<QAction>("mnuDosColores").trigger();  // cancelled
    QVERIFY(p.options.acabado.degradado->hasta == Rgb(4, 5, 6));
    p.Get<QAction>("mnuSinColores").trigger();
    QVERIFY(!p.options.acabado.degradado);
  }

  void DroppedFontsAreAddedAndDrawnAsTheyAre() {
    Panel p;
    p.panel->PrimeraVez();
    p.Get<AreaDeTexto>("txtFigText").PonerTexto("ab");
    auto& list = p.Get<QListWidget>("lsvFuentesFig");
    const std::string file = p.Write("gama.tlf", test::StandardFont("Ä@\n█@@\n").replace(0, 1, "t"));
    const auto drop = [&](const std::vector<std::string>& files) {
      QMimeData data;
      QList<QUrl> urls;
      for (const std::string& f : files) urls << QUrl::fromLocalFile(QString::fromStdString(f));
      data.setUrls(urls);
      QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
      enter.ignore();
      QCoreApplication::sendEvent(p.panel.get(), &enter);
      if (!enter.isAccepted()) return false;
      QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
      QCoreApplication::sendEvent(p.panel.get(), &event);
      return true;
    };
    QVERIFY2(!drop({p.Write("foto.png", "x")}), "pictures are the window's");
    QVERIFY(drop({file}));
    QCOMPARE(list.count(), 3);
    QCOMPARE(list.currentItem()->text(), "gama.flf");
    p.Get<AreaDeTexto>("txtFigText").PonerUtf8("Ä");
    QCOMPARE(p.banners.back(), "Ä\r\n█\r\n");
    QCOMPARE(p.font.Banner, "\xC4\r\n#\r\n");
    p.Click(list, list.item(0));
    p.Click(list, list.item(2));
    QCOMPARE(p.banners.back(), "\xC4\r\n#\r\n");
  }

  void AddedFontsAreListedAtOnce() {
    Panel p;
    p.Get<QTreeWidget>("tvwFigFonts").expandAll();
    QSignalSpy count(p.panel.get(), &frmFiglet::ListaCambiada);
    p.dialogs.paths = {p.Write("nueva.flf", test::StandardFont()), p.Write("rota.flf", "no")};
    p.Get<QAction>("mnuAgregarFuentes").trigger();
    const std::string title = "|Añadir fuentes FIGlet|", folder = p.folder.Path() / "serie";
    QCOMPARE(p.dialogs.log.back(), "Fail" + title + "No se ha añadido \"" + p.folder.File("rota.flf") +
                                       "\": línea 1: no empieza como una fuente FIGlet (flf2).");
    QCOMPARE(count.takeFirst().at(0).toInt(), 3);
    auto& tree = p.Get<QTreeWidget>("tvwFigFonts");
    QCOMPARE(tree.topLevelItemCount(), 2);
    QCOMPARE(tree.topLevelItem(1)->child(0)->child(0)->text(0), "nueva");
    QVERIFY2(tree.topLevelItem(0)->child(0)->isExpanded(), "what was open stays open");
    QCOMPARE(p.Get<QListWidget>("lsvFuentesFig").currentItem()->text(), "nueva.flf");
    QVERIFY(p.font.Comment.starts_with("\r\nHecha"));

    std::filesystem::create_directory(folder);
    for (const char* name : {"serie/uno.flf", "serie/dos.flf"}) p.Write(name, test::StandardFont());
    p.dialogs.log.clear();
    p.dialogs.paths = {"", folder, folder};
    for (int i = 0; i < 3; ++i) p.Get<QAction>("mnuAgregarCarpeta").trigger();
    QCOMPARE(p.dialogs.log.size(), 4U);  // three questions and one summary
    QCOMPARE(p.panel->Cuantas(), 5);
    QVERIFY(p.dialogs.log.back().starts_with("Inform" + title + "\"" + folder +
                                             "/dos.flf\" ya está entre las fuentes como \"dos\"."));
  }
};

QTEST_MAIN(FrmFigletTest)
#include "FrmFigletTest.moc"
