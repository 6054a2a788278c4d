#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "interpreter/context.h"
#include "interpreter/store.h"

namespace zerimo {

/// The statements of one body: 200 texts, used from index 1; the first empty text ends them. After a failure while
/// splitting it is the text "." instead, and indexing it fails (type mismatch).
class BodyArray {
 public:
  static constexpr int LastIndex = 200;
  /// Fails (subscript) outside 1 to 200, (type mismatch) for the text ".".
  const std::string& At(int index) const;
  void Set(int index, std::string statement);
  /// Makes it the text ".".
  void BecomeDot() noexcept { dot_ = true; }

 private:
  std::array<std::string, LastIndex> statements_;
  bool dot_ = false;
};

/// The lines that replace one `REPEAT` line: 100 texts, used from index 1; the first empty text ends them.
class LineList {
 public:
  static constexpr int LastIndex = 100;
  /// Fails (subscript) outside 1 to 100.
  const std::string& At(int index) const;
  void Set(int index, std::string line);

 private:
  std::array<std::string, LastIndex> lines_;
};

/// Rewrites every `REPEAT` line of the store into a counter, a label, the body's statements, and a jump.
/// Behaviour: docs/interpreter.md, "REPEAT".
class Lowering {
 public:
  explicit Lowering(const ProgramContext& context) : context_(context) {}

  /// Grows by one "#" for each lowering: the counter's name.
  std::string RepeatCounterName;
  /// Grows by one "$" for each lowering: the label's name.
  std::string RepeatLabelName;

  /// Rewrites the store until no `REPEAT` line is left. Fails as its steps do; the line then stays.
  void RemoveAllRepeats();

  /// 1 if a line before the first empty one is a `REPEAT` line, else 0.
  std::int16_t IsRepeatPresent() const;
  /// The number of the first `REPEAT` line, or 0.
  std::int16_t SearchRepeatPos() const;
  /// Lowers the first `REPEAT` line.
  void RemoveSingleRepeat();
  /// The text between the first "[" of a line and its last character.
  std::string BodyFinder(int lineNumber) const;
  /// Splits a body into statements; the caller's text is consumed.
  BodyArray CreateBodyArray(std::string& body) const;
  /// The count expression of a `REPEAT` line. Fails if it can't be evaluated to 16 bits now.
  std::string RepeatNum(std::string_view line) const;
  /// The lines for the first `REPEAT` line; uses up a counter's and a label's name.
  LineList AddComponents();
  /// Puts the lines in the place of the first `REPEAT` line.
  void RefreshRootArray(const LineList& lines);

  /// Forgets the names used so far, for the diagnosis panel's refresh.
  void ForgetNames() noexcept;

 private:
  ProgramContext context_;
};

/// Whether a line sets a counter, is the label, or jumps to the label, of what stands for a `REPEAT`.
bool SetsRepeatCounter(std::string_view line) noexcept;
bool IsRepeatLabel(std::string_view line) noexcept;
bool IsRepeatJump(std::string_view line) noexcept;

/// The characters before the first blank.
std::string Firstpart(std::string_view body);

/// The number of inputs of a word, or a negative marker (`inputs::`). A word that is not a primitive is looked up in
/// the store. Fails (overflow) at a header with no blank or more than 255.
/// Behaviour: docs/interpreter.md, "HowManyInput".
std::int16_t HowManyInput(std::string_view command, const Store& store);

}  // namespace zerimo
