#include <QStringList>

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
    const QString word = statement.Word();
    // After a call, a jump or a condition the pen's state is unknown.
    if (isCall || word == "LABEL" || word == "IF" || word == "ELSE" || word == "ENDIF") return Begin();
    if (word == "PU" || word == "PENUP") pen_ = Pen::Up;
    if (word == "PD" || word == "PENDOWN") pen_ = Pen::Down;
    if (word == "PE" || word == "PENERASE") pen_ = Pen::Eraser;
    TellOfPen(statement, word);
    TellOfFilling(statement, word);
  }

 private:
  enum class Pen { Unknown, Up, Down, Eraser };

  void TellOfPen(const Statement& statement, const QString& word) {
    static const QStringList shapes = {"DOT", "CIRCLE", "LINE", "ELLIPSE"};
    if (pen_ == Pen::Eraser && (word == "PX" || word == "PENREVERSE")) Add(Mistake::EraserReversed, statement);
    if (pen_ == Pen::Eraser && word == "SETPC") Add(Mistake::EraserColour, statement);
    if (pen_ == Pen::Up && (word == "PX" || word == "PENREVERSE")) pen_ = Pen::Down;
    if (pen_ == Pen::Up && shapes.contains(word)) Add(Mistake::ShapeWithPenUp, statement);
  }

  void TellOfFilling(const Statement& statement, const QString& word) {
    static const QStringList filled = {"STAMPCIRCLE", "STAMPOVAL", "STAMPRECT", "CIRCLE", "ELLIPSE"};
    if (word == "FLOODFILL") flooded_ = true;
    if (word == "FILLSTYLE") flooded_ = false;
    // A new colour for the inside shows that a full shape is meant.
    if (word == "FILL") meansFull_ = true;
    if (flooded_ && meansFull_ && filled.contains(word)) Add(Mistake::EmptyShapes, statement);
    if (word != "FILL") meansFull_ = meansFull_ && !filled.contains(word);
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
    if (statement.Word() != "REPEAT") walk.Take(statement, listing.Find(statement.Word()) != nullptr);
  }
}

}  // namespace zerimo::classroom
