#pragma once

#include <string>

#include "base/stop_run.h"
#include "pixels/pixel_buffer.h"

/// What the page supplies: functions of the worker in which the system runs (`page/src/worker.ts`). Texts are UTF-8,
/// and messages are JSON.
namespace zerimo::web {

/// Hands a message to the page and does not wait.
void TellPage(const std::string& message);

/// Shows a part of the picture, which is inside it.
void ShowPart(const PixelBuffer& pixels, const PixelRect& part);

/// Holds the system until the page has answered a message. An answer that begins with a plus sign has its text after
/// it; the empty one means that the box was cancelled.
std::string AskPage(const std::string& question);

/// Holds the system for a time, or until the user stops the program.
void HoldFor(double milliseconds);

/// Whether the page can show another frame since this was last asked, or the user wants the program to stop. Reading
/// the clock would take longer than most lines.
bool TakeFrame();

/// The browser's clock, in milliseconds.
double PageClock();

/// Whether the user wants the program to stop; asked again, it says no.
bool TakeStop();

/// Leaves the run with `StopRun` if the user wants the program to stop.
inline void LeaveIfStopped() {
  if (TakeStop()) throw StopRun();
}

/// How long a line is shown before it runs, in milliseconds; 0 at full speed, negative until the user goes on.
double ChosenPause();

/// Holds the system for this pause, until the user goes on, chooses another one or stops the program. Must be called
/// after `ChosenPause`: what the user has done since then counts.
void HoldLine(double pause);

/// The time of day in the browser's short form.
std::string PageTimeOfDay();

}  // namespace zerimo::web
