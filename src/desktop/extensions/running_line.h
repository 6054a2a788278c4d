#pragma once

#include <QString>

#include "console/form1.h"

class QListView;

namespace zerimo {

/// Finds which line of the store runs next, and marks it in the list of the diagnosis panel.
class RunningLine {
 public:
  /// `list` shows `List1`.
  RunningLine(const Form1& form1, QListView& list) : form1_(form1), list_(list) {}

  /// Must be called before each step of a walk.
  void Step();
  /// Must be called when the walk is over.
  void Clear();

  /// "BOX, line 12: FD :S", with the number that the list shows.
  QString Words() const;

 private:
  std::string Procedure() const;
  void Mark();

  const Form1& form1_;
  QListView& list_;
  /// 0 if unknown.
  int line_ = 0;
};

}  // namespace zerimo
