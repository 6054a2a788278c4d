#include "batch/batch_services.h"

#include <algorithm>
#include <chrono>
#include <vector>

#include "batch/box_buttons.h"
#include "batch/errors.h"

namespace zerimo::batch {

namespace {

std::string TakeFirst(std::deque<std::string>& queue) noexcept {
  if (queue.empty()) return {};
  std::string first = std::move(queue.front());
  queue.pop_front();
  return first;
}

}  // namespace

Answer BatchServices::TakeBoxAnswer(int style) {
  const BoxButtons& buttons = ButtonsOf(style);
  if (boxAnswers_.empty()) return buttons.Unasked;
  const QueuedAnswer queued = boxAnswers_.front();
  boxAnswers_.pop_front();
  if (std::ranges::find(buttons.Buttons, queued.Button) == buttons.Buttons.end()) {
    throw SessionError(queued.Line,
                       std::string("the box has no button ") + WordOf(queued.Button) + ", only " + ButtonList(buttons));
  }
  return queued.Button;
}

Answer BatchServices::MessageBox(const std::string& text, int style, const std::string& title) {
  const Answer answer = TakeBoxAnswer(style);
  journal_.Box(text, style, title, answer);
  return answer;
}

std::string BatchServices::InputBox(const std::string& prompt, const std::string& title,
                                    const std::string& defaultAnswer) {
  std::string answer = TakeFirst(inputs_);
  journal_.Input(prompt, title, defaultAnswer, answer);
  return answer;
}

std::string BatchServices::ShowOpen() {
  std::string answer = TakeFirst(filesToOpen_);
  journal_.Dialog("open", answer);
  return answer;
}

std::string BatchServices::ShowSave(const std::string&) {
  std::string answer = TakeFirst(filesToSave_);
  journal_.Dialog("save", answer);
  return answer;
}

void BatchServices::Sleep(std::int32_t milliseconds) {
  journal_.Sleep(milliseconds);
  if (sleeps_) watch_.Sleep(std::chrono::milliseconds(milliseconds));
}

}  // namespace zerimo::batch
