#pragma once

#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "classroom/findings/findings.h"
#include "classroom/program_source.h"
#include "interpreter/interpreter.h"

namespace zerimo::classroom {

/// Sees which of the names that may not vanish do so when their lines run, and change a sum: a value may become 0 only
/// then.
class ZeroWatch {
 public:
  /// `possible` is what `PossibleZeros` gives for the program.
  ZeroWatch(const Interpreter& interpreter, Findings possible);

  /// Whether there is anything to look for.
  bool IsNeeded() const { return !possible_.empty(); }

  /// To be called before each line that runs. Never fails, except as the watch of the interpreter does.
  void Look();

  /// The possible findings that have come true, for a program that is matched with the store.
  Findings Found(const ProgramSource& source) const;

 private:
  struct Suspect {
    QString Name;
    /// So that a loop is not held up.
    int LooksLeft = 100;
  };
  std::vector<Suspect> SuspectsOn(int line) const;
  QStringList SumsOn(int line) const;
  bool HasVanished(const QString& name) const;
  bool DoesHarm(const QString& name, const QStringList& sums) const;
  std::optional<double> ValueOf(const QString& sum) const;

  const Interpreter& interpreter_;
  Findings possible_;
  /// Those of each line of the store.
  std::vector<SinceChange<std::vector<Suspect>>> suspects_{Store::LineCount + 1};
  /// A line of the store and a name that has changed a sum there.
  std::set<std::pair<int, QString>> seen_;
};

}  // namespace zerimo::classroom
