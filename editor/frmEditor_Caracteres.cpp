#include "editor/frmEditor_Caracteres.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>

#include "platform/CodePage.h"
#include "platform/qt/Intentar.h"
#include "platform/qt/Muestra.h"
#include "platform/qt/Named.h"
#include "platform/qt/QtFont.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

constexpr int kLado = 22, kRecientes = 9;

// Lines, blocks, arrows and other signs to draw with that the code page lacks.
constexpr std::u32string_view kSignos =
    U"─│┌┐└┘├┤┬┴┼═║╔╗╚╝╠╣╦╩╬╭╮╰╯━┃┏┓┗┛┣┫┳┻╋╱╲╳"
    U"█▀▄▌▐▖▗▘▝▙▛▜▟▚▞░▒▓▁▂▃▅▆▇▏▎▍▋▊▉■□▪▫●○◆◇◢◣◤◥"
    U"←↑→↓↔↕▲▼◀▶△▽★☆♠♣♥♦♪♫☺☻√≈≠≤≥∞∙";

QString Codigo(char32_t c) {
  const auto byte = ByteOfUnicode(c);
  const QString unicode =
      QStringLiteral("U+") + QString::number(c, 16).toUpper().rightJustified(4, QChar(u'0'));
  return byte ? QStringLiteral("Código %1\n%2").arg(*byte).arg(unicode)
              : QStringLiteral("%1\nNo está en la página").arg(unicode);
}

QString Mostrado(char32_t c) {
  const auto byte = ByteOfUnicode(c);
  return byte ? QString(VisibleChar(*byte)) : QString::fromUcs4(&c, 1);
}

}  // namespace

TablaDeCaracteres::TablaDeCaracteres(const char* name, const QFont& font) {
  setObjectName(QString::fromUtf8(name));
  setFont(font);
  setFlow(QListView::LeftToRight);
  setWrapping(true);
  setResizeMode(QListView::Adjust);
  setGridSize({kLado, kLado});
  setUniformItemSizes(true);
  setFrameShape(QFrame::NoFrame);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setToolTip(QStringLiteral("El carácter con el que se dibuja"));
}

void TablaDeCaracteres::Anadir(char32_t c, int at) {
  auto* item = new QListWidgetItem(Mostrado(c));
  item->setTextAlignment(Qt::AlignCenter);
  item->setData(Qt::UserRole, static_cast<uint>(c));
  item->setToolTip(Codigo(c));
  insertItem(at < 0 ? count() : at, item);
}

char32_t TablaDeCaracteres::Caracter(const QListWidgetItem* item) const {
  return static_cast<char32_t>(item->data(Qt::UserRole).toUInt());
}

void TablaDeCaracteres::resizeEvent(QResizeEvent* event) {
  QListWidget::resizeEvent(event);
  Ajustar();
}

void TablaDeCaracteres::Ajustar() {
  const int across = std::max(1, (viewport()->width() - 1) / kLado);
  setFixedHeight((std::max(count(), 1) + across - 1) / across * kLado + 4);
}

PanelDeCaracteres::PanelDeCaracteres(const Font& font, Dialogs& dialogs) : font_(font), dialogs_(dialogs) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(6, 6, 6, 6);
  layout->addWidget(CrearActual());
  layout->addWidget(new QLabel(QStringLiteral("Recientes (teclas 1 a 9):")));
  lstRecientes_ = Tabla("lstRecientes", "Los últimos caracteres", {});
  layout->addWidget(lstRecientes_);
  auto* scroll = new QScrollArea;
  auto* all = new QWidget;
  auto* column = new QVBoxLayout(all);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  std::u32string first, second;
  for (char32_t c = 32; c < 128; ++c) first += c;
  for (int code = 128; code < 256; ++code) second += UnicodeOfByte(static_cast<unsigned char>(code));
  column->addWidget(Tabla("lstCaracteres", "Caracteres del 32 al 127", first));
  column->addWidget(new QLabel(QStringLiteral("Del 128 al 255:")));
  column->addWidget(Tabla("lstCaracteresAltos", "Caracteres del 128 al 255", second));
  column->addWidget(new QLabel(QStringLiteral("Fuera de la página de códigos:")));
  column->addWidget(Tabla("lstSignos", "Líneas, bloques y signos", kSignos));
  column->addStretch(1);
  scroll->setWidget(all);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::StyledPanel);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  layout->addWidget(scroll, 1);
  layout->addWidget(CrearTinta());
}

