#include <QHash>
#include <QSet>

#include "classroom/findings/findings.h"

namespace zerimo::classroom {

namespace {

/// From this many levels of IF on, an ELSE belongs to the wrong one.
constexpr std::size_t DeepLevels = 3;

/// Follows the IFs of one procedure.
class IfWalk {
 public:
  explicit IfWalk(Findings& findings) : findings_(findings) {}

  void Take(const Statement& statement) {
    if (statement.Is<StmtIf>()) open_.push_back({statement.Line, false});
    if (statement.Is<StmtElse>() && statement.Rest().isEmpty()) TakeElse(statement.Line);
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

  void TakeElse(int line) {
    if (open_.empty()) return findings_.push_back({Mistake::MisplacedElse, line, {}});
    if (open_.size() >= DeepLevels) findings_.push_back({Mistake::DeepElse, line, {}});
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
  FindLabels(listing, findings);
  FindSwallowed(listing, findings);
}

}  // namespace zerimo::classroom
