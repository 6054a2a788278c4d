#include "desktop/extensions/page_links.h"

#include <QAbstractTextDocumentLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>

#include "desktop/help_views.h"

namespace zerimo {

namespace {

/// Whether a paragraph consists of names of pages: what its heading says.
bool NamesPages(QTextBlock paragraph) {
  do {
    paragraph = paragraph.previous();
  } while (paragraph.textList() != nullptr);
  return paragraph.text() == u"See also" || paragraph.text() == u"All words by topic";
}

}  // namespace

PageLinks::PageLinks(Session& session)
    : session_(session),
      page_(static_cast<QTextEdit&>(session.window.WidgetOf(session.form1.controls.RichTextBox1))),
      list_(static_cast<PageList&>(session.window.WidgetOf(session.form1.controls.File1))) {
  page_.viewport()->setMouseTracking(true);
  page_.viewport()->installEventFilter(this);
  // Not at once: while it is cleared, the document must lose no cursors.
  connect(page_.document(), &QTextDocument::contentsChanged, this, &PageLinks::FindLinks, Qt::QueuedConnection);
}

void PageLinks::FindLinks() {
  static const QRegularExpression word(QStringLiteral("\\S+"));
  links_.clear();
  QList<QTextEdit::ExtraSelection> underlined;
  for (QTextBlock paragraph = page_.document()->begin(); paragraph.isValid(); paragraph = paragraph.next()) {
    if (!NamesPages(paragraph)) continue;
    for (const QRegularExpressionMatch& match : word.globalMatch(paragraph.text())) {
      if (list_.findItems(match.captured(), Qt::MatchFixedString).isEmpty()) continue;
      QTextCursor link(paragraph);
      link.setPosition(paragraph.position() + static_cast<int>(match.capturedStart()));
      link.setPosition(paragraph.position() + static_cast<int>(match.capturedEnd()), QTextCursor::KeepAnchor);
      links_.push_back(link);
      QTextCharFormat format;
      format.setFontUnderline(true);
      underlined.append({link, format});
    }
  }
  page_.setExtraSelections(underlined);
}

const QTextCursor* PageLinks::LinkAt(int position) const {
  const auto found = std::find_if(links_.begin(), links_.end(), [position](const QTextCursor& link) {
    return link.selectionStart() <= position && position < link.selectionEnd();
  });
  return found == links_.end() ? nullptr : &*found;
}

int PageLinks::LetterAt(QPointF point) const {
  const QPointF scrolled(page_.horizontalScrollBar()->value(), page_.verticalScrollBar()->value());
  return page_.document()->documentLayout()->hitTest(point + scrolled, Qt::ExactHit);
}

bool PageLinks::PressKey(const QKeyEvent& press) {
  const bool isFollow = (press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter) &&
                        press.modifiers().testFlag(Qt::ControlModifier) && page_.hasFocus();
  const QTextCursor* link = isFollow ? LinkAt(page_.textCursor().position()) : nullptr;
  if (link == nullptr) return false;
  Follow(*link);
  return true;
}

bool PageLinks::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::MouseMove && event->type() != QEvent::MouseButtonRelease) return false;
  const auto& mouse = static_cast<const QMouseEvent&>(*event);
  const QTextCursor* link = LinkAt(LetterAt(mouse.position()));
  page_.viewport()->setCursor(link == nullptr ? Qt::IBeamCursor : Qt::PointingHandCursor);
  // Who follows a link goes on typing on the row.
  page_.setFocusPolicy(link == nullptr ? Qt::StrongFocus : Qt::TabFocus);
  // Who marks a word does not follow it.
  const bool isClick = event->type() == QEvent::MouseButtonRelease && mouse.button() == Qt::LeftButton;
  if (isClick && link != nullptr && !page_.textCursor().hasSelection()) Follow(*link);
  return false;
}

void PageLinks::Follow(const QTextCursor& link) {
  if (session_.stage.IsRunning()) return;
  const QList<QListWidgetItem*> found = list_.findItems(link.selectedText(), Qt::MatchFixedString);
  list_.setCurrentItem(found.first());
  list_.Press();
}

}  // namespace zerimo
