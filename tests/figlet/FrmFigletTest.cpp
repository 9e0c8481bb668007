// The banner panel in the real window.
#include <QLabel>
#include <QListWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include "programa/Modos.h"
#include "figlet/frmFiglet.h"
#include "tests/support/FigletFont.h"
#include "tests/support/MainWindow.h"

using namespace pixmosa;
using test::Find;

namespace {

// Two fonts, one of them in the tree.
struct Fonts {
  test::TestFolder folder;
  Fonts() {
    std::filesystem::create_directory(folder.Path() / "Fonts");
    EscribirArchivo(folder.File("Fonts/alfa.flf"), test::OwnFont());
    std::string upper = test::OwnFont();
    upper.replace(upper.find("Comentario"), 10, "La segunda");
    EscribirArchivo(folder.File("Fonts/beta.flf"), upper);
    EscribirArchivo(folder.File("Fonts/categoriestree.txt"), "[Uno]\r\n[Uno|Sub]\r\nbeta\r\nno-esta\r\n");
  }
};

struct Window : test::MainWindow {
  explicit Window(const Fonts& fonts) {
    program.carpetasDeFuentes = {fonts.folder.Path() / "Fonts"};
    second = std::make_unique<frmMain>(program, Escritorio{dialogs, shell, registry});
    second->show();
  }
  std::unique_ptr<frmMain> second;  // a window that starts with these fonts
  frmMain& Main() { return *second; }
  AreaDeTexto& Area() { return Find<AreaDeTexto>(Main(), "txtAscii"); }
  std::string Banner() { return Area().Texto(); }
  void Choose(int mode) { Find<QAction>(Main(), kModos[static_cast<std::size_t>(mode)]).trigger(); }
};

}  // namespace

class FrmFigletTest : public QObject {
  Q_OBJECT

 private slots:
  void FirstShowingLoadsTheFirstFont();
  void EveryKeystrokeDraws();
  void ListAndTreeLoadFonts();
  void InformationAndAlignment();
  void AddedFontsAreListedAtOnce();
};

void FrmFigletTest::FirstShowingLoadsTheFirstFont() {
  const Fonts fonts;
  Window m(fonts);
  QCOMPARE(Find<QLabel>(m.Main(), "Figlet").text(), "Fuentes FigLet encontradas (2)");
  QVERIFY(!Find<frmFiglet>(m.Main(), "frmFiglet").isVisible());
  m.Choose(kModoTexto);
  QVERIFY(Find<frmFiglet>(m.Main(), "frmFiglet").isVisible());
  const std::string banner = "P1i1x1m1o1s1a1\r\nP2i2x2m2o2s2a2\r\n\r\n\r\n";
  QCOMPARE(m.Banner(), banner);
  m.Area().PonerTexto("como estaba");
  m.Choose(kModoGrises);
  QVERIFY(!Find<frmFiglet>(m.Main(), "frmFiglet").isVisible());
  m.Choose(kModoTexto);
  QCOMPARE(m.Banner(), "como estaba");  // later showings load nothing
}

void FrmFigletTest::EveryKeystrokeDraws() {
  const Fonts fonts;
  Window m(fonts);
  m.Choose(kModoTexto);
  auto& text = Find<AreaDeTexto>(m.Main(), "txtFigText");
  text.PonerTexto("");
  QCOMPARE(m.Banner(), "");
  QTest::keyClicks(&text, "ab");
  QCOMPARE(m.Banner(), "a1b1\r\na2b2\r\n");
  QTest::keyClick(&text, Qt::Key_Return);
  QCOMPARE(m.Banner(), "a1b1\r\na2b2\r\n\r\n\r\n");
}

