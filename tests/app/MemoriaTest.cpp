// The window when memory runs out: a message, and everything as it was.
#include <malloc.h>
#include <optional>

#include <QCheckBox>
#include <QPushButton>
#include <QTest>

#include "effects/Giros.h"
#include "programa/Modos.h"
#include "tests/support/Gif.h"
#include "tests/support/MainWindow.h"
#include "tests/support/SinMemoria.h"

using namespace pixmosa;
using test::Find;
using Strings = std::vector<std::string>;

namespace {

// A second arena, a thread's, would still have room when the first has none.
[[maybe_unused]] const int kUnaArena = ::mallopt(M_ARENA_MAX, 1);

const std::string kNone = "No queda memoria para este trabajo.";

struct Window : test::MainWindow {
  std::optional<test::SinMemoria> none;

  // What the dialogs are asked while there is no memory.
  Strings Without(const std::string& action) {
    dialogs.log.clear();
    dialogs.log.reserve(100);
    none.emplace();
    Trigger(action.c_str());
    none.reset();
    return dialogs.log;
  }
  bool Busy() { return !Find<QWidget>(window, "PicAlgoritmos").isEnabled(); }
};

}  // namespace

class MemoriaTest : public QObject {
  Q_OBJECT

 private slots:
  void FlipsAndMirrorsLeaveThePicture() {
    Window m;
    m.Load(Picture::Filled(2, 2, kWhite));
    m.program.imagen.Cargar(Picture::Filled(3000, 2000, kWhite));
    const ImagenDeTrabajo before = m.program.imagen;
    for (const Giro& g : Giros()) {
      QCOMPARE(m.Without(g.control), Strings{"Fail||" + kNone});
      QCOMPARE(m.program.imagen.picMain.Pixels(), before.picMain.Pixels());
      QCOMPARE(m.program.imagen.picUndo.Pixels(), before.picUndo.Pixels());
    }
    m.Trigger("mnuHFlip");
    QVERIFY2(m.program.imagen.picMain.Pixels() != before.picMain.Pixels(), "with memory it goes on");
  }

  void APageIsWrittenWholeOrNotAtAll() {
    Window m;
    m.Load(Picture::Filled(9, 9, kWhite));
    m.Trigger(kModos[kModoMosaico]);
    const Picture before = m.program.imagen.picMain;
    const std::string file = m.folder.File("p.html");
    EscribirArchivo(file, "antes");
    m.dialogs.paths = {file, file};
    const Strings said = m.Without("Play");
    QCOMPARE(said.size(), 2U);
    QCOMPARE(QString::fromStdString(said[1]), QString::fromStdString("Fail|Error al guardar|" + kNone));
    QVERIFY(LeerArchivo(file) == "antes" && !m.Busy());
    QCOMPARE(m.program.imagen.picMain.Pixels(), before.Pixels());
    m.Trigger("Play");
    QVERIFY(LeerArchivo(file).ends_with("</html>\r\n"));
  }

  void AnAnimationIsWrittenWholeOrNotAtAll() {
    Window m;
    const std::string gif = m.folder.File("a.gif"), file = m.folder.File("p.html");
    EscribirArchivo(gif, test::Gif({1, 0, 1}));
    m.dialogs.paths = {gif};
    m.Trigger("mnuLoadImage");
    Find<QCheckBox>(m.window, "chkAnimArt").setChecked(true);
    m.program.basAscii.AsciiColumns = 1000;  // and some 500 rows
    const Picture undo = m.program.imagen.picUndo;
    m.dialogs.paths = {file, file};
    const Strings said = m.Without("Play");
    QCOMPARE(said.size(), 2U);
    QCOMPARE(QString::fromStdString(said[1]), QString::fromStdString("Fail|Error al guardar|" + kNone));
    QVERIFY(!std::filesystem::exists(file) && !m.Busy());
    QCOMPARE(m.program.imagen.picUndo.Pixels(), undo.Pixels());
    QCOMPARE(m.program.imagen.picMain.Size(), (Extent{1, 1}));
    m.program.basAscii.AsciiColumns = 2;
    m.Trigger("Play");
    QVERIFY(LeerArchivo(file).find("var max_pics=3;") != std::string::npos);
  }
};

QTEST_MAIN(MemoriaTest)
#include "MemoriaTest.moc"
