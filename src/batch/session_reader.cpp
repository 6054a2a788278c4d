#include "batch/session_reader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "batch/errors.h"
#include "batch/latin1.h"
#include "batch/settings.h"

namespace zerimo::batch {

namespace {

constexpr int LastRow = 4;

struct NamedKey {
  std::string_view Name;
  int Code;
};

constexpr std::array<NamedKey, 16> KeyNames = {{
    {"Esc", key::Esc},
    {"Enter", key::Enter},
    {"F1", key::F1},
    {"F2", key::F2},
    {"F3", key::F3},
    {"F4", key::F4},
    {"F5", key::F1 + 4},
    {"F6", key::F1 + 5},
    {"F7", key::F1 + 6},
    {"F8", key::F1 + 7},
    {"F9", key::F9},
    {"F10", key::F10},
    {"F11", key::F11},
    {"F12", key::F12},
    {"Up", key::Up},
    {"Down", key::Down},
}};

struct NamedButton {
  std::string_view Name;
  MouseButton Button;
};

constexpr std::array<NamedButton, 3> ButtonNames = {{
    {"left", MouseButton::Left},
    {"right", MouseButton::Right},
    {"middle", MouseButton::Middle},
}};

struct NamedAnswer {
  std::string_view Name;
  Answer Button;
};

constexpr std::array<NamedAnswer, 6> AnswerNames = {{
    {"OK", Answer::OK},
    {"Abort", Answer::Abort},
    {"Retry", Answer::Retry},
    {"Ignore", Answer::Ignore},
    {"Yes", Answer::Yes},
    {"No", Answer::No},
}};

struct NamedDump {
  std::string_view Name;
  action::DumpKind What;
};

constexpr std::array<NamedDump, 4> DumpNames = {{
    {"store", action::DumpKind::Store},
    {"storeall", action::DumpKind::StoreAll},
    {"variables", action::DumpKind::Variables},
    {"state", action::DumpKind::State},
}};

/// The entry of a table with that name, or nothing.
template <typename Table>
const typename Table::value_type* Find(const Table& table, std::string_view name) noexcept {
  for (const auto& entry : table) {
    if (entry.Name == name) return &entry;
  }
  return nullptr;
}

/// `\r`, `\n`, `\t` and `\\` become the characters that they stand for; any other backslash stays.
std::string WithoutEscapes(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    constexpr std::string_view letters = "rnt\\";
    constexpr std::string_view meanings = "\r\n\t\\";
    const bool escaped = text[i] == '\\' && i + 1 < text.size();
    const std::size_t which = escaped ? letters.find(text[i + 1]) : std::string_view::npos;
    plain += which == std::string_view::npos ? text[i] : meanings[which];
    if (which != std::string_view::npos) ++i;
  }
  return plain;
}

/// Turns the words of one directive into an action.
class DirectiveReader {
 public:
  DirectiveReader(Form1& form1, std::string_view text, int line) : form1_(form1), words_(text, line) {}

  SessionAction Enter() {
    if (!words_.HasMore()) return action::EnterRow{action::EnterRow::RowWithFocus};
    return action::EnterRow{Row()};
  }

  SessionAction Type() {
    const int row = Row();
    return action::SetRow{row, words_.Text()};
  }

  SessionAction TypeOver() {
    Control& control = AnyControl();
    const std::array<TextBox*, 3> boxes = {&form1_.controls.Text2, &form1_.controls.Text3, &form1_.controls.Text4};
    for (TextBox* const box : boxes) {
      if (box == &control) return action::TypeOver{box, WithoutEscapes(words_.Text())};
    }
    words_.Fail(control.Name() + " can't be typed over; Text2, Text3 and Text4 can");
  }

  SessionAction Key() {
    Control& control = AnyControl();
    const std::string_view name = words_.Word("the key");
    const NamedKey* const found = Find(KeyNames, name);
    if (found == nullptr) words_.Fail("there is no key " + std::string(name));
    return action::PressKey{&control, found->Code};
  }

  SessionAction Click() { return action::Click{&AnyControl()}; }

  SessionAction Mouse() {
    const std::string_view what = words_.Word("move or down");
    if (what != "move" && what != "down") words_.Fail("the mouse can move and down, not " + std::string(what));
    Control& control = AnyControl();
    const float x = words_.Units("X");
    const float y = words_.Units("Y");
    if (what == "move") return action::MoveMouse{&control, x, y};
    return PressMouse(control, x, y);
  }

