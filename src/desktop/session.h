#pragma once

#include <filesystem>
#include <string>

#include "console/form1.h"
#include "desktop/desktop_services.h"
#include "desktop/desktop_timers.h"
#include "desktop/events.h"
#include "desktop/frame_watch.h"
#include "desktop/main_window.h"
#include "pictures/image_canvas.h"

namespace zerimo {

/// One run of the program: the system, the window that shows it, and what carries events between the two. Handlers of
/// the system run one at a time; the end of the window is the end of the session.
class Session : public Events {
 public:
  /// The exit status after a failure that nothing caught.
  static constexpr int EndedByFailure = 2;

  /// `available` is what the desktop leaves free of the screen, in pixels.
  Session(const QRect& available, const std::string& appFolder);

  /// Loads the form and shows the window.
  void Start();

  /// Once the start is over: tells something in a box, if there is something to tell, and opens a file as `SHOW OPEN`
  /// does, if one is named.
  void Greet(const std::string& words, const std::filesystem::path& file);

  bool HasEnded() const { return hasEnded; }
  int ExitStatus() const { return exitStatus; }
  Form1& System() { return form1; }
  MainWindow& Shown() { return window; }

  void Deliver(const std::function<void(Form1& form1)>& event) override;
  bool Close() override;

 private:
  void Run(const std::function<void(Form1& form1)>& event);
  void OpenFile(Form1& form, const std::filesystem::path& file);
  void ShowState();
  void TellFailure(const char* words);
  void End(int status);

  ImageCanvas canvas;
  Stage stage;
  DesktopServices services;
  FrameWatch watch;
  Form1 form1;
  MainWindow window;
  DesktopTimers timers;
  bool hasEnded = false;
  int exitStatus = 0;
};

}  // namespace zerimo
