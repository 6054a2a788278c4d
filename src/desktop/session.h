#pragma once

#include <filesystem>
#include <string>

#include "console/form1.h"
#include "desktop/desktop_services.h"
#include "desktop/desktop_timers.h"
#include "desktop/events.h"
#include "desktop/extension.h"
#include "desktop/frame_watch.h"
#include "desktop/last_rescue.h"
#include "desktop/main_window.h"
#include "pictures/image_canvas.h"

namespace zerimo {

/// One run of the program: the system, the window that shows it, and the delivery of events between the two. Handlers
/// of the system run one at a time; closing the window ends the session.
class Session : public Events {
 public:
  /// The exit status after a failure that nothing caught.
  static constexpr int EndedByFailure = 2;

  /// `available` is the part of the screen that the desktop leaves free, in pixels; for `rescuePlaces` see
  /// `LastRescue`.
  Session(const QRect& available, const Folders& folders, std::vector<std::filesystem::path> rescuePlaces = {});

  /// Loads the form and shows the window.
  void Start();

  /// Once the system has started: shows `words` in a box and opens `file` as `SHOW OPEN` does. Either may be empty.
  void Greet(const std::string& words, const std::filesystem::path& file);

  bool HasEnded() const { return hasEnded_; }
  int ExitStatus() const { return exitStatus_; }

  void Add(std::unique_ptr<Extension> extension) { extensions_.Add(std::move(extension)); }

  /// Delivers an event as soon as the system has started and nothing runs.
  void WhenStarted(const std::function<void(Form1& form1)>& event);

  void Deliver(const std::function<void(Form1& form1)>& event) override;
  bool Close() override;

 private:
  void Run(const std::function<void(Form1& form1)>& event);
  void OpenFile(const std::filesystem::path& file);
  void ShowState();
  void TellFailure(const char* words);
  void End(int status, SessionEnd end);

  Extensions extensions_;

 public:
  // Lent to the extensions.
  ImageCanvas canvas;
  Stage stage;
  DesktopServices services;
  FrameWatch watch;
  Form1 form1;
  MainWindow window;

 private:
  DesktopTimers timers_;
  LastRescue rescue_;
  bool hasEnded_ = false;
  int exitStatus_ = 0;
};

}  // namespace zerimo
