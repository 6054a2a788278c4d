#pragma once

#include <QObject>
#include <QTextCursor>
#include <vector>

#include "desktop/session.h"

class QTextEdit;

namespace zerimo {

class PageList;

/// The words under "See also" on a help page, and those that the general page lists, are links: a click, or Ctrl+Enter
/// with the caret on one, shows the page of the word. They are underlined on the screen only.
class PageLinks : public QObject, public Extension {
 public:
  explicit PageLinks(Session& session);

  bool PressKey(const QKeyEvent& press) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FindLinks();
  /// The link at a position in the page, or null. A negative position has none.
  const QTextCursor* LinkAt(int position) const;
  /// The position in the page of a letter at a point of the viewport, or -1.
  int LetterAt(QPointF point) const;
  void Follow(const QTextCursor& link);

  Session& session_;
  QTextEdit& page_;
  PageList& list_;
  std::vector<QTextCursor> links_;
};

}  // namespace zerimo