  SessionAction Drop() {
    Control& control = AnyControl();
    const float x = words_.Units("X");
    const float y = words_.Units("Y");
    return action::Drop{&control, x, y};
  }

  SessionAction Scroll() {
    Control& control = AnyControl();
    auto* const bar = dynamic_cast<ScrollBar*>(&control);
    if (bar == nullptr) words_.Fail(control.Name() + " is no scroll bar");
    return action::Scroll{bar, words_.Number("value", ScrollBar::Least, ScrollBar::Greatest)};
  }

  SessionAction Select() {
    Control& control = AnyControl();
    if (&control != &form1_.controls.File1 && &control != &form1_.controls.List4) {
      words_.Fail(control.Name() + " has no entries to select; File1 and List4 have");
    }
    return action::SelectEntry{&control, words_.Text()};
  }

  SessionAction Tick() {
    const std::string name(words_.Word("the timer"));
    Timer* const timer = form1_.FindTimer(name);
    if (timer == nullptr) words_.Fail("there is no timer " + name);
    const int times = words_.HasMore() ? words_.Number("number of ticks", 1, std::numeric_limits<int>::max()) : 1;
    return action::Tick{timer, times};
  }

  SessionAction Time() { return action::SetTime{words_.Text()}; }

  SessionAction Answer() {
    const std::string_view queue = words_.Word("box, input, open or save");
    if (queue == "box") return AnswerBox();
    if (queue == "input") return action::AnswerInput{words_.Text()};
    if (queue == "open") return action::AnswerDialog{words_.Text(), false};
    if (queue == "save") return action::AnswerDialog{words_.Text(), true};
    words_.Fail("box, input, open and save can be answered, not " + std::string(queue));
  }

  SessionAction Trace() {
    const std::string_view what = words_.Word("surface or off");
    if (what != "surface" && what != "off") words_.Fail("the trace is surface or off, not " + std::string(what));
    return action::Trace{what == "surface"};
  }

  SessionAction Dump() {
    const std::string_view what = words_.Word("what to dump");
    if (what == "control") return DumpControl();
    const NamedDump* const found = Find(DumpNames, what);
    if (found == nullptr) words_.Fail("there is nothing to dump called " + std::string(what));
    return action::Dump{found->What};
  }

  SessionAction Picture() {
    std::string file = words_.Text();
    if (!IsPictureName(file)) words_.Fail("a file name ending in .png, .bmp, .jpg or .svg is wanted");
    return action::WritePicture{std::move(file)};
  }

  SessionAction End() { return action::CloseWindow{}; }

  void NothingLeft() { words_.End(); }

 private:
  int Row() { return words_.Number("row", 0, LastRow); }

  Control& AnyControl() {
    const std::string name(words_.Word("the control"));
    Control* const control = form1_.FindControl(name);
    if (control == nullptr) words_.Fail("there is no control " + name);
    return *control;
  }

  SessionAction PressMouse(Control& control, float x, float y) {
    action::PressMouse press{&control, x, y, MouseButton::Left, false};
    std::string_view word = words_.OptionalWord();
    if (const NamedButton* const found = Find(ButtonNames, word)) {
      press.Button = found->Button;
      word = words_.OptionalWord();
    }
    press.Shift = word == "shift";
    if (!press.Shift && !word.empty()) words_.Fail("left, right, middle or shift is wanted, not " + std::string(word));
    return press;
  }

  SessionAction AnswerBox() {
    const std::string_view name = words_.Word("the button");
    const NamedAnswer* const found = Find(AnswerNames, name);
    if (found == nullptr) words_.Fail("no box has a button " + std::string(name));
    return action::AnswerBox{found->Button};
  }

  SessionAction DumpControl() {
    const std::string name(words_.Word("the control"));
    const action::DumpControl dump{form1_.FindControl(name), form1_.FindTimer(name)};
    if (dump.Shown == nullptr && dump.Ticking == nullptr) words_.Fail("there is no control " + name);
    return dump;
  }

