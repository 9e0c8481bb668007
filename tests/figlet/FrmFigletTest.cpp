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
  void BannersFollowTheTextAndTheFont();
  void ListAndTreeLoadFonts();
  void InformationAndAlignment();
  void AddedFontsAreListedAtOnce();
};

void FrmFigletTest::BannersFollowTheTextAndTheFont() {
  Panel p;
  QCOMPARE(p.panel->Cuantas(), 2);
  p.panel->PrimeraVez();
  const std::string banner = "P1i1x1m1o1s1a1\r\nP2i2x2m2o2s2a2\r\n\r\n\r\n";
  QCOMPARE(p.banners, (Strings{"", banner}));
  QCOMPARE(p.font.Banner, banner);
  p.panel->PrimeraVez();
  QCOMPARE(p.banners.size(), 2U);  // later showings load nothing
  auto& text = p.Get<AreaDeTexto>("txtFigText");
  text.PonerTexto("");
  QTest::keyClicks(&text, "ab");
  QTest::keyClick(&text, Qt::Key_Return);
  QCOMPARE(Strings(p.banners.begin() + 2, p.banners.end()),
           (Strings{"", "a1\r\na2\r\n", "a1b1\r\na2b2\r\n", "a1b1\r\na2b2\r\n\r\n\r\n"}));
}

void FrmFigletTest::ListAndTreeLoadFonts() {
  Panel p;
  auto& list = p.Get<QListWidget>("lsvFuentesFig");
  auto& tree = p.Get<QTreeWidget>("tvwFigFonts");
  QCOMPARE(list.item(0)->text() + list.item(1)->text(), "alfa.flfbeta.flf");
  p.Click(list, list.item(1));
  QCOMPARE(p.font.Comment, "\r\nLa segunda");
  p.Click(list, list.item(0));
  QCOMPARE(p.font.Comment, "\r\nComentario");
  p.Get<QAction>("Lista agrupada por categorías").trigger();
  QVERIFY(tree.isVisible() && !list.isVisible() && !p.Get<QAction>("Lista simple").isChecked());
  tree.expandAll();
  auto* category = tree.topLevelItem(0);
  p.Click(tree, category);
  QCOMPARE(p.font.Comment, "\r\nComentario");  // only fonts react
  p.Click(tree, category->child(0)->child(0));
  QCOMPARE(p.font.Comment, "\r\nLa segunda");
  p.Click(tree, category->child(0)->child(1));
  QCOMPARE(p.font.Height, "1");  // a missing file fails silently
  QVERIFY(p.dialogs.log.empty());
  p.Get<QAction>("Lista simple").trigger();
  QVERIFY(!tree.isVisible() && list.isVisible());
}

void FrmFigletTest::InformationAndAlignment() {
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
  const std::size_t drawn = p.banners.size();
  QSignalSpy aligned(p.panel.get(), &frmFiglet::AlineacionCambiada);
  QVERIFY(p.Get<QAction>("Izquierda").isChecked());
  for (const auto& [key, value] :
       {std::pair{"Centrado", Qt::AlignHCenter}, {"Derecha", Qt::AlignRight}, {"Izquierda", Qt::AlignLeft}}) {
    p.Get<QAction>(key).trigger();
    QCOMPARE(aligned.takeFirst().at(0).value<Qt::Alignment>(), Qt::Alignment(value));
    const auto shown = p.Get<AreaDeTexto>("txtFigText").document()->defaultTextOption().alignment();
    QVERIFY(shown.testFlag(value));
    for (const char* other : {"Izquierda", "Centrado", "Derecha"})
      QCOMPARE(p.Get<QAction>(other).isChecked(), std::string(other) == key);
  }
  QCOMPARE(p.banners.size(), drawn);
}

void FrmFigletTest::AddedFontsAreListedAtOnce() {
  Panel p;
  QSignalSpy count(p.panel.get(), &frmFiglet::ListaCambiada);
  p.dialogs.paths = {p.Write("nueva.flf", test::StandardFont()), p.Write("rota.flf", "no")};
  p.Get<QAction>("mnuAgregarFuentes").trigger();
  QCOMPARE(p.dialogs.log.back(), "Fail|Añadir fuentes FIGlet|No se ha añadido \"" +
                                     p.folder.File("rota.flf") +
                                     "\": línea 1: no empieza como una fuente FIGlet (flf2).");
  QCOMPARE(count.takeFirst().at(0).toInt(), 3);
  QCOMPARE(p.Get<QTreeWidget>("tvwFigFonts").topLevelItem(1)->child(0)->child(0)->text(0), "nueva");

  std::filesystem::create_directory(p.folder.File("serie"));
  for (const char* name : {"serie/uno.flf", "serie/dos.flf"}) p.Write(name, test::StandardFont());
  p.dialogs.log.clear();
  p.dialogs.paths = {p.folder.File("serie"), p.folder.File("serie")};
  p.Get<QAction>("mnuAgregarCarpeta").trigger();
  QCOMPARE(p.dialogs.log, Strings{"ChooseFolder|Añadir fuentes FIGlet"});
  QCOMPARE(p.panel->Cuantas(), 5);
  p.Get<QAction>("mnuAgregarCarpeta").trigger();
  QVERIFY(p.dialogs.log.back().starts_with("Inform|Añadir fuentes FIGlet|\"" +
                                           p.folder.File("serie/dos.flf") +
                                           "\" ya está entre las fuentes como \"dos\"."));
}

QTEST_MAIN(FrmFigletTest)
#include "FrmFigletTest.moc"