TablaDeCaracteres* PanelDeCaracteres::Tabla(const char* name, const char* caption,
                                            std::u32string_view characters) {
  auto* table = new TablaDeCaracteres(name, QtFontOf(font_));
  table->setAccessibleName(QString::fromUtf8(caption));
  for (const char32_t c : characters) table->Anadir(c);
  connect(table, &QListWidget::currentItemChanged, this, [this, table](const QListWidgetItem* item) {
    if (item) Elegir(table->Caracter(item));
  });
  connect(table, &QListWidget::itemClicked, this, [this, table](const QListWidgetItem* item) {
    Elegir(table->Caracter(item));
    emit Pulsado();
  });
  tables_.push_back(table);
  return table;
}

QWidget* PanelDeCaracteres::CrearActual() {
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  lblActual_ = named<QLabel>("lblActual");
  lblActual_->setFont(SmoothQtFontOf({font_.name, font_.points * 3}, 1));
  lblActual_->setAlignment(Qt::AlignCenter);
  lblActual_->setFixedSize(56, 56);
  lblActual_->setFrameShape(QFrame::StyledPanel);
  lblActual_->setAutoFillBackground(true);
  lblActual_->setBackgroundRole(QPalette::Base);
  lblCodigo_ = named<QLabel>("lblCodigo");
  layout->addWidget(lblActual_);
  layout->addWidget(lblCodigo_, 1);
  return row;
}

void PanelDeCaracteres::Elegir(char32_t c) {
  brush_.caracter = c;
  Poner(brush_);
  emit Elegido(brush_);
}

void PanelDeCaracteres::ElegirReciente(int number) {
  if (number < lstRecientes_->count()) Elegir(lstRecientes_->Caracter(lstRecientes_->item(number)));
}

void PanelDeCaracteres::Poner(const Pincel& brush) {
  brush_ = brush;
  lblActual_->setText(Mostrado(brush.caracter));
  QPalette colours = lblActual_->palette();
  colours.setColor(QPalette::Base, Qt::white);
  // Text is what stands on Base.
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text})
    colours.setColor(role, brush.tinta == kNoColour ? QColor(Qt::black) : QColorOf(brush.tinta));
  lblActual_->setPalette(colours);
  lblCodigo_->setText(Codigo(brush.caracter));
  PintarMuestra(lblTinta_, brush.tinta == kNoColour ? kBlack : brush.tinta);
  const QSignalBlocker quiet(lstRecientes_);
  bool there = false;
  for (int i = 0; i < lstRecientes_->count(); ++i)
    if (lstRecientes_->Caracter(lstRecientes_->item(i)) == brush.caracter) {
      lstRecientes_->setCurrentRow(i);
      there = true;
    }
  if (!there) {
    lstRecientes_->Anadir(brush.caracter, 0);
    if (lstRecientes_->count() > kRecientes) delete lstRecientes_->takeItem(kRecientes);
    lstRecientes_->setCurrentRow(0);
  }
  for (TablaDeCaracteres* table : tables_) {
    if (table == lstRecientes_) continue;
    const QSignalBlocker silent(table);
    int found = -1;
    for (int i = 0; i < table->count() && found < 0; ++i)
      if (table->Caracter(table->item(i)) == brush.caracter) found = i;
    table->setCurrentRow(found);
    if (found < 0) table->clearSelection();
  }
}

}  // namespace pixmosa
