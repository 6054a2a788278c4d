#include "classroom/transcript_reader.h"

#include "batch/box_buttons.h"
#include "classroom/record.h"

namespace zerimo::classroom {

namespace {

/// Collects what events say, as long as it fits.
class SaidBuilder {
 public:
  void Take(const Json& event) {
    const QString name = TextAt(event, "event");
    if (name == "list" && TextAt(event, "op") == "add") TakeLine(TextAt(event, "item"));
    if (name == "box")
      TakeBox({"box", TextAt(event, "title"), TextAt(event, "text"), ButtonsOf(event), TextAt(event, "answer")});
    if (name == "input")
      TakeBox({"input", TextAt(event, "title"), TextAt(event, "prompt"), {}, TextAt(event, "answer")});
    if (name == "dialog") TakeBox({TextAt(event, "kind"), {}, {}, {}, TextAt(event, "answer")});
    wasTyped_ = name == "typed";
  }

  Said Told;

 private:
  static QString ButtonsOf(const Json& event) {
    return QString::fromStdString(batch::ButtonList(batch::ButtonsOf(static_cast<int>(NumberAt(event, "style")))));
  }

  void TakeLine(QString line) {
    if (Told.LinesAreCut) return;
    Told.LinesAreCut = Told.Lines.size() == MostLines || line.size() > roomForLines_;
    if (Told.Lines.size() == MostLines) return;
    line.truncate(roomForLines_);
    roomForLines_ -= line.size();
    Told.Lines.append(line);
    // A typed line is listed too, before anything else happens, and in the form in which it is carried out.
    if (!wasTyped_) Told.Printed.append(line);
  }

  void TakeBox(ShownBox shown) {
    if (Told.BoxesAreCut) return;
    const bool isOneTooMany = static_cast<qsizetype>(Told.Boxes.size()) == MostBoxes;
    const qsizetype size = shown.Text.size() + shown.Title.size() + shown.Answer.size();
    Told.BoxesAreCut = isOneTooMany || size > roomForBoxes_;
    if (isOneTooMany) return;
    for (QString* const text : {&shown.Text, &shown.Title, &shown.Answer}) {
      text->truncate(roomForBoxes_);
      roomForBoxes_ -= text->size();
    }
    Told.Boxes.push_back(shown);
  }

  bool wasTyped_ = false;
  qsizetype roomForLines_ = MostCharacters;
  qsizetype roomForBoxes_ = MostCharacters;
};

}  // namespace

Said SaidIn(const QByteArray& transcript) {
  SaidBuilder builder;
  qsizetype begin = 0;
  for (qsizetype end = 0; (end = transcript.indexOf('\n', begin)) >= 0; begin = end + 1) {
    const std::optional<Json> event = ParsedObject(transcript.mid(begin, end - begin).toStdString());
    if (event) builder.Take(*event);
  }
  // Something may have followed the last complete line.
  if (begin < transcript.size()) builder.Told.LinesAreCut = builder.Told.BoxesAreCut = true;
  return builder.Told;
}

}  // namespace zerimo::classroom
