#pragma once

#include <QImage>
#include <QListWidget>
#include <QTextEdit>

#include "desktop/control_view.h"

namespace zerimo {

/// The list of pages. Pressing any mouse button chooses an entry and shows its page; below the last entry, it chooses
/// the last. The arrow keys choose an entry, and the space bar shows its page.
class PageList : public QListWidget {
 public:
  PageList(QWidget& parent, FileListBox& control, Events& events);

  /// Shows the page of the chosen entry.
  void Press();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  FileListBox& list_;
  Events& events_;
};

/// `File1`.
class FileListView : public ControlView {
 public:
  FileListView(FileListBox& control, QWidget& parent, Events& events)
      : ControlView(control, *new PageList(parent, control, events)), list_(control) {}

 protected:
  QRect Place(const Room& room) const override { return PlaceInData().intersected(room.AboveRows); }
  void SyncLook() override;

 private:
  FileListBox& list_;
  std::vector<std::string> shown_;
  std::string selected_;
};

/// The text area of a help page. Pasted text takes the look of the text around it.
class PageArea : public QTextEdit {
 public:
  using QTextEdit::QTextEdit;

 protected:
  void insertFromMimeData(const QMimeData* source) override;
};

/// `RichTextBox1`.
class PageView : public ControlView {
 public:
  PageView(RichTextView& control, QWidget& parent, Events& events);
  void Collect() override;

 protected:
  QRect Place(const Room& room) const override { return PlaceInData().intersected(room.AboveRows); }
  void SyncLook() override;

 private:
  void ShowSize();

  RichTextView& page_;
  PageArea& edit_;
  /// Its resolution is that of the page: letters and distances of a page are in points.
  QImage paper_;
  std::uint64_t shownVersion_ = 0;
  bool touched_ = false;
};

}  // namespace zerimo
