#include "desktop/list_view.h"

#include <QFontMetrics>
#include <QScrollBar>
#include <algorithm>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

constexpr int EntryMargin = 12;
/// Lists with letters of this size and up are read from afar and bold.
constexpr double BoldFrom = 12;

}  // namespace

bool ListEntries::Sync() {
  if (version == list.Version()) return false;
  const std::vector<std::string>& items = list.Items();
  const auto count = static_cast<int>(items.size());
  if (clearings == list.Clearings() && count >= rows) {
    const int old = rows;
    if (count > old) beginInsertRows({}, old, count - 1);
    rows = count;
    Measure(static_cast<std::size_t>(old));
    if (count > old) endInsertRows();
  } else {
    beginResetModel();
    rows = count;
    widest = 0;
    Measure(0);
    endResetModel();
  }
  version = list.Version();
  clearings = list.Clearings();
  return true;
}

void ListEntries::SetFont(const QFont& newFont) {
  font = newFont;
  widest = 0;
  if (rows > 0) Measure(0);
}

void ListEntries::Measure(std::size_t from) {
  const QFontMetrics metrics(font);
  const std::vector<std::string>& items = list.Items();
  for (std::size_t i = from; i < items.size(); ++i) {
    widest = std::max(widest, metrics.horizontalAdvance(ToQString(items[i])));
  }
}

int ListEntries::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows; }

QVariant ListEntries::data(const QModelIndex& index, int role) const {
  // All entries are as wide as the widest, so that the view need not measure them all again.
  if (role == Qt::SizeHintRole) return QSize(widest + EntryMargin, QFontMetrics(font).height() + 1);
  if (role != Qt::DisplayRole) return {};
  const std::vector<std::string>& items = list.Items();
  const auto row = static_cast<std::size_t>(index.row());
  return row < items.size() ? QVariant(ToQString(items[row])) : QVariant();
}

ListBoxView::ListBoxView(ListBox& listBox, QWidget& parent, Events& theEvents)
    : ControlView(listBox, *new QListView(&parent)),
      list(listBox),
      view(static_cast<QListView&>(Widget())),
      entries(listBox) {
  view.setUniformItemSizes(true);
  view.setEditTriggers(QAbstractItemView::NoEditTriggers);
  view.setTextElideMode(Qt::ElideNone);
  view.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  view.setModel(&entries);
  QObject::connect(&view, &QListView::clicked, &view,
                   [this, &theEvents] { theEvents.Deliver([this](Form1& form1) { form1.Click(list); }); });
}

QRect ListBoxView::Place(const Room& room) const {
  const QRect place = InPixels(Source());
  return Source().Panel() == nullptr ? place.intersected(room.AboveRows) : place;
}

void ListBoxView::SyncLook() {
  const QFont font = ControlFont(list.FontSize, list.FontSize >= BoldFrom);
  if (view.font() != font) {
    view.setFont(font);
    entries.SetFont(font);
  }
  ShowColours(view, list.BackColor, list.ForeColor);
  if (list.IsOnScreen()) ShowEntries();
}

void ListBoxView::ShowEntries() {
  QScrollBar& bar = *view.verticalScrollBar();
  const bool wasAtEnd = bar.value() == bar.maximum();
  const int before = bar.value();
  const int oldRows = entries.rowCount();
  if (!entries.Sync()) return;
  // The history stays at its end; a list that is filled anew stays where the reader was.
  if (list.Panel() == nullptr && (wasAtEnd || oldRows == 0)) return view.scrollToBottom();
  view.doItemsLayout();
  bar.setValue(before);
}

}  // namespace zerimo
