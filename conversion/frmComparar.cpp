#include "conversion/frmComparar.h"

#include <cmath>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include "conversion/frmComparar_Vista.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Named.h"
#include "platform/qt/QtPicture.h"
#include "programa/Comparacion.h"

namespace pixmosa {
namespace {

struct ConversionComparada {
  int metodo;
  const char* nombre;
};
constexpr ConversionComparada kConversiones[] = {
    {kGrayscale, "Clásica"}, {kTono, "Tono"}, {kFormas, "Formas"}};

class CursorDeEspera {
 public:
  CursorDeEspera() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~CursorDeEspera() { QGuiApplication::restoreOverrideCursor(); }
};

long Entero(double share) {
  return std::lround(100 * share);
}

// The score and its parts; `best` where it is the higher one of the two.
QString Puntuacion(const Semejanza& s, bool best) {
  return QStringLiteral(
             "<b>%1 de 100</b>%2<table cellspacing=2>"
             "<tr><td>Claros y oscuros en su sitio</td><td align=right>&nbsp;&nbsp;%3</td></tr>"
             "<tr><td>Parecido visto de lejos</td><td align=right>&nbsp;&nbsp;%4</td></tr>"
             "<tr><td>Parecido visto de cerca</td><td align=right>&nbsp;&nbsp;%5</td></tr>"
             "<tr><td>Detalles finos</td><td align=right>&nbsp;&nbsp;%6</td></tr></table>")
      .arg(std::lround(s.Puntos()))
      .arg(best ? QStringLiteral(" (la más parecida)") : QString())
      .arg(Entero(s.tono))
      .arg(Entero(s.lejos))
      .arg(Entero(s.cerca))
      .arg(Entero(s.fino));
}

}  // namespace

frmComparar::frmComparar(Programa& program, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), program_(program), dialogs_(dialogs) {
  setObjectName("frmComparar");
  setWindowTitle(QStringLiteral("Comparar conversiones"));
  auto* grid = new QGridLayout(this);
  auto* original = named<VistaComparada>("vistaImagen");
  original->Mostrar(ImageOf(program.imagen.picMain));
  grid->addWidget(new QLabel(QStringLiteral("Imagen")), 0, 0);
  grid->addWidget(original, 1, 0);
  auto* help = new QLabel(
      QStringLiteral("La rueda o las teclas + y - acercan las tres vistas a la vez; arrastrando o con las "
                     "flechas se mueven; un doble clic o Inicio las muestra enteras."));
  help->setWordWrap(true);
  help->setAlignment(Qt::AlignTop);
  grid->addWidget(help, 2, 0);

  const int chosen = program.ajustes.conversion;
  lados_[0] = CrearLado(grid, 1, "Primera", chosen);
  lados_[1] = CrearLado(grid, 2, "Segunda", chosen == kFormas ? kGrayscale : kFormas);
  for (VistaComparada* from : {original, lados_[0].vista, lados_[1].vista})
    for (VistaComparada* to : {original, lados_[0].vista, lados_[1].vista})
      if (to != from) connect(from, &VistaComparada::Encuadrada, to, &VistaComparada::Encuadrar);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  buttons->button(QDialogButtonBox::Close)->setText(QStringLiteral("&Cerrar"));
  grid->addWidget(buttons, 4, 0, 1, 3);
  grid->setRowStretch(1, 1);
  for (int column = 0; column < 3; ++column) grid->setColumnStretch(column, 1);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  resize(screen()->availableSize() * 9 / 10);
  Mostrar();
}

frmComparar::Lado frmComparar::CrearLado(QGridLayout* grid, int column, const char* which, int method) {
  const auto name = [which](const char* kind) { return std::string(kind) + which; };
  const Lado side{named<QComboBox>(name("cboConversion").c_str()),
                  named<VistaComparada>(name("vista").c_str()), named<QLabel>(name("lblPuntos").c_str()),
                  named<QPushButton>(name("cmdUsar").c_str(), QStringLiteral("Usar esta"))};
  for (const ConversionComparada& c : kConversiones)
    side.cboConversion->addItem(QString::fromUtf8(c.nombre), c.metodo);
  side.cboConversion->setCurrentIndex(side.cboConversion->findData(method));
  side.cboConversion->setToolTip(QStringLiteral("La conversión que se muestra debajo"));
  side.lblPuntos->setTextFormat(Qt::RichText);
  side.lblPuntos->setAlignment(Qt::AlignTop);
  side.cmdUsar->setToolTip(QStringLiteral("Elige esta conversión y genera con ella"));
  side.cmdUsar->setAutoDefault(false);
  grid->addWidget(side.cboConversion, 0, column);
  grid->addWidget(side.vista, 1, column);
  grid->addWidget(side.lblPuntos, 2, column);
  grid->addWidget(side.cmdUsar, 3, column, Qt::AlignLeft);
  connect(side.cboConversion, &QComboBox::currentIndexChanged, this,
          Con(dialogs_, [this](int) { Mostrar(); }));
  connect(side.cmdUsar, &QAbstractButton::clicked, this, [this, side] {
    const int taken = side.cboConversion->currentData().toInt();
    accept();
    emit Elegida(taken);
  });
  return side;
}

const frmComparar::Prueba& frmComparar::Probar(int method) {
  const auto known = pruebas_.find(method);
  if (known != pruebas_.end()) return known->second;
  Prueba made;
  if (SePuedeDibujar(program_)) {
    const std::string text = TextoDe(program_, method);
    made.dibujo = ImageOf(Dibujar(program_, text));
    made.semejanza = Puntuar(program_, text);
  }
  return pruebas_[method] = made;
}

void frmComparar::Mostrar() {
  const CursorDeEspera wait;
  const auto chosen = [&](const Lado& side) { return side.cboConversion->currentData().toInt(); };
  const double first = Probar(chosen(lados_[0])).semejanza.Puntos();
  const double second = Probar(chosen(lados_[1])).semejanza.Puntos();
  const double best = first == second ? 101 : std::max(first, second);
  for (const Lado& side : lados_) {
    const Prueba& shown = Probar(chosen(side));
    side.vista->Mostrar(
        shown.dibujo,
        QStringLiteral("El dibujo es demasiado grande para compararlo: elija un tamaño menor."));
    side.lblPuntos->setText(
        shown.dibujo.isNull() ? QString() : Puntuacion(shown.semejanza, shown.semejanza.Puntos() >= best));
  }
}

}  // namespace pixmosa
