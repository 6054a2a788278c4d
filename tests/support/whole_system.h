#pragma once

#include <string>
#include <vector>

#include "console/form1.h"
#include "graphics/canvas.h"
#include "support/fake_services.h"
#include "support/limited_watch.h"

namespace zerimo {

/// The whole system over a canvas without pixels, started and with the focus on row 0.
struct WholeSystem {
  explicit WholeSystem(ScreenSize screen = {}, const std::string& appFolder = ".")
      : System(screen, appFolder, Desktop, Watch, Pixels), Controls(System.Controls) {
    System.Load();
    System.Tick(Controls.Timer2);
  }

  /// Types a line on a row and presses Enter.
  void Type(const std::string& line, int row = 0) {
    Controls.Text1[row].Text = line;
    System.KeyDown(Controls.Text1[row], key::Enter);
  }

  void Press(Control& control, int keyCode) { System.KeyDown(control, keyCode); }

  /// The name of the control that has the focus, or the empty text.
  std::string Focus() const {
    const Control* focus = Controls.Focus.Focus();
    return focus == nullptr ? std::string() : focus->Name();
  }

  /// Writes a program into the store from line 1 on.
  void Fill(std::initializer_list<const char*> lines) {
    int number = 1;
    for (const char* line : lines) System.Store.SetLine(number++, line);
  }

  FakeServices Desktop;
  LimitedWatch Watch;
  EmptyCanvas Pixels;
  Form1 System;
  FormControls& Controls;
};

}  // namespace zerimo
