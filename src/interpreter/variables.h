#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "interpreter/arithmetic.h"
#include "interpreter/context.h"
#include "interpreter/control_path.h"
#include "interpreter/formula_reader.h"
#include "interpreter/formulas.h"
#include "interpreter/operands.h"
#include "interpreter/slot_forms.h"
#include "interpreter/store.h"

namespace zerimo {

/// All variables: 500 text slots, numbered from 1. A slot holds "" (free; most scans stop there), " " (deleted),
/// NAME=value (a global) or PROCEDURE.NAME=value (a local).
/// Behaviour: docs/interpreter.md, "Variables".
class Variables {
 public:
  static constexpr int SlotCount = SlotTable::SlotCount;

  explicit Variables(const ProgramContext& context);

  /// A slot by its number; fails (subscript) outside 1 to 500.
  const std::string& Slot(int number) const { return slotTable_.Text(number); }

  /// Changes a slot and what is derived from it; fails (subscript) outside 1 to 500.
  void SetSlot(int number, std::string text);

  /// Defines the globals of the `MAKE` lines above the first `TO`. Fails (subscript) in a store without a `TO`.
  void CreateGlobalVariable();

  /// Carries out the `MAKE` on a line of the store. Fails as its value does, and (subscript) after it has closed a
  /// deleted slot or taken the last free one. With no free slot it never returns. Nothing calls it: the runner has
  /// `Make`.
  void VariableUpdate(int lineNumber);

  /// The same, but returns false where `VariableUpdate` fails after its work is done.
  bool Make(int lineNumber);

  /// Closes deleted slots; always fails (subscript) after closing one, and never returns if only slots above 100 are
  /// deleted. Nothing calls it: `Make` closes them itself.
  void SpaceRemoverFromVariableArray();
  bool SpacePresent() const noexcept;

  /// The text with the locals of the running procedure replaced, trimmed.
  std::string VarValReplacer(std::string& expression) const;

  /// The text with the globals replaced.
  std::string GlobalVariableReplacer(std::string& expression) const;

  /// The text with the words XCOR and YCOR replaced by the turtle's position in steps.
  std::string ReplaceXcorAndYcor(std::string& text) const;

  /// Shows every slot up to the first free one in `List2`; fails (subscript) past the last slot if none is free.
  void RebuildList2();

  /// The number of the first slot that is free or deleted; fails (subscript) if there is none.
  int FirstOpenSlot() const;

  bool HasFreeSlot() const noexcept { return freeSlots_ != 0; }

  /// The slots up to the first free one that hold entries of a procedure.
  const std::vector<int>& SlotsOfProcedure(const std::string& name) const;

  /// Removes the entries of procedures and closes all gaps up to the first free slot. Never fails: unlike the deletion
  /// at an `END`, it needs no free slot.
  void RemoveLocals(const std::vector<std::string>& procedures);

  /// The number of the current state of all names: what a search has found is valid in the same state. Values that are
  /// numbers do not count.
  std::uint64_t Names() const noexcept { return names_.Now(); }

  /// The names that a text is read with now; nothing if a search for them would never end.
  std::optional<NamesInUse> InUse() const;

  /// The text that replaces a name which is the only operand; nothing if its value is not a plain number.
  std::optional<std::string> TextOf(const Operand& operand) const;

  /// The formulas of the texts that are evaluated with these variables.
  const Formulas& Known() const noexcept { return formulas_; }

  /// A text that belongs to no line, with the formulas that it had when it was last evaluated.
  const EvaluatedText& Known(std::string_view text) const { return formulas_.Known(text); }

  /// The value of an expression for the whole line, all of whose stages succeed or fail together; no number unless the
  /// formula is known to give it.
  double KnownValue(const EvaluatedText& expression) const {
    return operands_.CoordinatesExist() ? formulas_.Value(expression) : NoNumber;
  }
  /// The same for a condition.
  std::optional<bool> KnownToHold(const EvaluatedText& condition) const {
    return operands_.CoordinatesExist() ? formulas_.Holds(condition) : std::nullopt;
  }

  /// Sets all slots to one blank and shows them all in `List2`.
  void ForgetAll();

 private:
  /// Where a `MAKE` writes, for a state of the store and of the names; 0 for nowhere.
  struct MakeSlots {
    std::uint64_t Lines = 0;
    std::uint64_t Names = 0;
    int Local = 0;
    int Global = 0;
  };
  struct ProcedureSlots {
    std::uint64_t Names = 0;
    std::vector<int> Slots;
  };

  double ValueAsText(std::string_view expression) const;
  std::string EnclosingProcedure(int lineNumber) const;
  void SetByName(int lineNumber, const std::string& name, double value);
  /// The slots that a `MAKE` writes to; null if the names would change.
  const MakeSlots* SlotsOf(int lineNumber, const std::string& name) {
    const MakeSlots& known = makes_[static_cast<std::size_t>(lineNumber)];
    const bool isValid = known.Lines == context_.store.Changes() && known.Names == Names();
    return isValid ? &known : FindSlots(lineNumber, name);
  }
  const MakeSlots* FindSlots(int lineNumber, const std::string& name);
  int FindLocal(const std::string& key) const;
  /// The slot that a global is written to, 0 if a local without a procedure is in the way.
  int FindGlobal(const std::string& name) const;
  bool CloseDeletedSlots();
  void CloseSlot(int number);
  /// Never fails: with no free slot it never returns.
  std::vector<int> LocalsOfProcedure() const;
  /// Whether a scan goes on at a slot; never returns past the last slot.
  bool SlotGoesOn(int number) const;
  /// The slot of a global, or 0. Never fails: with no free slot it never returns.
  int GlobalSlot(std::string_view name) const;
  void ReadGlobal(const std::string& name, double& value) const;
  void KeepFormer(int number);
  void ListSlots() noexcept;
  std::vector<std::string> ListedSlots() const;

  ProgramContext context_;
  SlotTable slotTable_;
  NameStates names_;
  Operands operands_;
  mutable Formulas formulas_;
  std::vector<MakeSlots> makes_{Store::LineCount + 1};
  mutable TextMap<ProcedureSlots> procedures_;
  /// How many slots hold "" and how many " ".
  int freeSlots_ = SlotCount;
  int deletedSlots_ = 0;
  /// No slot before `openFrom_` is free or deleted; none after `usedUpTo_` is in use.
  mutable int openFrom_ = 1;
  int usedUpTo_ = 0;
  /// While `List2` is put off: the texts that slots had then, for those that have changed since.
  std::array<std::string, SlotCount> former_;
  std::array<bool, SlotCount> isFormer_{};
  std::vector<std::size_t> formerSlots_;
};

/// The first name in an expression, or the empty text. The caller's text is trimmed.
std::string VariableFinder(std::string& expression);

/// Whether a character outside the expression alphabet is in the text.
bool VariablePresent(std::string_view expression) noexcept;

/// The text, with a blank at each end, in which the first occurrence of `find` is replaced if it stands between
/// delimiters. The caller's text gets the blanks too.
std::string Textreplace(std::string& text, std::string_view find, std::string_view replacement);

}  // namespace zerimo
