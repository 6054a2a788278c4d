#include "desktop/help_views.h"

#include <QAbstractTextDocumentLayout>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <cmath>

#include "desktop/desktop_text.h"
#include "desktop/page_document.h"
#include "files/rich_text.h"
#include "files/unicode_text.h"

namespace zerimo {

namespace {

constexpr double ListPoints = 10.5;
constexpr double PageMargin = 16;
/// 96 an inch.
constexpr double DotsPerMetre = 96 / 0.0254;

}  // namespace

PageList::PageList(QWidget& parent, FileListBox& control, Events& events)
    : QListWidget(&parent), list_(control), events_(events) {
  setUniformItemSizes(true);
}

void PageList::mousePressEvent(QMouseEvent* event) {
  QListWidget::mousePressEvent(event);
  if (itemAt(event->position().toPoint()) == nullptr && count() > 0) setCurrentRow(count() - 1);
  Press();
}

void PageList::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && currentItem() != nullptr) return Press();
  QListWidget::keyPressEvent(event);
}

void PageList::Press() {
  const std::string name = currentItem() == nullptr ? std::string() : ToSystemText(currentItem()->text());
  events_.Deliver([&](Form1& form1) {
    list_.FileName = name;
    form1.MouseDown(list_, MouseButton::Left, false, 0, 0);
  });
}

void FileListView::SyncLook() {
  auto& pages = static_cast<PageList&>(Widget());
  ShowLetters(pages, ListPoints);
  if (shown_ != list_.Items) {
    shown_ = list_.Items;
    pages.clear();
    for (const std::string& name : shown_) pages.addItem(ToQString(name));
  }
  if (selected_ == list_.FileName) return;
  selected_ = list_.FileName;
  if (selected_.empty()) pages.setCurrentItem(nullptr);
}

void PageArea::insertFromMimeData(const QMimeData* source) {
  // The toolkit's own handling crashes on an empty clipboard.
  if (!source->hasText()) return;
  insertPlainText(source->text());
  ensureCursorVisible();
}

PageView::PageView(RichTextView& control, QWidget& parent, Events&)
    : ControlView(control, *new PageArea(&parent)), page_(control), edit_(static_cast<PageArea&>(Widget())) {
  edit_.setAcceptRichText(false);
  edit_.document()->setDocumentMargin(PageMargin);
  ShowColours(edit_, 0xFFFFFF, 0);
  QObject::connect(&edit_, &QTextEdit::textChanged, &edit_, [this] { touched_ = true; });
}

void PageView::ShowSize() {
  const int dots = static_cast<int>(std::lround(DotsPerMetre * ZoomOf(edit_)));
  if (paper_.dotsPerMeterX() == dots) return;
  paper_ = QImage(1, 1, QImage::Format_RGB32);
  paper_.setDotsPerMeterX(dots);
  paper_.setDotsPerMeterY(dots);
  edit_.document()->documentLayout()->setPaintDevice(&paper_);
  edit_.document()->markContentsDirty(0, edit_.document()->characterCount());
}

void PageView::Collect() {
  if (!touched_) return;
  touched_ = false;
  const RichText page = ReadDocument(*edit_.document());
  page_.Document = WriteRtf(page);
  page_.Text = Latin1FromUtf8(PlainText(page));
}

void PageView::SyncLook() {
  ShowSize();
  if (shownVersion_ == page_.Version) return;
  shownVersion_ = page_.Version;
  FillDocument(*edit_.document(), ReadRtf(page_.Document));
  edit_.document()->clearUndoRedoStacks();
  edit_.moveCursor(QTextCursor::Start);
  touched_ = false;
}

}  // namespace zerimo
