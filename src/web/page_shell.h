#pragma once

#include <filesystem>
#include <functional>

#include "console/form1.h"
#include "pixels/pixel_canvas.h"
#include "web/page_screen.h"
#include "web/page_services.h"

namespace zerimo::web {

/// The system as a page shows it. `programs/zerimo_page.cpp` is what the page calls.
class PageShell {
 public:
  /// Fails (file access) if the font of printed text can't be read.
  PageShell(ScreenSize screen, const std::filesystem::path& fontFile, Folders folders);

  /// Runs a handler of the system and shows what it has left. Does nothing once the system has ended.
  void Deliver(const std::function<void(Form1& form1)>& event);

  /// Opens a file of the folder as `SHOW OPEN` does.
  void Open(const std::string& systemPath);

 private:
  void Run(const std::function<void(Form1& form1)>& event);
  void End(const std::string& by);

  PixelCanvas canvas_;
  PageServices services_;
  PageWatch watch_;

 public:
  Form1 form1;

 private:
  PageScreen screen_;
  PagePace pace_;
  bool hasEnded_ = false;
};

}  // namespace zerimo::web
