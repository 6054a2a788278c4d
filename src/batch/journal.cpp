#include "batch/journal.h"

#include <algorithm>

#include "base/failure.h"
#include "batch/box_buttons.h"
#include "batch/latin1.h"

namespace zerimo::batch {

namespace {

/// The event of one operation.
struct Writer {
  static JsonLine Event(const char* op) { return JsonLine("surface").Text("op", op); }

  JsonLine operator()(const surface_operation::Set& set) const {
    return Event("Set").Text("property", set.Property).Property("value", set.Value);
  }
  JsonLine operator()(const surface_operation::Line& line) const {
    return Event("Line").Single("x1", line.X1).Single("y1", line.Y1).Single("x2", line.X2).Single("y2", line.Y2);
  }
  JsonLine operator()(const surface_operation::Box& box) const {
    return Event("Box").Single("x1", box.X1).Single("y1", box.Y1).Single("x2", box.X2).Single("y2", box.Y2);
  }
  JsonLine operator()(const surface_operation::LineTo& line) const {
    return Event("LineTo").Single("x2", line.X2).Single("y2", line.Y2);
  }
  JsonLine operator()(const surface_operation::Circle& circle) const {
    JsonLine event = Event("Circle").Single("x", circle.X).Single("y", circle.Y).Single("radius", circle.Radius);
    if (circle.Aspect) event.Single("aspect", *circle.Aspect);
    return event;
  }
  JsonLine operator()(const surface_operation::PSet& point) const {
    return Event("PSet").Single("x", point.X).Single("y", point.Y).Number("color", point.Color);
  }
  JsonLine operator()(const surface_operation::Print& print) const { return Event("Print").Text("text", print.Text); }
  JsonLine operator()(const surface_operation::Cls&) const { return Event("Cls"); }
  JsonLine operator()(const surface_operation::FloodFill& fill) const {
    return Event("FloodFill").Number("x", fill.X).Number("y", fill.Y).Number("color", fill.Color);
  }
  JsonLine operator()(const surface_operation::Picture& picture) const {
    return Event("Picture").Text("path", picture.Path);
  }
};

}  // namespace

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

void SurfaceTrace::Record(const Surface&, const SurfaceOperation& operation) {
  if (journal_.HasTranscript()) journal_.Write(std::visit(Writer{}, operation));
}

}  // namespace zerimo::batch
