#include "desktop/list_view.h"

#include <QFontMetrics>
#include <QScrollBar>
#include <algorithm>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

constexpr int EntryMargin = 12;
/// From this size in points up, letters are bold.
constexpr double BoldFrom = 12;

}  // namespace

bool ListEntries::Sync() {
  if (version_ == list_.Version()) return false;
  const std::vector<std::string>& items = list_.Items();
  const auto count = static_cast<int>(items.size());
  if (clearings_ == list_.Clearings() && count >= rows_) {
    const int old = rows_;
    if (count > old) beginInsertRows({}, old, count - 1);
    rows_ = count;
    Measure(static_cast<std::size_t>(old));
    if (count > old) endInsertRows();
  } else {
    beginResetModel();
    rows_ = count;
    widest_ = 0;
    Measure(0);
    endResetModel();
  }
  version_ = list_.Version();
  clearings_ = list_.Clearings();
  return true;
}

void ListEntries::SetFont(const QFont& font) {
  if (font_ == font) return;
  font_ = font;
  widest_ = 0;
  if (rows_ > 0) Measure(0);
}

void ListEntries::Measure(std::size_t from) {
  const QFontMetrics metrics(font_);
  const std::vector<std::string>& items = list_.Items();
  for (std::size_t i = from; i < items.size(); ++i) {
    widest_ = std::max(widest_, metrics.horizontalAdvance(ToQString(items[i])));
  }
}

int ListEntries::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

QVariant ListEntries::data(const QModelIndex& index, int role) const {
  // All entries get the width of the widest, so that the view need not measure each again.
  if (role == Qt::SizeHintRole) return QSize(widest_ + EntryMargin, QFontMetrics(font_).height() + 1);
  if (role != Qt::DisplayRole) return {};
  const std::vector<std::string>& items = list_.Items();
  const auto row = static_cast<std::size_t>(index.row());
  return row < items.size() ? QVariant(ToQString(items[row])) : QVariant();
}

ListBoxView::ListBoxView(ListBox& list, QWidget& parent, Events& events)
    : ControlView(list, *new QListView(&parent)),
      list_(list),
      view_(static_cast<QListView&>(Widget())),
      entries_(list) {
  view_.setUniformItemSizes(true);
  view_.setEditTriggers(QAbstractItemView::NoEditTriggers);
  view_.setTextElideMode(Qt::ElideNone);
  view_.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  view_.setModel(&entries_);
  QObject::connect(&view_, &QListView::clicked, &view_,
                   [this, &events] { events.Deliver([this](Form1& form1) { form1.Click(list_); }); });
}

QRect ListBoxView::Place(const Room& room) const {
  const QRect place = PlaceInData();
  return Source().Panel() == nullptr ? place.intersected(room.AboveRows) : place;
}

void ListBoxView::SyncLook() {
  ShowLetters(view_, list_.FontSize, list_.FontSize >= BoldFrom);
  entries_.SetFont(view_.font());
  ShowTextColours(view_, list_.BackColor, list_.ForeColor);
  if (list_.IsOnScreen()) ShowEntries();
}

void ListBoxView::ShowEntries() {
  QScrollBar& bar = *view_.verticalScrollBar();
  const bool wasAtEnd = bar.value() == bar.maximum();
  const int before = bar.value();
  const int oldRows = entries_.rowCount();
  if (!entries_.Sync()) return;
  // The history follows its end; a list that is refilled stays where the reader was.
  if (list_.Panel() == nullptr && (wasAtEnd || oldRows == 0)) return view_.scrollToBottom();
  view_.doItemsLayout();
  bar.setValue(before);
}

}  // namespace zerimo
