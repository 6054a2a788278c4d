#pragma once

#include <map>
#include <string>
#include <vector>

#include "console/form1.h"
#include "files/temp_folder.h"
#include "graphics/canvas.h"
#include "support/fake_services.h"
#include "support/limited_watch.h"

namespace zerimo {

/// The whole system with a canvas without pixels, in a folder of its own, started and with the focus on row 0.
struct WholeSystem {
  explicit WholeSystem(ScreenSize screen = {})
      : System(screen, Folders(".", Disk(folder.Path)), services, watch, Pixels), controls(System.controls) {
    System.Load();
    System.Tick(controls.Timer2);
  }

  /// Types a line on a row and presses Enter.
  void Type(const std::string& line, int row = 0) {
    controls.Text1[row].Text = line;
    System.KeyDown(controls.Text1[row], key::Enter);
  }

  void Press(Control& control, int keyCode) { System.KeyDown(control, keyCode); }

  /// The name of the control that has the focus, or the empty text.
  std::string Focus() const {
    const Control* focus = controls.Focus.Focus();
    return focus == nullptr ? std::string() : focus->Name();
  }

  /// Every property of every control and timer, by the name of both: "List4.Visible".
  std::map<std::string, PropertyValue> EveryProperty() {
    std::map<std::string, PropertyValue> all;
    const auto read = [&all](const std::string& owner) {
      return [&all, owner](const char* name, const PropertyValue& value) { all[owner + "." + name] = value; };
    };
    controls.ForEach([&](const Control& control) { control.ReadProperties(read(control.Name())); });
    System.Picture1.ReadProperties(read(System.Picture1.Name()));
    for (const Timer* timer : {&controls.Timer2, &controls.Timer3, &controls.Timer4}) {
      timer->ReadProperties(read(timer->Name()));
    }
    return all;
  }

  /// Writes a program into the store from line 1 on.
  void Fill(std::initializer_list<const char*> lines) {
    int number = 1;
    for (const char* line : lines) System.interpreter.store.SetLine(number++, line);
  }

  TempFolder folder;
  FakeServices services;
  LimitedWatch watch;
  EmptyCanvas Pixels;
  Form1 System;
  Controls& controls;
};

}  // namespace zerimo
