// The banner panel by itself.
#include <QListWidget>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include "figlet/frmFiglet.h"
#include "platform/AtomicFile.h"
#include "platform/qt/AreaDeTexto.h"
#include "tests/support/FigletFont.h"
#include "tests/support/Find.h"
#include "tests/support/RecordingDialogs.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;
using test::Find;
using Strings = std::vector<std::string>;

namespace {

// The panel over two fonts, one of them in the tree.
struct Panel {
  test::TestFolder folder;
  test::RecordingDialogs dialogs;
  BasFigLet font;
  std::unique_ptr<frmFiglet> panel;
  Strings banners;

  Panel() {
    std::filesystem::create_directory(folder.Path() / "Fonts");
    Write("Fonts/alfa.flf", test::OwnFont());
    std::string upper = test::OwnFont();
    Write("Fonts/beta.flf", upper.replace(upper.find("Comentario"), 10, "La segunda"));
    Write("Fonts/categoriestree.txt", "[Uno]\r\n[Uno|Sub]\r\nbeta\r\nno-esta\r\n");
    panel = std::make_unique<frmFiglet>(font, std::vector{folder.Path() / "Fonts"}, dialogs, nullptr);
    QObject::connect(panel.get(), &frmFiglet::LetreroCambiado,
                     [this](const std::string& b) { banners.push_back(b); });
    panel->show();
  }
  std::string Write(const std::string& name, const std::string& bytes) {
    EscribirArchivo(folder.File(name), bytes);
    return folder.File(name);
  }
  template <typename Control>
  Control& Get(const char* name) {
    return Find<Control>(*panel, name);
  }
  template <typename View, typename Item>
  void Click(View& view, Item* item) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualItemRect(item).center());
  }
};

}  // namespace

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

  void AddedFontsAreListedAtOnce() {
    Panel p;
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
