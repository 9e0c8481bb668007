#include "platform/qt/AreaDeTexto.h"

#include <algorithm>
#include <utility>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QTextBlock>

#include "platform/qt/FormatoDeCeldas.h"
#include "platform/qt/QtFont.h"
#include "platform/qt/QtText.h"
#include "platform/qt/TextoRetenido.h"

namespace pixmosa {

QFont FuenteDeVentana() {
  QFont font = QApplication::font();
  font.setResolveMask(QFont::AllPropertiesResolved);
  return font;
}

AreaDeTexto::AreaDeTexto(QWidget* parent) : QPlainTextEdit(parent) {
  setLineWrapMode(NoWrap);
  setWordWrapMode(QTextOption::NoWrap);
  setTabChangesFocus(true);
  setFrameShape(NoFrame);
  document()->setDocumentMargin(2);
  viewport()->setMouseTracking(true);
  viewport()->grabGesture(Qt::PinchGesture);
  connect(document(), &QTextDocument::contentsChange, this,
          [this](int position, int, int added) { CuidarCeldas(position, added); });
}

AreaDeTexto::~AreaDeTexto() {
  // Taking the formats off changes the document once more, and the window around may be gone.
  blockSignals(true);
  celdas_.reset();
}

void AreaDeTexto::PonerTexto(std::string_view bytes) {
  PonerUtf8(Utf8OfBytes(bytes));
}

void AreaDeTexto::PonerUtf8(std::string_view utf8) {
  const bool edited = EditadaAMano();
  if (SinGuardar()) apartada_ = Utf8();
  if (edited) Conservar();
  puesta_ = utf8;
  Mostrar(utf8);
  if (edited) emit TextoSustituido();
}

void AreaDeTexto::RecibirUtf8(std::string_view utf8) {
  Conservar();
  Mostrar(utf8);
  document()->setModified(true);
}

void AreaDeTexto::Conservar() {
  constexpr std::size_t kMasTextos = 20;
  if (editadas_.size() == kMasTextos) editadas_.erase(editadas_.begin());
  editadas_.push_back(Utf8());
}

void AreaDeTexto::Mostrar(std::string_view utf8) {
  const QString held = RetenidoDeUtf8(utf8);
  if (!NecesitaFormato(held)) celdas_.reset();
  setPlainText(held);
  AjustarAlineacion();
}

bool AreaDeTexto::EditadaAMano() const {
  // An empty document counts as changed once it has got its font.
  return document()->isModified() && Utf8() != puesta_;
}

bool AreaDeTexto::SinGuardar() const {
  return EditadaAMano() && Utf8() != guardada_;
}

void AreaDeTexto::DarPorGuardada() {
  guardada_ = Utf8();
  if (guardada_ == apartada_) apartada_.clear();
}

void AreaDeTexto::RecuperarApartada() {
  RecibirUtf8(std::exchange(apartada_, {}));
}

bool AreaDeTexto::PuedeDeshacer() const {
  return document()->isUndoAvailable() || !editadas_.empty();
}

void AreaDeTexto::Deshacer() {
  if (document()->isUndoAvailable()) {
    undo();
  } else if (!editadas_.empty()) {
    const std::string text = std::move(editadas_.back());
    editadas_.pop_back();
    Mostrar(text);
    document()->setModified(true);
    if (text == apartada_) apartada_.clear();
  }
}

void AreaDeTexto::PonerPista(const QString& hint) {
  pista_ = hint;
  viewport()->update();
}

std::string AreaDeTexto::Texto() const {
  return BytesOfUtf8(Utf8());
}

std::string AreaDeTexto::Utf8() const {
  return Utf8DeRetenido(document()->toRawText());
}

bool AreaDeTexto::CabeEnLaPagina() const {
  return !TieneAjenos(document()->toRawText());
}

void AreaDeTexto::CuidarCeldas(int position, int added) {
  if (celdas_ || added == 0) return;
  QTextCursor range(document());
  range.setPosition(position);
  // What Qt counts as added may include the document's own last line end.
  range.setPosition(std::min(position + added, document()->characterCount() - 1), QTextCursor::KeepAnchor);
  if (NecesitaFormato(range.selectedText())) celdas_ = std::make_unique<FormatoDeCeldas>(document());
}

void AreaDeTexto::PonerColores(QColor background, QColor text) {
  QPalette colours = palette();
  colours.setColor(QPalette::Base, background);
  colours.setColor(QPalette::Text, text);
  setPalette(colours);
}

void AreaDeTexto::Alinear(Qt::Alignment alignment) {
  alineacion_ = alignment;
  QTextOption option = document()->defaultTextOption();
  option.setAlignment(alignment);
  option.setWrapMode(QTextOption::NoWrap);
  document()->setDefaultTextOption(option);
  AjustarAlineacion();
}

void AreaDeTexto::AjustarAlineacion() {
  // Lines are laid out within the visible width only where the area would wrap; the words themselves never
  // do. What is wider than that could not be scrolled to then, so it goes without.
  if (alineacion_.testFlag(Qt::AlignLeft)) {
    setLineWrapMode(NoWrap);
    return;
  }
  int columns = 0;
  for (QTextBlock line = document()->begin(); line.isValid(); line = line.next())
    columns = std::max(columns, line.length() - 1);
  const qreal width = columns * QFontMetricsF(document()->defaultFont()).horizontalAdvance(u'0') +
                      2 * document()->documentMargin();
  setLineWrapMode(width > viewport()->width() ? NoWrap : WidgetWidth);
}

void AreaDeTexto::resizeEvent(QResizeEvent* event) {
  QPlainTextEdit::resizeEvent(event);
  AjustarAlineacion();
}

void AreaDeTexto::paintEvent(QPaintEvent* event) {
  QPlainTextEdit::paintEvent(event);
  if (pista_.isEmpty() || !document()->isEmpty()) return;
  QPainter painter(viewport());
  painter.setFont(FuenteDeVentana());
  painter.setPen(palette().color(QPalette::Text));
  painter.setOpacity(0.7);
  painter.drawText(viewport()->rect().adjusted(24, 24, -24, -24), Qt::AlignCenter | Qt::TextWordWrap, pista_);
}

bool AreaDeTexto::canInsertFromMimeData(const QMimeData* source) const {
  // Files are for the window around, which loads them.
  return !source->hasUrls() && QPlainTextEdit::canInsertFromMimeData(source);
}

void AreaDeTexto::contextMenuEvent(QContextMenuEvent* event) {
  const std::unique_ptr<QMenu> menu(createStandardContextMenu(event->pos()));
  if (!editadas_.empty() && !document()->isUndoAvailable()) {
    auto* back = new QAction(QStringLiteral("Recuperar el texto editado"), menu.get());
    connect(back, &QAction::triggered, this, &AreaDeTexto::Deshacer);
    menu->insertAction(menu->actions().value(0), back);
  }
  menu->exec(event->globalPos());
}

QMimeData* AreaDeTexto::createMimeDataFromSelection() const {
  auto* copied = new QMimeData;
  copied->setText(Q(Utf8DeRetenido(textCursor().selectedText())));
  return copied;
}

void AreaDeTexto::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Undo) && !isReadOnly()) {
    Deshacer();
    event->accept();
    return;
  }
  // Shift+Enter would begin a line inside the paragraph; here every line is one.
  if (event->matches(QKeySequence::InsertLineSeparator)) {
    if (!isReadOnly()) textCursor().insertBlock();
    event->accept();
    return;
  }
  QPlainTextEdit::keyPressEvent(event);
}

}  // namespace pixmosa
