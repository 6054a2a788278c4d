#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "interpreter/since_change.h"

namespace zerimo {

/// The control string: the dotted path of the active procedures with the line reached in each, such as
/// ".#TEMP$7- 5.BOX- 3". "." means that nothing runs. It is the only call stack.
/// Behaviour: docs/interpreter.md, "The control string".
///
/// The path is a head, which ends with its last "-", and the line number after it; the text is made when it is read. A
/// path that is not of that form, or begins with a blank, is kept as text.
class ControlPath {
 public:
  /// Whether a number is written with the leading blank of `Str`, or plain.
  enum class Lead { Blank, None };

  const std::string& CtrlStr() const;

  /// Sets the path to any text. Never fails.
  void SetCtrlStr(std::string text);

  /// Writes a line number after the first part of the path (`FirstPartExtractor`). Never fails.
  void WriteLine(int line, Lead lead) {
    if (!reached_.IsKnown() || line < 0) return WriteAsText(line, lead);
    reached_ = {line, lead};
    textIsMade_ = false;
  }

  /// A call: the line of the call in place of the last number, then the procedure and its first line. Never fails.
  void Enter(int callLine, std::string_view procedure, int firstLine);

  /// Removes the last component; false if there was only one, so that nothing runs. Never fails.
  bool Leave();

  /// The line reached (`EndValExtractor`).
  std::int16_t LineReached() const {
    return reached_.IsKnown() && reached_.Line <= INT16_MAX ? static_cast<std::int16_t>(reached_.Line) : ReadLine();
  }

  /// Trims the path and drops its last component if it is the same text as the one before it (`RecursionChecker`).
  /// Never fails.
  void Tidy() {
    if (!reached_.IsKnown() || reached_ == recursionAt_) TidyText();
  }

  bool NothingRuns() const { return !reached_.IsKnown() && (head_ == "." || head_ == " " || head_.empty()); }

  /// Name of the procedure whose locals are being made or removed.
  std::string CurProcName;

  /// The name of the procedure that is running: the text between the last "." and the last "-", trimmed; empty for
  /// ".". Fails (invalid argument) if there is no such stretch.
  std::string CurrentProcedureName() const;

  /// The same, empty where that fails.
  const std::string& ProcedureName() const noexcept { return procedureName_; }

  /// A number for that name: equal numbers stand for equal names as long as the system runs.
  std::uint32_t ProcedureNumber() const noexcept { return procedureNumber_; }

 private:
  /// A line number at the end of the path, if the path has that form.
  struct Reached {
    int Line = -1;
    Lead Form = Lead::None;
    bool IsKnown() const noexcept { return Line >= 0; }
    bool operator==(const Reached&) const = default;
  };
  static Reached ReadReached(std::string_view text);
  void WriteAsText(int line, Lead lead);
  std::int16_t ReadLine() const;
  void TidyText();
  void HeadHasChanged();

  /// The head if the line reached is known, otherwise the whole path.
  std::string head_ = ".";
  Reached reached_;
  mutable std::string text_ = ".";
  mutable bool textIsMade_ = true;
  // Derived from the head.
  std::string procedureName_;
  std::uint32_t procedureNumber_ = 0;
  /// The line at which the last two components are the same text, if there is one.
  Reached recursionAt_;
  TextMap<std::uint32_t> numbers_;
  std::uint32_t lastNumber_ = 0;
};

/// The text up to and including its last "-"; no "-" gives the empty text. Never fails.
std::string FirstPartExtractor(std::string_view text);

/// The number after the last "-", rounded; fails (overflow) beyond 16 bits.
std::int16_t EndValExtractor(std::string_view text);

/// The trimmed characters before the first blank, or all of them. Nothing calls it.
std::string GetProcNameFromProcedureCall(std::string_view procedureCall);

/// The path without its last component; "." if the text holds one "." or none. Nothing calls it: `RecursionChecker`
/// needs no copy.
std::string CurrentProcedureRemover(std::string_view path);

/// Drops the last component if it is the same text as the one before it, so that a recursion does not lengthen the
/// path. The test is on the text: " 5" and "5" differ. Shortens its argument in place and returns it.
std::string RecursionChecker(std::string& path);

/// The position of the last ".". Nothing calls it.
int RightMostDotPos(std::string_view text) noexcept;

/// The text before the last "-", trimmed, then "-", then the number after it plus 1. Nothing calls it.
std::string ForwardCtrlString(std::string_view text);

}  // namespace zerimo
