#pragma once

#include <QListWidget>
#include <QTextEdit>

#include "desktop/control_view.h"

namespace zerimo {

/// The list of pages. A press of any button chooses an entry, the nearest one below the last, and shows its page; the
/// space bar shows the page of the entry that the arrow keys chose.
class PageList : public QListWidget {
 public:
  PageList(QWidget& parent, FileListBox& control, Events& theEvents);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Press();

  FileListBox& list;
  Events& events;
};

/// `File1`.
class FileListView : public ControlView {
 public:
  FileListView(FileListBox& control, QWidget& parent, Events& theEvents)
      : ControlView(control, *new PageList(parent, control, theEvents)), list(control) {}

 protected:
  QRect Place(const Room& room) const override { return InPixels(Source()).intersected(room.AboveRows); }
  void SyncLook() override;

 private:
  FileListBox& list;
  std::vector<std::string> shown;
  std::string selected;
};

/// The text area of a help page. What is pasted takes the look of the text around it.
class PageArea : public QTextEdit {
 public:
  using QTextEdit::QTextEdit;

 protected:
  void insertFromMimeData(const QMimeData* source) override;
};

/// `RichTextBox1`.
class PageView : public ControlView {
 public:
  PageView(RichTextView& control, QWidget& parent, Events& theEvents);
  void Collect() override;

 protected:
  QRect Place(const Room& room) const override { return InPixels(Source()).intersected(room.AboveRows); }
  void SyncLook() override;

 private:
  RichTextView& page;
  PageArea& edit;
  std::uint64_t shownVersion = 0;
  bool touched = false;
};

}  // namespace zerimo
