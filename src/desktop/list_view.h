#pragma once

#include <QAbstractListModel>
#include <QListView>

#include "desktop/control_view.h"

namespace zerimo {

/// The entries of a list box for the toolkit. It tells of new entries only when `Sync` is called, and asks the list
/// for them only then: a list that nobody looks at costs nothing.
class ListEntries : public QAbstractListModel {
 public:
  explicit ListEntries(const ListBox& listBox) : list(listBox) {}

  /// Tells whether anything is new.
  bool Sync();
  void SetFont(const QFont& font);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  void Measure(std::size_t from);

  const ListBox& list;
  QFont font;
  std::uint64_t version = 0;
  std::uint64_t clearings = 0;
  int rows = 0;
  int widest = 0;
};

/// The history, and the lists of the diagnosis panel.
class ListBoxView : public ControlView {
 public:
  ListBoxView(ListBox& listBox, QWidget& parent, Events& theEvents);

 protected:
  QRect Place(const Room& room) const override;
  void SyncLook() override;

 private:
  void ShowEntries();

  ListBox& list;
  QListView& view;
  ListEntries entries;
};

}  // namespace zerimo
