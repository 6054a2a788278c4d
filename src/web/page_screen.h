#pragma once

#include <map>
#include <string>
#include <vector>

#include "console/form1.h"
#include "pixels/pixel_canvas.h"

namespace zerimo::web {

/// Tells the page what has changed since the last time: a part of the picture, and controls with all their
/// properties if they are seen.
class PageScreen {
 public:
  PageScreen(Form1& form1, PixelCanvas& canvas) : form1_(form1), canvas_(canvas) {}

  /// What the controls are called and what they are for. To be called once.
  void Describe();

  void Show();

 private:
  void ShowPicture();
  void ShowControl(Control& control, std::string& changes);
  void ShowTimer(const Timer& timer, std::string& changes);
  void ShowPage(std::string& changes);
  void ShowFocus(std::string& changes);
  void Add(const void* what, std::string words, std::string& changes);

  Form1& form1_;
  PixelCanvas& canvas_;
  /// What the page was last told about each control.
  std::map<const void*, std::string> shown_;
  std::map<const ListBox*, std::uint64_t> shownLists_;
  std::uint64_t shownPage_ = 0;
};

}  // namespace zerimo::web
