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
#include <QSyntaxHighlighter>
#include <QTextBlock>

#include "platform/qt/QtFont.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

constexpr char16_t kStandIns = 0xE000;  // U+E000 + code, for codes that text layout would not show
constexpr char16_t kHyphen = 0x2010;    // for the soft hyphen
constexpr char16_t kParagraph = 0x2029, kLine = 0x2028;

bool IsStandIn(char16_t c) {
  return c >= kStandIns && c < kStandIns + 256;
}

// The document's character for a code that is not part of a CR LF.
char16_t Held(unsigned char code) {
  if (code == 0xAD) return kHyphen;
  const auto c = static_cast<char16_t>(UnicodeOfByte(code));
  const bool control = c < 32 || (c >= 127 && c < 160);
  return control && code != '\t' ? static_cast<char16_t>(kStandIns + code) : c;
}

std::string BytesOfHeld(const QString& held) {
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(held.size()));
  for (qsizetype i = 0; i < held.size(); ++i) {
    const char16_t c = held[i].unicode();
    if (c == kParagraph || c == kLine) {
      bytes += "\r\n";
    } else if (IsStandIn(c)) {
      bytes += static_cast<char>(c - kStandIns);
    } else if (c == kHyphen) {
      bytes += '\xAD';
    } else {
      if (held[i].isHighSurrogate() && i + 1 < held.size() && held[i + 1].isLowSurrogate()) ++i;
      bytes += static_cast<char>(ByteOfUnicode(c).value_or('?'));
    }
  }
  return bytes;
}

// Draws the stand-ins in no colour, so that they leave a blank cell.
class Blanqueador final : public QSyntaxHighlighter {
 public:
  using QSyntaxHighlighter::QSyntaxHighlighter;

 protected:
  void highlightBlock(const QString& text) override {
    QTextCharFormat clear;
    clear.setForeground(Qt::transparent);
    for (int i = 0; i < text.size(); ++i)
      if (IsStandIn(text[i].unicode())) setFormat(i, 1, clear);
  }
};

}  // namespace

AreaDeTexto::AreaDeTexto(QWidget* parent) : QPlainTextEdit(parent) {
  setLineWrapMode(NoWrap);
  setWordWrapMode(QTextOption::NoWrap);
  setTabChangesFocus(true);
  setFrameShape(NoFrame);
  document()->setDocumentMargin(2);
}

AreaDeTexto::~AreaDeTexto() = default;

void AreaDeTexto::PonerTexto(std::string_view bytes) {
  const bool edited = EditadaAMano();
  if (edited) editada_ = Texto();
  puesta_ = bytes;
  Mostrar(bytes);
  if (edited) emit TextoSustituido();
}

void AreaDeTexto::RecibirTexto(std::string_view bytes) {
  editada_ = Texto();
  Mostrar(bytes);
  document()->setModified(true);
}

void AreaDeTexto::Mostrar(std::string_view bytes) {
  QString held(static_cast<qsizetype>(bytes.size()), Qt::Uninitialized);
  QChar* to = held.data();
  bool standIns = false;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') {
      *to++ = QChar(u'\n');
      ++i;
      continue;
    }
    const char16_t c = Held(static_cast<unsigned char>(bytes[i]));
    standIns |= IsStandIn(c);
    *to++ = QChar(c);
  }
  held.truncate(to - held.constData());
  blanqueador_.reset();
  setPlainText(held);
  if (standIns) blanqueador_ = std::make_unique<Blanqueador>(document());
  AjustarAlineacion();
}

bool AreaDeTexto::EditadaAMano() const {
  // An empty document counts as changed once it has got its font.
  return document()->isModified() && Texto() != puesta_;
}

bool AreaDeTexto::SinGuardar() const {
  return EditadaAMano() && Texto() != guardada_;
}

void AreaDeTexto::DarPorGuardada() {
  guardada_ = Texto();
}

bool AreaDeTexto::PuedeDeshacer() const {
  return document()->isUndoAvailable() || editada_;
}

void AreaDeTexto::Deshacer() {
  if (document()->isUndoAvailable()) {
    undo();
  } else if (editada_) {
    const std::string text = *std::exchange(editada_, std::nullopt);
    Mostrar(text);
    document()->setModified(true);
  }
}

void AreaDeTexto::PonerPista(const QString& hint) {
  pista_ = hint;
  viewport()->update();
}

std::string AreaDeTexto::Texto() const {
  return BytesOfHeld(document()->toRawText());
}

void AreaDeTexto::PonerFuente(const Font& font) {
  const QFont f = QtFontOf(font);
  setFont(f);
  document()->setDefaultFont(f);
  // Getting a font counts as an edit of an empty document.
  if (document()->isEmpty()) document()->clearUndoRedoStacks();
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
  const qreal width = columns * fontMetrics().horizontalAdvance(u'0') + 2 * document()->documentMargin();
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
  painter.setFont(QApplication::font());
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
  if (editada_ && !document()->isUndoAvailable()) {
    auto* back = new QAction(QStringLiteral("Recuperar el texto editado"), menu.get());
    connect(back, &QAction::triggered, this, &AreaDeTexto::Deshacer);
    menu->insertAction(menu->actions().value(0), back);
  }
  menu->exec(event->globalPos());
}

QMimeData* AreaDeTexto::createMimeDataFromSelection() const {
  auto* copied = new QMimeData;
  copied->setText(QStringOfBytes(BytesOfHeld(textCursor().selectedText())));
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
