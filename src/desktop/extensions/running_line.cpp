#include "desktop/extensions/running_line.h"

#include <QListView>

#include "base/failure.h"
#include "desktop/desktop_text.h"

namespace zerimo {

void RunningLine::Step() {
  int told = 0;
  SkipOnFailure([&] { told = EndValExtractor(form1_.interpreter.controlPath.CtrlStr()); });
  // After an ENDIF the control string is one ahead of the walk.
  const bool isAhead = line_ > 0 && told == line_ + 2 && form1_.interpreter.store.ClassOf(line_) == StmtEndIf;
  line_ = isAhead ? told - 1 : told;
  Mark();
}

void RunningLine::Clear() {
  if (line_ == 0) return;
  line_ = 0;
  Mark();
}

QString RunningLine::Words() const {
  if (line_ < 1 || line_ > Store::LineCount) return {};
  return QStringLiteral("%1, line %2: %3")
      .arg(ToQString(Procedure()), QString::number(line_), ToQString(form1_.interpreter.store.Line(line_)));
}

std::string RunningLine::Procedure() const {
  for (int number = line_; number > 0; --number) {
    const Store& store = form1_.interpreter.store;
    if (store.ClassOf(number) != StmtTo) continue;
    const std::string& line = store.Line(number);
    const std::string name = line.substr(3, line.find(' ', 3) - 3);
    return name.starts_with('#') ? "Your line" : name;
  }
  return {};
}

void RunningLine::Mark() {
  const QAbstractItemModel& entries = *list_.model();
  // A typed line runs after the program, where the list ends.
  const bool isListed = line_ > 0 && line_ <= entries.rowCount();
  const QModelIndex index = isListed ? entries.index(line_ - 1, 0) : QModelIndex();
  list_.setCurrentIndex(index);
  if (isListed) list_.scrollTo(index);
}

}  // namespace zerimo
