// The conversions of the grayscale mode: which one, their settings and the characters they choose from.
#include <optional>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "app/PiezasDePanel.h"
#include "app/frmOpcAlgoritmo.h"
#include "platform/qt/Intentar.h"
#include "programa/Ajustes.h"
#include "programa/Generar.h"

namespace pixmosa {
namespace {

struct Conversion {
  int metodo;
  const char *texto, *ayuda;
};
constexpr Conversion kConversiones[] = {
    {kGrayscale, "Clásica", "Cada carácter por el gris de un solo píxel, como siempre"},
    {kTono, "Tono", "Cada carácter por la luz media de su trozo de imagen, con los tonos ajustados"},
    {kFormas, "Formas",
     "Cada carácter por la luz y por la forma de su trozo de imagen: lo más parecido, sobre todo en "
     "fotografías"},
};

struct Aspecto {
  const char* nombre;
  double valor;  // height by width; 0: the font's own
};
// Of a page: the usual fixed-pitch fonts of browsers at 13 pixels, lines of 15 and characters of 7.8 pixels.
constexpr Aspecto kProporciones[] = {{"la de la fuente", 0}, {"terminal", 2}, {"web", 1.92}};
constexpr double kMenorProporcion = 0.1, kMayorProporcion = 10;

constexpr char kDeLaPaleta[] = "los de la paleta";

// Nothing where the text is none of the names and no number within its range.
std::optional<double> ProporcionDe(QString text) {
  for (const Aspecto& a : kProporciones)
    if (text == QString::fromUtf8(a.nombre)) return a.valor;
  bool number = false;
  const double value = text.replace(u',', u'.').toDouble(&number);
  if (!number || value < kMenorProporcion || value > kMayorProporcion) return std::nullopt;
  return value;
}

QString NombreDeProporcion(double value) {
  for (const Aspecto& a : kProporciones)
    if (a.valor == value) return QString::fromUtf8(a.nombre);
  return QString::number(value).replace(u'.', u',');
}

// A set by its name, or its characters.
QString NombreDelJuego(const std::u32string& set) {
  for (const char* name : {"bloques", "braille", "cajas"})
    if (JuegoDeCaracteres(name) == set) return QLatin1String(name);
  return QString::fromUcs4(set.data(), static_cast<qsizetype>(set.size()));
}

}  // namespace

QWidget* frmOpcAlgoritmo::CrearConversion() {
  auto* box = named<QGroupBox>("mrcConversion", QStringLiteral("Conversión"));
  auto* layout = new QVBoxLayout(box);
  layout->setContentsMargins(6, 4, 6, 6);
  layout->setSpacing(5);
  cboConversion_ = named<QComboBox>("cboConversion");
  cboConversion_->setAccessibleName(box->title());
  for (const Conversion& c : kConversiones) {
    cboConversion_->addItem(QString::fromUtf8(c.texto), c.metodo);
    cboConversion_->setItemData(cboConversion_->count() - 1, QString::fromUtf8(c.ayuda), Qt::ToolTipRole);
  }
  cboConversion_->setCurrentIndex(cboConversion_->findData(program_.ajustes.conversion));
  auto* choice = new QHBoxLayout;
  choice->addWidget(cboConversion_, 1);
  cmdComparar_ = named<QPushButton>("cmdComparar", QStringLiteral("Comparar..."));
  cmdComparar_->setToolTip(QStringLiteral("Muestra la imagen junto a lo que hacen de ella dos conversiones"));
  choice->addWidget(cmdComparar_);
  layout->addLayout(choice);

  layout->addWidget(CrearFormas());
  cboCaracteres_ = ListaEscribible(
      "cboCaracteres", {kDeLaPaleta, "bloques", "braille", "cajas"},
      "Los caracteres con los que se dibuja: los de la paleta, un juego Unicode o los que usted escriba, en "
      "cualquier orden (Intro para usarlos)");
  if (!program_.ajustes.caracteres.empty()) {
    cboCaracteres_->setEditText(NombreDelJuego(program_.ajustes.caracteres));
    Aceptado(cboCaracteres_, true);
  }
  layout->addLayout(FilaDePanel("Caract&eres", cboCaracteres_));
  lblCaracteres_ = Nota("La conversión clásica dibuja con la paleta: estos caracteres piden Tono o Formas.");
  lblCaracteres_->setObjectName("lblCaracteres");
  layout->addWidget(lblCaracteres_);
  return box;
}

QWidget* frmOpcAlgoritmo::CrearFormas() {
  const AjustesDeFormas& settings = program_.ajustes.formas;
  mrcFormas_ = named<QWidget>("mrcFormas");
  QVBoxLayout* layout = Columna(mrcFormas_);
  sldContrasteLocal_ = Deslizador("sldContrasteLocal", 0, 100, settings.contrasteLocal,
                                  "Realza los detalles frente a lo que los rodea");
  layout->addWidget(ConNumero("Contraste local", sldContrasteLocal_, " %"));
  sldNitidez_ = Deslizador("sldNitidez", 0, 100, settings.nitidez,
                           "Cuánto pesa la forma de cada carácter frente a su tono");
  mrcNitidez_ = ConNumero("Nitide&z", sldNitidez_, "");
  mrcNitidez_->setObjectName("mrcNitidez");
  layout->addWidget(mrcNitidez_);
  chkAjustarTono_ = named<QCheckBox>("chkAjustarTono", QStringLiteral("A&justar tono"));
  chkAjustarTono_->setToolTip(
      QStringLiteral("Estira los tonos de la imagen hasta el más claro y el más oscuro de la fuente"));
  chkAjustarTono_->setChecked(settings.ajustarTono);
  layout->addWidget(chkAjustarTono_);
  return mrcFormas_;
}

QComboBox* frmOpcAlgoritmo::CrearProporcion() {
  QStringList items;
  for (const Aspecto& a : kProporciones) items += QString::fromUtf8(a.nombre);
  cboProporcion_ =
      ListaEscribible("cboProporcion", items,
                      "Alto entre ancho del carácter donde se leerá el texto: la de la fuente, un "
                      "terminal (2), una página web (1,92) o un número");
  cboProporcion_->setEditText(NombreDeProporcion(program_.basAscii.Proporcion));
  Aceptado(cboProporcion_, true);
  return cboProporcion_;
}

void frmOpcAlgoritmo::ConectarConversion() {
  connect(cboConversion_, &QComboBox::currentIndexChanged, this, Con(dialogs_, [this](int) {
            const int method = cboConversion_->currentData().toInt();
            PonerConversion(program_, method);
            MostrarConversion();
            emit ConversionElegida(method);
            emit TextoCaducado(method);
          }));
  const auto slider = [this](QSlider* from, void (*put)(Programa&, int)) {
    connect(from, &QSlider::valueChanged, this, [this, put](int value) {
      put(program_, value);
      program_.vistaPrevia = false;
      emit TextoCaducado(program_.ajustes.conversion);
    });
  };
  slider(sldContrasteLocal_, PonerContrasteLocal);
  slider(sldNitidez_, PonerNitidez);
  connect(chkAjustarTono_, &QCheckBox::toggled, this, [this](bool adjust) {
    PonerAjusteDeTono(program_, adjust);
    emit TextoCaducado(program_.ajustes.conversion);
  });
  connect(cmdComparar_, &QAbstractButton::clicked, this, &frmOpcAlgoritmo::ComparacionPedida);
  connect(cboCaracteres_, &QComboBox::activated, this, Con(dialogs_, [this](int) { CaracteresEscritos(); }));
  connect(cboCaracteres_->lineEdit(), &QLineEdit::editingFinished, this,
          Con(dialogs_, [this] { CaracteresEscritos(); }));
  connect(cboProporcion_, &QComboBox::activated, this, Con(dialogs_, [this](int) { ProporcionEscrita(); }));
  connect(cboProporcion_->lineEdit(), &QLineEdit::editingFinished, this,
          Con(dialogs_, [this] { ProporcionEscrita(); }));
}

void frmOpcAlgoritmo::ElegirConversion(int method) {
  if (const int item = cboConversion_->findData(method); item >= 0) cboConversion_->setCurrentIndex(item);
}

void frmOpcAlgoritmo::MostrarConversion() {
  const int method = program_.ajustes.conversion;
  const std::u32string& own = program_.ajustes.caracteres;
  mrcFormas_->setVisible(EsDeFormas(method));
  mrcNitidez_->setVisible(method == kFormas);
  const bool inPlace = !own.empty() && (EsDeFormas(method) || TodosEnLaPagina(own));
  lblCaracteres_->setVisible(!own.empty() && !inPlace);
  cboPaletas_->setEnabled(!inPlace);
}

void frmOpcAlgoritmo::CaracteresEscritos() {
  const QString text = cboCaracteres_->currentText();
  const std::string set = text == kDeLaPaleta ? std::string() : text.toStdString();
  if (!Aceptado(cboCaracteres_, text == kDeLaPaleta || !JuegoDeCaracteres(set).empty())) {
    emit Aviso(QStringLiteral("Hace falta algún carácter que se vea: siguen los de antes."));
    return;
  }
  const std::u32string before = program_.ajustes.caracteres;
  PonerCaracteres(program_, set);
  if (program_.ajustes.caracteres == before) return;
  MostrarConversion();
  emit TextoCaducado(program_.ajustes.conversion);
}

void frmOpcAlgoritmo::ProporcionEscrita() {
  const std::optional<double> value = ProporcionDe(cboProporcion_->currentText().trimmed());
  if (!Aceptado(cboProporcion_, value.has_value())) {
    emit Aviso(QStringLiteral("La proporción es un número de 0,1 a 10: sigue la de antes."));
    return;
  }
  if (*value == program_.basAscii.Proporcion) return;
  PonerProporcion(program_, *value);
  emit TextoCaducado(MetodoDe(program_));
}

}  // namespace pixmosa
