#include <QHash>
#include <algorithm>

#include "classroom/findings/findings.h"

namespace zerimo::classroom {

namespace {

bool IsElse(const Statement& statement) { return statement.Is<StmtElse>() && statement.Rest().isEmpty(); }

/// Follows the IFs of one procedure.
class IfWalk {
 public:
  explicit IfWalk(Findings& findings) : findings_(findings) {}

  void Take(const Statement& statement) {
    if (statement.Is<StmtIf>() && !HasItsEndif(statement)) open_.push_back({statement.Line, false});
    if (IsElse(statement)) TakeElse(statement.Line);
    if (statement.Is<StmtEndIf>() && !open_.empty()) open_.pop_back();
  }

  void End() {
    for (const Level& level : open_)
      findings_.push_back({level.HasElse ? Mistake::MisplacedElse : Mistake::IfWithoutEndif, level.Line, {}});
    open_.clear();
  }

 private:
  struct Level {
    int Line;
    bool HasElse;
  };

  /// All on one line: that several statements stand on it is reported elsewhere.
  static bool HasItsEndif(const Statement& statement) {
    return std::ranges::any_of(statement.Inputs(),
                               [](const QString& word) { return IsOneOf<StmtEndIf>(KnownWord(word)); });
  }

  void TakeElse(int line) {
    if (open_.empty()) return findings_.push_back({Mistake::MisplacedElse, line, {}});
    open_.back().HasElse = true;
  }

  Findings& findings_;
  std::vector<Level> open_;
};

void FindIfs(const Listing& listing, Findings& findings) {
  IfWalk walk(findings);
  for (std::size_t i = 0; i < listing.Statements.size(); ++i) {
    const Statement& statement = listing.Statements[i];
    if (i > 0 && statement.Procedure != listing.Statements[i - 1].Procedure) walk.End();
    if (!statement.Is<inputs::Repeat>()) walk.Take(statement);
  }
  walk.End();
}

/// Follows the search that begins at an IF that is not true. The search remembers whether it last met an IF or an
/// ENDIF, but not how many are open, so that it may take an ELSE of another one: the line of this one, or 0.
int WrongElseOf(const std::vector<Statement>& statements, std::size_t ifAt) {
  int depth = 1;
  bool lastWasIf = false;
  for (std::size_t i = ifAt + 1; i < statements.size() && depth > 0; ++i) {
    const Statement& each = statements[i];
    if (each.Procedure != statements[ifAt].Procedure) return 0;
    if (IsElse(each) && !lastWasIf) return depth > 1 ? each.Line : 0;
    if (each.Is<StmtIf>()) ++depth;
    if (each.Is<StmtEndIf>()) --depth;
    // A REPEAT becomes a loop that ends with an IF and its ENDIF.
    if (each.Is<StmtIf, StmtEndIf, inputs::Repeat>()) lastWasIf = each.Is<StmtIf>();
  }
  return 0;
}

void FindWrongElses(const Listing& listing, Findings& findings) {
  for (std::size_t i = 0; i < listing.Statements.size(); ++i) {
    const int line = listing.Statements[i].Is<StmtIf>() ? WrongElseOf(listing.Statements, i) : 0;
    if (line > 0) findings.push_back({Mistake::DeepElse, line, {}});
  }
}

void FindLabels(const Listing& listing, Findings& findings) {
  QHash<QString, int> lines;
  for (const Statement& each : listing.Statements) {
    if (!each.Is<StmtLabel>()) continue;
    if (lines.contains(each.Rest()))
      findings.push_back(
          {Mistake::DuplicateLabel, each.Line, {each.Rest(), QString::number(lines.value(each.Rest()))}});
    lines.insert(each.Rest(), each.Line);
  }
  for (const Statement& each : listing.Statements) {
    if (each.Is<StmtGoto>() && !lines.contains(each.Rest()))
      findings.push_back({Mistake::UnknownLabel, each.Line, {each.Rest()}});
  }
}

/// After an ENDIF a LABEL swallows the next line.
void FindSwallowed(const Listing& listing, Findings& findings) {
  for (std::size_t i = 1; i < listing.Statements.size(); ++i) {
    const Statement& label = listing.Statements[i];
    if (label.Is<StmtLabel>() && listing.Statements[i - 1].Is<StmtEndIf>())
      findings.push_back({Mistake::LabelAfterEndif, label.Line, {label.Rest()}});
  }
}

}  // namespace

void FindInJumps(const Listing& listing, Findings& findings) {
  FindIfs(listing, findings);
  FindWrongElses(listing, findings);
  FindLabels(listing, findings);
  FindSwallowed(listing, findings);
}

}  // namespace zerimo::classroom
