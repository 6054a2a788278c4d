#pragma once

#include <string_view>

#include "base/services.h"
#include "controls/controls.h"
#include "interpreter/turtle.h"

namespace zerimo {

/// The window's caption as a status line.
class StatusLine {
 public:
  StatusLine(Controls& controls, const Turtle& turtle, Services& services)
      : controls_(controls), turtle_(turtle), services_(services) {}

  /// Writes the turtle's details into the caption. Fails (overflow, division by zero) at a heading beyond 16 bits or a
  /// `Resolution` of 0.
  void TitleText();

  /// Writes the time of day into the caption.
  void Timer4Tick();

 private:
  Controls& controls_;
  const Turtle& turtle_;
  Services& services_;
};

/// The name that the status line shows for a colour code; empty for anything else.
std::string_view ColourName(std::int32_t code) noexcept;

}  // namespace zerimo
