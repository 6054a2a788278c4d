#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "classroom/findings/known_words.h"

namespace zerimo::classroom {

/// One statement as its pupil wrote it: a line outside REPEAT, or a part of a body.
struct Statement {
  /// The line of the file, from 1.
  int Line = 0;
  /// On one line with single blanks; the text between quotes is one character, which `Listing::AsWritten` knows.
  QString Text;
  bool InBody = false;
  /// The index of its procedure, or -1 outside.
  int Procedure = -1;
  /// The row of its word, or null.
  const WordFacts* Known = nullptr;

  /// Whether it only begins with a sign, as a remark does: "// draws a house".
  bool IsRemark() const;
  QString Word() const { return Text.section(u' ', 0, 0); }
  QString Rest() const { return Text.section(u' ', 1); }
  /// What follows its word, cut as a reader would: blanks beside a sign cut nothing, except before a minus number.
  QStringList Inputs() const;

  /// Whether its word is one of these; see `IsOneOf`.
  template <Meaning... Which>
  bool Is() const {
    return IsOneOf<Which...>(Known);
  }
};

struct ListedProcedure {
  QString Name;
  /// With their colons.
  QStringList Inputs;
  int Line = 0;
  bool HasEnd = false;
};

/// The text of a program taken apart as a reader would.
class Listing {
 public:
  explicit Listing(const QString& program);

  /// A text of a statement with what was between its quotes.
  QString AsWritten(QString text) const;

  /// The lines of the file without their ends.
  QStringList Lines;
  std::vector<ListedProcedure> Procedures;
  /// Without the lines `TO` and `END`.
  std::vector<Statement> Statements;

  QStringList ProcedureNames() const;
  const ListedProcedure* Find(const QString& name) const;
  /// Whether the program loads others, whose procedures and names it may use.
  bool Loads() const;
  /// The inputs of a statement that are worked out, or the count of a REPEAT.
  QStringList SumsOf(const Statement& statement) const;
  /// How many inputs the word of a statement takes, or nothing if it is unknown, or takes a name or all that follows.
  std::optional<qsizetype> InputsTakenBy(const Statement& statement) const;

 private:
  QString WithoutQuoted(QString line);
  void TakeHead(const QString& line, int number);
  void TakeStatement(const QString& text, int number, bool inBody);
  void TakeBody(const QString& body, int number);

  int current_ = -1;
  /// What was between quotes, in order.
  QStringList quoted_;
};

/// The lines of a text, however they end.
QStringList LinesOf(const QString& text);

/// A REPEAT in three parts. What is missing is empty.
struct RepeatParts {
  QString Count;
  QString Body;
  /// What follows the closing bracket.
  QString After;
};
RepeatParts PartsOf(const QString& repeat);

}  // namespace zerimo::classroom
