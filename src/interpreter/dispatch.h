#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "base/services.h"
#include "interpreter/arguments.h"
#include "interpreter/line_form.h"
#include "interpreter/primitive_call.h"
#include "interpreter/word_table.h"

namespace zerimo {

/// What the box for a missing input says, before the word.
constexpr const char* MissingInputWords = "Required Paramiter Missing After ";

/// Carries out primitive lines: the line and its first word are compared with each primitive's name, and the action
/// bound to the name does the work. Runs under the skip rule; so do the actions, statement by statement.
/// Behaviour: docs/interpreter.md, "Carrying out a word".
class Dispatch {
 public:
  using Handler = std::function<void(PrimitiveCall&)>;

  explicit Dispatch(Services& services) : services_(services) {}

  /// Binds an action to what it does. Without a handler an action does nothing (but for its missing-input test).
  void Bind(Action action, Handler handler) noexcept;

  /// Carries out one line; the caller's text is trimmed.
  void Executor(std::string& commandLine);

  /// The same for a fixed text.
  void Execute(std::string commandLine) { Executor(commandLine); }

  /// The same for a line of the store.
  void Execute(const LineForm& line);

  /// If the input is missing, shows the box that says so. Returns whether it was missing.
  bool TellMissingInput(const PrimitiveCall& call, Action action) {
    return call.InputIsMissing() && TellMissing(call, action);
  }

  /// The steps of the tail that other rooms provide: move the figure, write the status line, refresh the surface.
  std::function<void()> TurtlePos = [] {};
  std::function<void()> TitleText = [] {};
  std::function<void()> RefreshSurface = [] {};

  /// `SHOW DETAILS` is on.
  bool DetailsOn = false;
  /// Primitive calls so far, stopping at 32767.
  std::int16_t OverflowCount = 0;

 private:
  bool TellMissing(const PrimitiveCall& call, Action action);
  void CarryOut(PrimitiveCall& call, Action action);
  void Tail(const PrimitiveCall& call);
  /// A full count fails each time; the failure is reported without being thrown.
  void CountFails(const PrimitiveCall& call);
  bool TailStatement(const PrimitiveCall& call, const std::function<void()>& statement);

  Services& services_;
  std::array<Handler, ActionCount> handlers_;
};

}  // namespace zerimo
