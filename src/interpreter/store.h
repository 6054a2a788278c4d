#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "base/text.h"
#include "controls/control_kinds.h"
#include "interpreter/line_form.h"
#include "interpreter/since_change.h"
#include "interpreter/statement_class.h"

namespace zerimo {

/// The program store: 2000 text lines, numbered from 1. The first empty line ends it: every search stops there,
/// whatever stale text follows. A procedure is a run of lines from its `TO` line to its `END`; one whose name begins
/// with # is temporary and holds a typed line.
/// Behaviour: docs/interpreter.md, "The program store".
class Store {
 public:
  static constexpr int LineCount = 2000;

  /// Fills `List3` with the `TO` lines.
  explicit Store(ListBox& list3) : List3(list3) {}

  /// A line by its number; fails (subscript) outside 1 to 2000.
  const std::string& Line(int number) const { return FileDataArray[Index(number)]; }

  /// Changes a line and drops what was derived from it; fails (subscript) outside 1 to 2000.
  void SetLine(int number, std::string text);

  /// What is derived from a line, kept until its text changes. Fails like `Line`.
  [[gnu::always_inline]] const LineForm& FormOf(int number) const {
    const std::size_t index = Index(number);
    return forms_[index] ? *forms_[index] : MakeForm(index);
  }

  /// The class of a line (`WhatIsThis`). Fails like `Line`.
  [[gnu::always_inline]] StatementClass ClassOf(int number) const { return FormOf(number).Class; }

  /// Counts the changes of lines: what is derived from several lines is valid as long as this stays the same.
  std::uint64_t Changes() const noexcept { return changes_; }

  /// `GiveWord` for the first word of a line, in place: the line is trimmed and gets one blank at its end. Fails like
  /// `GiveWord`.
  std::string TakeFirstWord(int number);

  /// Trims a line in place.
  void TrimLine(int number) {
    if (!FormOf(number).IsTrimmed) SetLine(number, std::string(Trimmed(Line(number))));
  }

  /// The number of the first empty line; fails (subscript) if there is none.
  int FirstEmptyLine() const;

  /// Number of the last used line: the write position of `MakeArray`, refreshed by `Ifprocessor`.
  std::int16_t FileDataCount = 0;

  /// Empties the lines from 1 up to the first empty one; stale text after a gap survives. A store with no empty line is
  /// emptied, and then it fails (subscript).
  void MakeEmptyFileDataArray();

  /// The number of the procedure's `TO` line, or 0.
  std::int16_t WhereProcedure(std::string_view procedure) const;

  /// The number of the `TO` line at or above a line, or 0. Fails like `Line`.
  int HeaderOf(int number) const;

  /// How many lines of the procedure up to line `FileDataCount` are exactly `command`. Nothing calls it. Fails
  /// (subscript) if `FileDataCount` is over 1000, and for an unknown procedure.
  std::int16_t HowMany(std::string_view procedure, std::string_view command) const;

  /// Whether "TO #" occurs anywhere in a line.
  bool IsTempProcedurePresent() const;

  /// Removes the first temporary procedure, if there is one. Fails (subscript), and leaves the store as it was, if more
  /// than 100 lines would remain; with exactly 100 it fails (subscript) after writing them.
  void TempFileDataArray();

  /// Removes all temporary procedures; fails like `TempFileDataArray`.
  void RefreshFileDataArray();

  /// Fills `List3` with the `TO` lines, temporary ones too.
  void ProcedureList();

  /// The user's procedures as "[BOX :S]   [STAR]   ".
  std::string ProcedureListInStringForm() const;

 private:
  friend class LentLine;

  static std::size_t Index(int number) {
    if (number < 1 || number > LineCount) FailOutside();
    return static_cast<std::size_t>(number - 1);
  }
  [[noreturn]] static void FailOutside();
  const LineForm& MakeForm(std::size_t index) const;
  void Put(std::size_t index, std::string text) noexcept;

  std::int16_t FindProcedure(std::string_view procedure) const;

  ListBox& List3;
  std::array<std::string, LineCount> FileDataArray;
  mutable std::array<std::unique_ptr<LineForm>, LineCount> forms_;
  std::uint64_t changes_ = 0;
  // What is known of the current lines.
  mutable SinceChange<int> firstEmptyLine_;
  mutable SinceChange<TextMap<std::int16_t>> procedures_;
};

/// A line of the store lent to a procedure that changes its caller's text. The line is written back when the loan ends,
/// even by a failure.
class LentLine {
 public:
  LentLine(Store& store, int number) : Text(store.Line(number)), store_(store), index_(store.Index(number)) {}
  ~LentLine() { store_.Put(index_, std::move(Text)); }
  LentLine(const LentLine&) = delete;
  LentLine& operator=(const LentLine&) = delete;

  std::string Text;

 private:
  Store& store_;
  std::size_t index_;
};

/// Shows the whole store in a list, each line after its number and two blanks, trimming the lines in the store up to
/// the first empty one.
void ListStore(Store& store, ListBox& list1);

}  // namespace zerimo
