#include "batch/journal.h"

#include <algorithm>

#include "base/failure.h"
#include "batch/box_buttons.h"
#include "batch/latin1.h"

namespace zerimo::batch {

void Journal::Typed(int row, const std::string& text) {
  Write(JsonLine("typed").Number("row", row).Text("text", text));
}

void Journal::Box(const std::string& text, int style, const std::string& title, Answer answer) {
  const char* const word = WordOf(answer);
  Write(JsonLine("box").Text("text", text).Number("style", style).Text("title", title).Text("answer", word));
  std::string shown = text;
  std::ranges::replace(shown, '\r', '\n');
  Tell("[" + title + "] " + shown + " (" + ButtonList(ButtonsOf(style)) + ") -> " + word);
}

void Journal::Input(const std::string& prompt, const std::string& title, const std::string& defaultAnswer,
                    const std::string& answer) {
  JsonLine line("input");
  line.Text("prompt", prompt).Text("title", title).Text("default", defaultAnswer).Text("answer", answer);
  Write(line);
}

void Journal::Dialog(const char* kind, const std::string& answer) {
  Write(JsonLine("dialog").Text("kind", kind).Text("answer", answer));
}

void Journal::ListAdd(const std::string& control, const std::string& item) {
  Write(JsonLine("list").Text("control", control).Text("op", "add").Text("item", item));
  Tell(item);
}

void Journal::ListClear(const std::string& control) {
  Write(JsonLine("list").Text("control", control).Text("op", "clear"));
}

void Journal::Caption(const std::string& text) { Write(JsonLine("caption").Text("text", text)); }

void Journal::Sleep(std::int32_t milliseconds) { Write(JsonLine("sleep").Number("ms", milliseconds)); }

void Journal::Beep() { Write(JsonLine("beep")); }

void Journal::Ended(const std::string& by) { Write(JsonLine("ended").Text("by", by)); }

void Journal::EndedByFailure(const std::string& words) {
  Write(JsonLine("ended").Text("by", "failure").Text("failure", words));
}

void Journal::Stopped(const std::string& by) { Write(JsonLine("stopped").Text("by", by)); }

void Journal::Finished() { Write(JsonLine("finished")); }

void Journal::Write(const JsonLine& line) {
  if (transcript_ != nullptr) Put(*transcript_, line.Finished());
}

void Journal::Flush() {
  if (transcript_ != nullptr) transcript_->flush();
  if (people_ != nullptr) people_->flush();
}

void Journal::Tell(const std::string& text) {
  if (people_ != nullptr) Put(*people_, ToUtf8(text));
}

void Journal::Put(std::ostream& stream, std::string_view line) {
  stream << line << '\n';
  if (!left_) return;
  const std::uintmax_t bytes = line.size() + 1;
  if (bytes > *left_) {
    left_.reset();
    throw zerimo::Stopped{"output"};
  }
  *left_ -= bytes;
}

}  // namespace zerimo::batch
