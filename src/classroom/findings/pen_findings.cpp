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
    if (statement.Is<"PU">()) pen_ = Pen::Up;
    if (statement.Is<"PD">()) pen_ = Pen::Down;
    if (statement.Is<"PE">()) pen_ = Pen::Eraser;
    TellOfPen(statement);
    TellOfFilling(statement);
  }

 private:
  enum class Pen { Unknown, Up, Down, Eraser };

  void TellOfPen(const Statement& statement) {
    const bool reverses = statement.Is<"PX">();
    if (pen_ == Pen::Eraser && reverses) Add(Mistake::EraserReversed, statement);
    if (pen_ == Pen::Eraser && statement.Is<"SETPC">()) Add(Mistake::EraserColour, statement);
    if (pen_ == Pen::Up && reverses) pen_ = Pen::Down;
    if (pen_ == Pen::Up && statement.Is<"DOT", "CIRCLE", "LINE", "ELLIPSE">()) Add(Mistake::ShapeWithPenUp, statement);
  }

  void TellOfFilling(const Statement& statement) {
    const bool isFull = statement.Is<"STAMPCIRCLE", "STAMPOVAL", "STAMPRECT", "CIRCLE", "ELLIPSE">();
    if (statement.Is<"FLOODFILL">()) flooded_ = true;
    if (statement.Is<"FILLSTYLE">()) flooded_ = false;
    // A new colour for the inside shows that a full shape is meant.
    if (statement.Is<"FILL">()) meansFull_ = true;
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
