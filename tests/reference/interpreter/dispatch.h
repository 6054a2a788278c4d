#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "base/services.h"
#include "interpreter/word_table.h"
#include "reference/interpreter/arguments.h"

namespace zerimo::reference {

/// The locals of one call of `Executor` that the actions share.
struct PrimitiveCall {
  /// The whole line, trimmed.
  std::string CommandLine;
  /// The first word.
  std::string Word;
  /// The text after the first word; an action may rewrite it.
  std::string Rest;
  /// The copy of Rest that the missing-input test looks at.
  std::string SavedRest;
  /// If an action sets it, a failing statement of the tail calls it instead of being skipped.
  std::function<void()> OnFailure;

  /// Whether the saved copy of Rest is the empty text or one blank.
  bool InputIsMissing() const { return SavedRest.empty() || SavedRest == " "; }
};

/// Carries out primitive lines: the line's first word is compared with each primitive's name in a fixed order, and the
/// action bound to the name does the work. Runs under the skip rule; so do the actions, statement by statement.
class Dispatch {
 public:
  using Handler = std::function<void(PrimitiveCall&)>;

  explicit Dispatch(Services& services) : services_(services) {}

  /// Binds an action to what it does. Without a handler an action does nothing (but for its missing-input test).
  void Bind(Action action, Handler handler);

  /// Carries out one line; the caller's text is trimmed.
  void Executor(std::string& commandLine);

  /// The same for a fixed text.
  void Execute(std::string commandLine) { Executor(commandLine); }

  /// If the input is missing, shows the box that says so. Returns whether it was missing.
  bool TellMissingInput(const PrimitiveCall& call, Action action);

  /// The steps of the tail that other rooms provide: move the figure, write the status line, refresh the surface.
  std::function<void()> TurtlePos = [] {};
  std::function<void()> TitleText = [] {};
  std::function<void()> RefreshSurface = [] {};

  /// `SHOW DETAILS` is on.
  bool DetailsOn = false;
  /// Primitive calls so far, stopping at 32767.
  std::int16_t OverflowCount = 0;

 private:
  void RunGroup(MatchedBy group, PrimitiveCall& call);
  bool Matches(const ActionFacts& facts, const PrimitiveCall& call) const;
  void Tail(const PrimitiveCall& call);
  bool TailStatement(const PrimitiveCall& call, const std::function<void()>& statement);

  Services& services_;
  std::array<Handler, ActionCount> handlers_;
};

}  // namespace zerimo::reference
