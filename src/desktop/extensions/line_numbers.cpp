#include "desktop/extensions/line_numbers.h"

#include <QPaintEvent>
#include <QPainter>
#include <QTextBlock>
#include <algorithm>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

constexpr int EdgeDistance = 8;
constexpr Colour StripGround = 0xA00000;
constexpr Colour Digits = 0xFFFFFF;
/// Narrower strips would change their width while a short program is typed.
constexpr int FewestDigits = 2;

}  // namespace

LineNumbers::LineNumbers(EditorArea& editor) : QWidget(&editor), editor_(editor) {
  setObjectName(QStringLiteral("LineNumbers"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  editor.installEventFilter(this);
  connect(&editor, &QPlainTextEdit::blockCountChanged, this, [this] { Fit(); });
  connect(&editor, &QPlainTextEdit::updateRequest, this, &LineNumbers::Follow);
  Fit();
}

void LineNumbers::Fit() {
  const auto digits = std::max(FewestDigits, static_cast<int>(QString::number(editor_.blockCount()).size()));
  const int width = editor_.fontMetrics().horizontalAdvance(QLatin1Char('0')) * digits + 2 * EdgeDistance;
  QMargins margins = editor_.viewportMargins();
  margins.setLeft(width);
  editor_.setViewportMargins(margins);
  setGeometry(0, 0, width, editor_.height());
}

void LineNumbers::Follow(const QRect& changed, int scrolled) {
  if (scrolled != 0) return scroll(0, scrolled);
  update(0, changed.y(), width(), changed.height());
}

bool LineNumbers::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange) Fit();
  return QWidget::eventFilter(watched, event);
}

void LineNumbers::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), ToQColor(StripGround));
  painter.setFont(editor_.font());
  painter.setPen(ToQColor(Digits));
  QTextBlock line = editor_.firstVisibleBlock();
  QRectF place = editor_.blockBoundingGeometry(line).translated(editor_.contentOffset());
  while (line.isValid() && place.top() <= event->rect().bottom()) {
    // The last line is as high as the page's margin makes it.
    const QRectF number(0, place.top(), width() - EdgeDistance, painter.fontMetrics().height());
    painter.drawText(number, Qt::AlignRight | Qt::AlignTop, QString::number(line.blockNumber() + 1));
    line = line.next();
    place = editor_.blockBoundingGeometry(line).translated(editor_.contentOffset());
  }
}

}  // namespace zerimo
