#include "desktop/help_views.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>

#include "desktop/desktop_text.h"
#include "desktop/page_document.h"
#include "files/rich_text.h"
#include "files/unicode_text.h"

namespace zerimo {

namespace {

constexpr double ListPoints = 10.5;
constexpr double PagePoints = 12;
constexpr double PageMargin = 16;

}  // namespace

PageList::PageList(QWidget& parent, FileListBox& control, Events& theEvents)
    : QListWidget(&parent), list(control), events(theEvents) {
  setUniformItemSizes(true);
  setFont(ControlFont(ListPoints));
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
  events.Deliver([&](Form1& form1) {
    list.FileName = name;
    form1.MouseDown(list, MouseButton::Left, false, 0, 0);
  });
}

void FileListView::SyncLook() {
  auto& pages = static_cast<PageList&>(Widget());
  if (shown != list.Items) {
    shown = list.Items;
    pages.clear();
    for (const std::string& name : shown) pages.addItem(ToQString(name));
  }
  if (selected == list.FileName) return;
  selected = list.FileName;
  if (selected.empty()) pages.setCurrentItem(nullptr);
}

void PageArea::insertFromMimeData(const QMimeData* source) {
  // Not by the toolkit's own way: an empty clipboard would bring it down.
  if (!source->hasText()) return;
  insertPlainText(source->text());
  ensureCursorVisible();
}

PageView::PageView(RichTextView& control, QWidget& parent, Events&)
    : ControlView(control, *new PageArea(&parent)), page(control), edit(static_cast<PageArea&>(Widget())) {
  edit.setAcceptRichText(false);
  edit.document()->setDocumentMargin(PageMargin);
  edit.setFont(ControlFont(PagePoints));
  ShowColours(edit, 0xFFFFFF, 0);
  QObject::connect(&edit, &QTextEdit::textChanged, &edit, [this] { touched = true; });
}

void PageView::Collect() {
  if (!touched) return;
  touched = false;
  const RichText text = ReadDocument(*edit.document());
  page.Document = WriteRtf(text);
  page.Text = Latin1FromUtf8(PlainText(text));
}

void PageView::SyncLook() {
  if (shownVersion == page.Version) return;
  shownVersion = page.Version;
  FillDocument(*edit.document(), ReadRtf(page.Document));
  edit.document()->clearUndoRedoStacks();
  edit.moveCursor(QTextCursor::Start);
  touched = false;
}

}  // namespace zerimo
