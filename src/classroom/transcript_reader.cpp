#include "classroom/transcript_reader.h"

#include <QJsonDocument>
#include <QJsonObject>

#include "batch/box_buttons.h"

namespace zerimo::classroom {

namespace {

/// Takes events as long as they fit.
class SaidBuilder {
 public:
  void Take(const QJsonObject& event) {
    const QString name = event.value("event").toString();
    if (name == "list" && event.value("op").toString() == "add") TakeLine(event.value("item").toString());
    if (name == "box")
      TakeBox({"box", TextOf(event, "title"), TextOf(event, "text"), ButtonsOf(event), TextOf(event, "answer")});
    if (name == "input")
      TakeBox({"input", TextOf(event, "title"), TextOf(event, "prompt"), {}, TextOf(event, "answer")});
    if (name == "dialog") TakeBox({TextOf(event, "kind"), {}, {}, {}, TextOf(event, "answer")});
  }

  Said Told;

 private:
  static QString TextOf(const QJsonObject& event, const char* key) {
    return event.value(QLatin1String(key)).toString();
  }

  static QString ButtonsOf(const QJsonObject& event) {
    return QString::fromStdString(batch::ButtonList(batch::ButtonsOf(event.value("style").toInt())));
  }

  void TakeLine(QString line) {
    if (Told.LinesAreCut) return;
    Told.LinesAreCut = Told.Lines.size() == MostLines || line.size() > roomForLines_;
    if (Told.Lines.size() == MostLines) return;
    line.truncate(roomForLines_);
    roomForLines_ -= line.size();
    Told.Lines.append(line);
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

  qsizetype roomForLines_ = MostCharacters;
  qsizetype roomForBoxes_ = MostCharacters;
};

}  // namespace

Said SaidIn(const QByteArray& transcript) {
  SaidBuilder builder;
  qsizetype begin = 0;
  for (qsizetype end = 0; (end = transcript.indexOf('\n', begin)) >= 0; begin = end + 1) {
    builder.Take(QJsonDocument::fromJson(transcript.mid(begin, end - begin)).object());
  }
  // What may have stood behind the last whole line.
  if (begin < transcript.size()) builder.Told.LinesAreCut = builder.Told.BoxesAreCut = true;
  return builder.Told;
}

}  // namespace zerimo::classroom
