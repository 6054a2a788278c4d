#pragma once

#include <QAbstractListModel>
#include <QListView>

#include "desktop/control_view.h"

namespace zerimo {

/// The entries of a list box as a model for the toolkit. Only `Sync` asks the list for its entries, so that a list that
/// is not on the screen costs nothing.
class ListEntries : public QAbstractListModel {
 public:
  explicit ListEntries(const ListBox& list) : list_(list) {}

  /// Takes over new entries. Returns whether anything has changed.
  bool Sync();
  void SetFont(const QFont& font);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  void Measure(std::size_t from);

  const ListBox& list_;
  QFont font_;
  std::uint64_t version_ = 0;
  std::uint64_t clearings_ = 0;
  int rows_ = 0;
  int widest_ = 0;
};

/// The history, and the lists of the diagnosis panel.
class ListBoxView : public ControlView {
 public:
  ListBoxView(ListBox& list, QWidget& parent, Events& events);

 protected:
  QRect Place(const Room& room) const override;
  void SyncLook() override;

 private:
  void ShowEntries();

  ListBox& list_;
  QListView& view_;
  ListEntries entries_;
};

}  // namespace zerimo