  Form1& form1_;
  DirectiveWords words_;
};

struct Directive {
  std::string_view Name;
  SessionAction (DirectiveReader::*Read)();
};

constexpr std::array<Directive, 16> Directives = {{
    {"enter", &DirectiveReader::Enter},
    {"type", &DirectiveReader::Type},
    {"text", &DirectiveReader::TypeOver},
    {"key", &DirectiveReader::Key},
    {"click", &DirectiveReader::Click},
    {"mouse", &DirectiveReader::Mouse},
    {"drop", &DirectiveReader::Drop},
    {"scroll", &DirectiveReader::Scroll},
    {"select", &DirectiveReader::Select},
    {"tick", &DirectiveReader::Tick},
    {"time", &DirectiveReader::Time},
    {"answer", &DirectiveReader::Answer},
    {"trace", &DirectiveReader::Trace},
    {"dump", &DirectiveReader::Dump},
    {"picture", &DirectiveReader::Picture},
    {"end", &DirectiveReader::End},
}};

/// The action of a line that begins with `@`, or nothing for a comment.
std::optional<SessionAction> ReadDirective(std::string_view text, int line, Form1& form1) {
  const std::string_view name = text.substr(1, text.find(' ') - 1);
  if (name.empty()) return std::nullopt;
  const Directive* const directive = Find(Directives, name);
  if (directive == nullptr)
    throw SessionError(line, "there is no directive " + ToUtf8(text.substr(0, name.size() + 1)));
  DirectiveReader reader(form1, text.substr(1 + name.size()), line);
  SessionAction act = (reader.*directive->Read)();
  reader.NothingLeft();
  return act;
}

std::optional<SessionAction> ReadLine(std::string_view text, int line, Form1& form1) {
  if (text.find_first_not_of(' ') == std::string_view::npos) return std::nullopt;
  if (text.front() == '@') return ReadDirective(text, line, form1);
  return action::TypeLine{std::string(text)};
}

std::string Decoded(std::string_view utf8, int line) {
  try {
    return FromUtf8(utf8);
  } catch (const TextError& error) {
    throw SessionError(line, error.what());
  }
}

}  // namespace

bool DirectiveWords::HasMore() const noexcept { return rest_.find_first_not_of(' ') != std::string_view::npos; }

std::string_view DirectiveWords::OptionalWord() {
  rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size()));
  const std::string_view word = rest_.substr(0, rest_.find(' '));
  rest_.remove_prefix(word.size());
  return word;
}

std::string_view DirectiveWords::Word(std::string_view wanted) {
  const std::string_view word = OptionalWord();
  if (word.empty()) Fail(std::string(wanted) + " is missing");
  return word;
}

int DirectiveWords::Number(std::string_view wanted, int least, int greatest) {
  const std::string_view word = Word(wanted);
  int number = 0;
  const std::from_chars_result result = std::from_chars(word.data(), word.data() + word.size(), number);
  const bool whole = result.ec == std::errc() && result.ptr == word.data() + word.size();
  if (!whole || number < least || number > greatest) {
    Fail(std::string(word) + " is no " + std::string(wanted) + " from " + std::to_string(least) + " to " +
         std::to_string(greatest));
  }
  return number;
}

float DirectiveWords::Units(std::string_view wanted) {
  const std::string_view word = Word(wanted);
  float number = 0;
  const std::from_chars_result result = std::from_chars(word.data(), word.data() + word.size(), number);
  const bool whole = result.ec == std::errc() && result.ptr == word.data() + word.size();
  if (!whole || !std::isfinite(number)) Fail(std::string(word) + " is no number for " + std::string(wanted));
  return number;
}

std::string DirectiveWords::Text() {
  if (!rest_.empty()) rest_.remove_prefix(1);
  return std::string(std::exchange(rest_, {}));
}

void DirectiveWords::End() {
  if (HasMore()) Fail("there is too much on the line: " + std::string(OptionalWord()));
}

void DirectiveWords::Fail(const std::string& message) const { throw SessionError(lineNumber_, ToUtf8(message)); }

Script ReadSession(std::string_view utf8, Form1& form1) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (utf8.starts_with(byteOrderMark)) utf8.remove_prefix(byteOrderMark.size());
  Script script;
  for (int line = 1; !utf8.empty(); ++line) {
    const std::size_t length = std::min(utf8.find('\n'), utf8.size());
    std::string text = Decoded(utf8.substr(0, length), line);
    if (text.ends_with('\r')) text.pop_back();
    if (std::optional<SessionAction> act = ReadLine(text, line, form1)) script.push_back({line, std::move(*act)});
    utf8.remove_prefix(std::min(length + 1, utf8.size()));
  }
  return script;
}

}  // namespace zerimo::batch
