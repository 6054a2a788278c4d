#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "reference/interpreter/arithmetic.h"
#include "reference/interpreter/context.h"
#include "reference/interpreter/control_path.h"
#include "reference/interpreter/store.h"

namespace zerimo::reference {

/// All variables: 500 text slots, numbered from 1. A slot holds "" (free; most scans stop there), " " (deleted),
/// NAME=value (a global) or PROCEDURE.NAME=value (a local).
class Variables {
 public:
  static constexpr int SlotCount = 500;

  Variables(const InterpreterContext& context, Store& store, ControlPath& controlPath, const Arithmetic& arithmetic);

  /// A slot by its number; fails (subscript) outside 1 to 500.
  const std::string& Slot(int number) const;

  /// Changes a slot and what is derived from it; fails (subscript) outside 1 to 500.
  void SetSlot(int number, std::string text);

  /// Defines the globals of the `MAKE` lines above the first `TO`. Fails (subscript) in a store without a `TO`.
  void CreateGlobalVariable();

  /// Carries out the `MAKE` on a line of the store.
  void VariableUpdate(int lineNumber);

  /// Closes deleted slots; always fails (subscript) after closing one, and never returns if only slots above 100 are
  /// deleted.
  void SpaceRemoverFromVariableArray();
  bool SpacePresent() const;

  /// The text with the locals of the running procedure replaced, trimmed.
  std::string VarValReplacer(std::string& expression) const;

  /// The text with the globals replaced.
  std::string GlobalVariableReplacer(std::string& expression) const;

  /// The text with the words XCOR and YCOR replaced by the turtle's position in steps.
  std::string ReplaceXcorAndYcor(std::string& text) const;

  /// Shows every slot up to the first free one in `List2`; fails (subscript) past the last slot if none is free.
  void RebuildList2();

  /// Sets all slots to one blank and shows them all in `List2`.
  void ForgetAll();

 private:
  std::string EnclosingProcedure(int lineNumber) const;
  void SetLocal(const std::string& key, const std::string& value);
  void SetGlobal(const std::string& name, const std::string& value);
  std::vector<std::string> LocalsOfProcedure() const;
  /// Whether a scan goes on at a slot; never returns past the last slot.
  bool SlotGoesOn(int number) const;
  void ReadGlobal(const std::string& name, double& value) const;

  Store& store_;
  ControlPath& controlPath_;
  const Turtle& turtle_;
  const Window& Form1;
  ListBox& List2;
  const Arithmetic& arithmetic_;
  Watch& watch_;
  std::array<std::string, SlotCount> VariableArray;
};

/// The first name in an expression, or the empty text. The caller's text is trimmed.
std::string VariableFinder(std::string& expression);

/// Whether a character outside the expression alphabet is in the text.
bool VariablePresent(std::string_view expression);

/// The text, with a blank at each end, in which the first occurrence of `find` is replaced if it stands between
/// delimiters. The caller's text gets the blanks too.
std::string Textreplace(std::string& text, std::string_view find, std::string_view replacement);

}  // namespace zerimo::reference