void FrmFigletTest::ListAndTreeLoadFonts() {
  const Fonts fonts;
  Window m(fonts);
  m.Choose(kModoTexto);
  auto& list = Find<QListWidget>(m.Main(), "lsvFuentesFig");
  auto& tree = Find<QTreeWidget>(m.Main(), "tvwFigFonts");
  QCOMPARE(list.item(0)->text() + list.item(1)->text(), "alfa.flfbeta.flf");
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(1)).center());
  QCOMPARE(m.program.basFigLet.Comment, "\r\nLa segunda");
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(0)).center());
  QCOMPARE(m.program.basFigLet.Comment, "\r\nComentario");

  Find<QAction>(m.Main(), "Lista agrupada por categorías").trigger();
  QVERIFY(tree.isVisible() && !list.isVisible());
  tree.expandAll();
  auto* category = tree.topLevelItem(0);
  const auto click = [&](QTreeWidgetItem* item) {
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(item).center());
  };
  click(category);
  QCOMPARE(m.program.basFigLet.Comment, "\r\nComentario");  // only fonts react
  click(category->child(0)->child(0));
  QCOMPARE(m.program.basFigLet.Comment, "\r\nLa segunda");
  click(category->child(0)->child(1));
  QCOMPARE(m.program.basFigLet.Height, "1");  // a missing file fails silently
  QVERIFY(m.dialogs.log.empty());
  Find<QAction>(m.Main(), "Lista simple").trigger();
  QVERIFY(!tree.isVisible() && list.isVisible());
}

void FrmFigletTest::InformationAndAlignment() {
  const Fonts fonts;
  Window m(fonts);
  m.Choose(kModoTexto);
  QTimer::singleShot(0, [&] {
    auto& about = *QApplication::activeModalWidget();
    QCOMPARE(about.windowTitle(), "Información sobre la fuente");
    auto& text = Find<AreaDeTexto>(about, "txtAbout");
    QCOMPARE(text.Texto(), "\r\nComentario");
    QTest::mouseClick(text.viewport(), Qt::LeftButton);
    QVERIFY(!about.isVisible());
  });
  Find<QToolButton>(m.Main(), "cmdInfoFIG").click();
  const std::string banner = m.Banner();
  for (const auto& [key, alignment] :
       {std::pair{"Centrado", Qt::AlignHCenter}, {"Derecha", Qt::AlignRight}, {"Izquierda", Qt::AlignLeft}}) {
    Find<QAction>(m.Main(), key).trigger();
    for (auto* area : {&m.Area(), &Find<AreaDeTexto>(m.Main(), "txtFigText")})
      QVERIFY(area->document()->defaultTextOption().alignment().testFlag(alignment));
    QCOMPARE(m.Banner(), banner);
  }
}

void FrmFigletTest::AddedFontsAreListedAtOnce() {
  const Fonts fonts;
  Window m(fonts);
  m.Choose(kModoTexto);
  std::string standard = "flf2a# 1 1 8 15 0\n";
  for (char c = 32; c < 127; ++c) standard += std::string(1, c) + "@@\n";
  EscribirArchivo(m.folder.File("nueva.flf"), standard);
  EscribirArchivo(m.folder.File("rota.flf"), "no");
  m.dialogs.paths = {m.folder.File("nueva.flf"), m.folder.File("rota.flf")};
  Find<QAction>(m.Main(), "mnuAgregarFuentes").trigger();
  QCOMPARE(m.dialogs.log.back(), "Fail|Añadir fuentes FIGlet|No se ha añadido \"" +
                                     m.folder.File("rota.flf") +
                                     "\": línea 1: no empieza como una fuente FIGlet (flf2).");
  QCOMPARE(Find<QLabel>(m.Main(), "Figlet").text(), "Fuentes FigLet encontradas (3)");
  auto& tree = Find<QTreeWidget>(m.Main(), "tvwFigFonts");
  QCOMPARE(tree.topLevelItem(1)->child(0)->child(0)->text(0), "nueva");

  std::filesystem::create_directory(m.folder.File("serie"));
  for (const char* name : {"serie/uno.flf", "serie/dos.flf"}) EscribirArchivo(m.folder.File(name), standard);
  m.dialogs.paths = {m.folder.File("serie")};
  m.dialogs.log.clear();
  Find<QAction>(m.Main(), "mnuAgregarCarpeta").trigger();
  QCOMPARE(m.dialogs.log, std::vector<std::string>{"ChooseFolder|Añadir fuentes FIGlet"});
  QCOMPARE(Find<QLabel>(m.Main(), "Figlet").text(), "Fuentes FigLet encontradas (5)");
}

QTEST_MAIN(FrmFigletTest)
#include "FrmFigletTest.moc"
