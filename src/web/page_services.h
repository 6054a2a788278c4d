#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

#include "base/services.h"
#include "base/watch.h"
#include "console/running_line.h"

namespace zerimo::web {

/// Boxes, dialogs, waits and sounds of the page. Each leaves the run with `StopRun` if the user stops the program.
class PageServices : public Services {
 public:
  /// `show` brings the page up to date.
  explicit PageServices(std::function<void()> show) : show_(std::move(show)) {}

  Answer MessageBox(const std::string& text, int style, const std::string& title) override;
  std::string InputBox(const std::string& prompt, const std::string& title, const std::string& defaultAnswer) override;
  std::string ShowOpen() override;
  std::string ShowSave(const std::string& text) override;
  void Sleep(std::int32_t milliseconds) override;
  void Beep() override;
  std::string TimeOfDay() override;

  /// The next `ShowOpen` answers with this path at once.
  void OfferFile(const std::string& systemPath) { offeredFile_ = systemPath; }

 private:
  std::string Ask(const std::string& question);

  std::function<void()> show_;
  std::string offeredFile_;
};

/// Shows the picture as it grows while a line runs, at most once in a frame, and lets the user stop the program.
class PageWatch : public Watch {
 public:
  /// `step` is called before each line not run at full speed; it returns whether the next line is one of these too.
  PageWatch(std::function<void()> show, std::function<bool()> step) : show_(std::move(show)), step_(std::move(step)) {}

  /// To be called when a handler begins.
  void Begin();
  void Tick() override;

 private:
  void LookAtStep() override;
  void LookForFrame();

  std::function<void()> show_;
  std::function<bool()> step_;
  bool isStepped_ = false;
  /// In milliseconds of the browser's clock.
  double nextFrame_ = 0;
  std::uint64_t ticksTaken_ = 0;
  std::uint64_t nextTickLook_ = 0;
  /// Steps and rounds before the last frame.
  std::uint64_t takenAtFrame_ = 0;
  std::uint64_t stepsPerLook_ = 1;
};

/// Shows the lines of a program one by one, as slowly as the user has chosen on the page.
class PagePace {
 public:
  /// `show` brings the page up to date.
  PagePace(const Interpreter& interpreter, std::function<void()> show)
      : runningLine_(interpreter), show_(std::move(show)) {}

  /// Shows the line that runs next, holds it, and returns true; at full speed does nothing and returns false. Leaves
  /// the run with `StopRun` if the user stops the program.
  bool Step();

  /// Must be called when a handler is over.
  void End();

 private:
  void Tell();

  RunningLine runningLine_;
  std::function<void()> show_;
};

}  // namespace zerimo::web
