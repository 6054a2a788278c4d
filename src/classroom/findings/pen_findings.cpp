#include "classroom/findings/findings.h"

namespace zerimo::classroom {

namespace {

/// Follows the pen through one procedure, as far as its lines tell.
class PenWalk {
 public:
  explicit PenWalk(Findings& findings) : findings_(findings) {}

  void Begin() {
    pen_ = Pen::Unknown;
    flooded_ = false;
  }

  void Take(const Statement& statement, bool isCall) {
    // After a call, a jump or a condition the pen's state is unknown.
    if (isCall || statement.Is<StmtLabel, StmtIf, StmtElse, StmtEndIf>()) return Begin();
    if (statement.Is<Action::PenUp>()) pen_ = Pen::Up;
    if (statement.Is<Action::PenDown>()) pen_ = Pen::Down;
    if (statement.Is<Action::PenErase>()) pen_ = Pen::Eraser;
    TellOfPen(statement);
    TellOfFilling(statement);
  }

 private:
  enum class Pen { Unknown, Up, Down, Eraser };

  void TellOfPen(const Statement& statement) {
    using enum Action;
    const bool reverses = statement.Is<PenReverse>();
    if (pen_ == Pen::Eraser && reverses) Add(Mistake::EraserReversed, statement);
    if (pen_ == Pen::Eraser && statement.Is<SetPC>()) Add(Mistake::EraserColour, statement);
    if (pen_ == Pen::Up && reverses) pen_ = Pen::Down;
    if (pen_ == Pen::Up && statement.Is<Dot, Circle, Line, Ellipse>()) Add(Mistake::ShapeWithPenUp, statement);
  }

  void TellOfFilling(const Statement& statement) {
    using enum Action;
    const bool isFull = statement.Is<StampCircle, StampOval, StampRect, Circle, Ellipse>();
    if (statement.Is<FloodFill>()) flooded_ = true;
    if (statement.Is<FillStyle>()) flooded_ = false;
    // A new colour for the inside shows that a full shape is meant.
    if (statement.Is<Fill>()) meansFull_ = true;
    if (flooded_ && meansFull_ && isFull) Add(Mistake::EmptyShapes, statement);
    if (isFull) meansFull_ = false;
  }

  void Add(Mistake mistake, const Statement& statement) {
    findings_.push_back({mistake, statement.Line, {statement.Word()}});
  }

  Findings& findings_;
  Pen pen_ = Pen::Unknown;
  bool flooded_ = false;
  bool meansFull_ = false;
};

}  // namespace

void FindInPens(const Listing& listing, Findings& findings) {
  PenWalk walk(findings);
  int procedure = -2;
  for (const Statement& statement : listing.Statements) {
    if (statement.Procedure != procedure) walk.Begin();
    procedure = statement.Procedure;
    if (!statement.Is<inputs::Repeat>()) walk.Take(statement, listing.Find(statement.Word()) != nullptr);
  }
}

}  // namespace zerimo::classroom
