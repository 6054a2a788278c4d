#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "base/services.h"

namespace zerimo {

/// A message box as a test saw it.
struct ShownBox {
  std::string Text;
  int Style = 0;
  std::string Title;
  bool operator==(const ShownBox&) const = default;
};

/// Services that record what is asked and answer from queues: a box with no queued answer gets OK, Ignore or No, an
/// input box and the dialogs the empty text.
class FakeServices : public Services {
 public:
  Answer MessageBox(const std::string& text, int style, const std::string& title) override {
    Boxes.push_back({text, style, title});
    if (!BoxAnswers.empty()) {
      const Answer answer = BoxAnswers.front();
      BoxAnswers.pop_front();
      return answer;
    }
    const int buttons = style & 7;
    return buttons == box::AbortRetryIgnore ? Answer::Ignore : buttons == box::YesNo ? Answer::No : Answer::OK;
  }

  std::string InputBox(const std::string& prompt, const std::string& title, const std::string& defaultAnswer) override {
    Inputs.push_back({prompt, title, defaultAnswer});
    return Take(InputAnswers);
  }

  std::string ShowOpen() override {
    Dialogs.push_back("open");
    return Take(OpenAnswers);
  }

  std::string ShowSave(const std::string& text) override {
    Dialogs.push_back("save " + text);
    return Take(SaveAnswers);
  }

  void Sleep(std::int32_t milliseconds) override { Sleeps.push_back(milliseconds); }
  void Beep() override { ++Beeps; }
  std::string TimeOfDay() override { return Time; }

  /// The texts of the boxes shown so far.
  std::vector<std::string> BoxTexts() const {
    std::vector<std::string> texts;
    for (const ShownBox& shown : Boxes) texts.push_back(shown.Text);
    return texts;
  }

  struct AskedInput {
    std::string Prompt;
    std::string Title;
    std::string Default;
  };

  std::vector<ShownBox> Boxes;
  std::vector<AskedInput> Inputs;
  std::vector<std::string> Dialogs;
  std::vector<std::int32_t> Sleeps;
  int Beeps = 0;
  std::string Time = "12:34";

  std::deque<Answer> BoxAnswers;
  std::deque<std::string> InputAnswers;
  std::deque<std::string> OpenAnswers;
  std::deque<std::string> SaveAnswers;

 private:
  static std::string Take(std::deque<std::string>& answers) {
    if (answers.empty()) return {};
    std::string answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

}  // namespace zerimo
