#pragma once

#include <string>
#include <variant>
#include <vector>

#include "base/services.h"
#include "controls/control_kinds.h"
#include "graphics/palette.h"

/// A session as a list of actions. Its controls belong to the form for which the session was read.
namespace zerimo::batch {

/// What a session line asks for.
namespace action {
/// A line typed into the row that has the focus, and Enter.
struct TypeLine {
  std::string Text;
};
/// Enter on the row that has the focus, or on a row that gets the focus first.
struct EnterRow {
  static constexpr int RowWithFocus = -1;
  int Row;
};
struct SetRow {
  int Row;
  std::string Text;
};
struct TypeOver {
  TextBox* Box;
  std::string Text;
};
struct PressKey {
  Control* Target;
  int KeyCode;
};
struct Click {
  Control* Target;
};
struct MoveMouse {
  Control* Target;
  float X, Y;
};
struct PressMouse {
  Control* Target;
  float X, Y;
  MouseButton Button;
  bool Shift;
};
struct Drop {
  Control* Source;
  float X, Y;
};
struct Scroll {
  ScrollBar* Bar;
  int Value;
};
struct SelectEntry {
  Control* List;
  std::string Entry;
};
struct Tick {
  Timer* Ticking;
  long Times;
};
struct SetTime {
  std::string Text;
};
struct AnswerBox {
  Answer Button;
};
struct AnswerInput {
  std::string Text;
};
struct AnswerDialog {
  std::string FileName;
  bool ToSave;
};
struct Trace {
  bool On;
};
enum class DumpKind { Store, StoreAll, Variables, State };
struct Dump {
  DumpKind What;
};
struct DumpControl {
  /// One of the two is set.
  const Control* Shown = nullptr;
  const Timer* Ticking = nullptr;
};
struct WritePicture {
  std::string File;
};
struct CloseWindow {};
}  // namespace action

using SessionAction =
    std::variant<action::TypeLine, action::EnterRow, action::SetRow, action::TypeOver, action::PressKey, action::Click,
                 action::MoveMouse, action::PressMouse, action::Drop, action::Scroll, action::SelectEntry, action::Tick,
                 action::SetTime, action::AnswerBox, action::AnswerInput, action::AnswerDialog, action::Trace,
                 action::Dump, action::DumpControl, action::WritePicture, action::CloseWindow>;

struct SessionStep {
  /// The line of the session, from 1.
  int Line;
  SessionAction Act;
};

using Script = std::vector<SessionStep>;

}  // namespace zerimo::batch
