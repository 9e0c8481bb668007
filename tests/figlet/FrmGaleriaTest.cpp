// The gallery of fonts, opened from the panel.
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include "figlet/frmGaleria.h"
#include "platform/qt/AreaDeTexto.h"
#include "tests/figlet/Panel.h"

using namespace pixmosa;
using test::Find;
using test::Panel;

namespace {

// Beside alfa (all of Spanish, 2 rows) and beta (the same, in the category "Uno"): a font of English only, 1
// row and wide letters.
struct Abierta : Panel {
  frmGaleria* window = nullptr;

  Abierta() {
    std::string wide = "flf2a$ 1 1 9 -1 0\r\n";
    for (char c = 32; c < 127; ++c) wide += std::string(6, c) + "@@\r\n";
    Write("Fonts/Gama Ancha.flf", wide);
    panel->Agregar({});
    panel->PrimeraVez();
    Open();
  }
  void Open() {
    Get<QPushButton>("cmdGaleria").click();
    window = panel->findChild<frmGaleria*>("frmGaleria");
  }
  QListView& List() { return Find<QListView>(*window, "lsvGaleria"); }
  QModelIndex Row(int row) { return List().model()->index(row, 0); }
  // The names shown.
  std::string Names() {
    std::string names;
    for (int row = 0; row < List().model()->rowCount(); ++row)
      names += Row(row).data().toString().section('\n', 0, 0).toStdString() + " ";
    return names;
  }
  template <typename Control>
  Control& In(const char* name) {
    return Find<Control>(*window, name);
  }
};

}  // namespace

class FrmGaleriaTest : public QObject {
  Q_OBJECT

 private slots:
  void EveryFontShowsTheTextAndAClickTakesOne() {
    Abierta p;
    QCOMPARE(p.Row(0).data().toString(), "alfa\nP1i1x1m1o1s1a1\nP2i2x2m2o2s2a2");
    p.Get<AreaDeTexto>("txtFigText").PonerTexto("a b");
    QCOMPARE(p.Row(0).data().toString(), "alfa\na1 1b1\na2 2b2");
    p.In<AreaDeTexto>("txtTextoGaleria").PonerTexto("\xF1");
    QCOMPARE(p.Get<AreaDeTexto>("txtFigText").Texto(), "\xF1");
    QCOMPARE(p.Row(1).data().toString(), "beta\nñ1\nñ2");
    p.Get<QComboBox>("cboComposicion").setCurrentText("Fundir");
    p.In<AreaDeTexto>("txtTextoGaleria").PonerTexto("aaaa\r\n");
    QCOMPARE(p.Row(2).data().toString(), "Gama Ancha\naaaaaaaaaaaaaaaaaaaaa");
    QTest::mouseClick(p.List().viewport(), Qt::LeftButton, {}, p.List().visualRect(p.Row(1)).center());
    QCOMPARE(p.font.Comment, "\r\nLa segunda");
    QCOMPARE(p.Get<QListWidget>("lsvFuentesFig").currentItem()->text(), "beta.flf");
    p.List().setCurrentIndex(p.Row(0));
    QCOMPARE(p.font.Comment, "\r\nLa segunda");
    QTest::keyClick(&p.List(), Qt::Key_Return);
    QCOMPARE(p.font.Comment, "\r\nComentario");
  }

  void FontsAreSievedAndSorted() {
    Abierta p;
    QCOMPARE(p.Names(), "alfa beta Gama Ancha ");
    QTest::keyClicks(&p.In<QLineEdit>("txtBuscarFuente"), "ANCH");
    QCOMPARE(p.Names(), "Gama Ancha ");
    QTest::keyClick(&p.In<QLineEdit>("txtBuscarFuente"), Qt::Key_Return);
    QCOMPARE(p.Get<QListWidget>("lsvFuentesFig").currentItem()->text(), "Gama Ancha.flf");
    p.Click(p.Get<QListWidget>("lsvFuentesFig"), p.Get<QListWidget>("lsvFuentesFig").item(0));
    p.In<QLineEdit>("txtBuscarFuente").clear();
    p.Click(p.Get<QListWidget>("lsvFuentesFig"), p.Get<QListWidget>("lsvFuentesFig").item(1));
    QCOMPARE(p.List().currentIndex().row(), 1);
    p.In<QCheckBox>("chkEspanol").click();
    QCOMPARE(p.Names(), "alfa beta ");
    p.In<QCheckBox>("chkEspanol").click();
    p.In<QComboBox>("cboCategoria").setCurrentText("Uno");
    QCOMPARE(p.Names(), "beta ");
    p.In<QComboBox>("cboCategoria").setCurrentIndex(0);
    p.In<QSpinBox>("numAltoMayor").setValue(1);
    QCOMPARE(p.Names(), "Gama Ancha ");
    p.In<QSpinBox>("numAltoMayor").setValue(0);
    p.In<QSpinBox>("numAnchoMayor").setValue(5);
    QCOMPARE(p.Names(), "alfa beta ");
    p.In<QSpinBox>("numAnchoMayor").setValue(6);
    p.In<QComboBox>("cboOrden").setCurrentText("Alto");
    QCOMPARE(p.Names(), "Gama Ancha alfa beta ");
  }

  void FavouritesAreRemembered() {
    Abierta p;
    auto& mark = p.In<QCheckBox>("chkFavorita");
    p.List().setCurrentIndex(p.Row(1));
    QVERIFY(!mark.isChecked());
    mark.click();
    const QRect row = p.List().visualRect(p.Row(2));
    const std::string before = p.font.Comment;
    QTest::mouseClick(p.List().viewport(), Qt::LeftButton, {}, {row.right() - 20, row.top() + 12});
    QCOMPARE(p.font.Comment, before);  // a click on the star takes no font
    QVERIFY(mark.isChecked());
    delete p.window;
    Abierta other;
    other.registry.values = p.registry.values;
    other.panel =
        std::make_unique<frmFiglet>(other.font, other.options, std::vector{other.folder.Path() / "Fonts"},
                                    Escritorio{other.dialogs, other.shell, other.registry}, nullptr);
    other.Open();
    other.In<QComboBox>("cboCategoria").setCurrentText("Favoritas");
    QCOMPARE(other.Names(), "beta Gama Ancha ");
    other.List().setCurrentIndex(other.Row(0));
    QVERIFY(other.In<QCheckBox>("chkFavorita").isChecked());
    other.In<QCheckBox>("chkFavorita").click();
    QCOMPARE(other.Names(), "Gama Ancha ");
  }
};

QTEST_MAIN(FrmGaleriaTest)
#include "FrmGaleriaTest.moc"
