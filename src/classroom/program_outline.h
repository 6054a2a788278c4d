#pragma once

#include <QSet>
#include <string>
#include <string_view>
#include <vector>

#include "classroom/findings/listing.h"

namespace zerimo::classroom {

/// The procedure that starts a program for which there is no session.
struct FirstCall {
  /// Empty if there is none to call.
  std::string Procedure;
  /// Why there is none, or why it is not the one of the file's name; or empty.
  std::string Note;
};

/// The procedures of a program, as they are in the store once it is loaded.
class ProgramOutline {
 public:
  explicit ProgramOutline(std::string_view programText);

  /// The procedure of the file's name; otherwise the last one that no other of the program's procedures calls. One that
  /// needs inputs does not count. `name` is the file's name without its ending.
  FirstCall FirstCallOf(std::string_view name) const;

  /// The procedure that stands for PROGRAM, with inputs or without: that of the file's name, otherwise the last one
  /// that no other calls. Empty if there is none.
  std::string MainProcedure(std::string_view name) const;

  bool Has(const QString& procedure) const;

 private:
  struct Procedure {
    QString Name;
    bool NeedsInputs = false;
    /// The words of its body, its own name left out.
    QSet<QString> Words;
  };

  bool IsCalledByAnother(const Procedure& one) const;

  std::vector<Procedure> procedures_;
};

}  // namespace zerimo::classroom
