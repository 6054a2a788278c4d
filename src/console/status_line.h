#pragma once

#include <string_view>

#include "base/services.h"
#include "controls/form_controls.h"
#include "interpreter/turtle_state.h"

namespace zerimo {

/// The window's caption as a status line.
class StatusLine {
 public:
  StatusLine(FormControls& formControls, const TurtleState& turtleState, Services& desktop)
      : controls_(formControls), turtle_(turtleState), services_(desktop) {}

  /// Writes the turtle's details into the caption. Fails (overflow, division by zero) at a heading beyond 16 bits or a
  /// `Resolution` of 0.
  void TitleText();

  /// Writes the time of day into the caption.
  void Timer4Tick();

 private:
  FormControls& controls_;
  const TurtleState& turtle_;
  Services& services_;
};

/// The name that the status line shows for a colour code; empty for anything else.
std::string_view ColourName(std::int32_t code);

/// "Pen Down", "Pen Up" or "Pen Erase"; empty for anything else.
std::string_view PenStateName(std::uint8_t penState);

}  // namespace zerimo
