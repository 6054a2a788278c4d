#pragma once

#include <deque>
#include <string>

#include "base/services.h"
#include "batch/batch_watch.h"
#include "batch/journal.h"

namespace zerimo::batch {

/// The desktop of a session: boxes and dialogs are answered from queues, and everything is recorded. An empty queue
/// answers a box with `OK`, `Ignore` or `No`, and everything else with the empty text.
class BatchServices final : public Services {
 public:
  BatchServices(Journal& journal, BatchWatch& watch, bool reallySleep)
      : journal_(journal), watch_(watch), sleeps_(reallySleep) {}

  /// `line` is the line of the session that asks for it, for the message if the next box has no such button.
  void QueueBoxAnswer(Answer answer, int line) { boxAnswers_.push_back({answer, line}); }
  void QueueInput(std::string text) { inputs_.push_back(std::move(text)); }
  void QueueOpen(std::string fileName) { filesToOpen_.push_back(std::move(fileName)); }
  void QueueSave(std::string fileName) { filesToSave_.push_back(std::move(fileName)); }
  void SetTimeOfDay(std::string text) noexcept { time_ = std::move(text); }

  /// Fails with `SessionError` if the box has no button for the queued answer.
  Answer MessageBox(const std::string& text, int style, const std::string& title) override;
  std::string InputBox(const std::string& prompt, const std::string& title, const std::string& defaultAnswer) override;
  std::string ShowOpen() override;
  std::string ShowSave(const std::string& text) override;
  void Sleep(std::int32_t milliseconds) override;
  void Beep() override { journal_.Beep(); }
  std::string TimeOfDay() override { return time_; }

 private:
  struct QueuedAnswer {
    Answer Button;
    int Line;
  };

  Answer TakeBoxAnswer(int style);

  Journal& journal_;
  BatchWatch& watch_;
  bool sleeps_;
  std::string time_ = "00:00";
  std::deque<QueuedAnswer> boxAnswers_;
  std::deque<std::string> inputs_;
  std::deque<std::string> filesToOpen_;
  std::deque<std::string> filesToSave_;
};

}  // namespace zerimo::batch
