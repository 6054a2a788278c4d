#include "classroom/session_run.h"

#include "base/failure.h"
#include "batch/errors.h"
#include "classroom/findings/known_words.h"
#include "files/disk_files.h"
#include "interpreter/lowering.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

constexpr std::streamsize LargestTranscript = std::streamsize{1} << 20;
/// Characters of a text in the outcome that a pupil has written.
constexpr qsizetype LongestText = 200;

/// A line of the store as its pupil knows it: the lines that stand for a `REPEAT` have names of # and $, and a typed
/// line is a procedure of such a name.
QString StatementOf(const std::string& line) {
  if (line.starts_with("TO #")) return {};
  const bool isOfRepeat = line.find('#') != std::string::npos || IsRepeatLabel(line) || IsRepeatJump(line);
  return isOfRepeat ? NameOf(IsOneOf<inputs::Repeat>) : FromLatin1(line);
}

batch::Settings SettingsOf(const Order& order) {
  batch::Settings settings;
  settings.Screen = order.Screen;
  settings.Steps = order.Limits.Steps;
  settings.Seconds = order.Limits.Seconds;
  settings.Memory = order.Limits.Memory;
  return settings;
}

}  // namespace

QString ShortText(const QString& text) { return text.size() > LongestText ? text.left(LongestText) + u'\u2026' : text; }

QString FromLatin1(const std::string& text) {
  return ShortText(QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())));
}

SessionRun::SessionRun(const Order& order, const fs::path& transcript, const Findings& possibleZeros)
    : transcriptName_(transcript),
      transcriptFile_(transcript, LargestTranscript),
      // Pictures that a session asks for on its way are not written; the runner takes the last one.
      session_(
          SettingsOf(order), pictures_.Pixels(), journal_, [](const Surface&, const std::string&) {},
          Disk::Confined(run_file::Scratch, order.Who.Program.parent_path())),
      zeros_(session_.form1.interpreter, possibleZeros) {
  form1.Picture1.AddRecorder(recorder_);
  if (zeros_.IsNeeded()) session_.BeforeEachLine([this] { zeros_.Look(); });
}

void SessionRun::Run(const Play& play) {
  try {
    Tell(session_.Run(ScriptOf(play)), play);
  } catch (const batch::SessionError& error) {
    Tell({batch::Ending::Refused, error.what(), error.Line}, play);
  }
  journal_.Flush();
  if (transcriptFile_.HasFailed()) outcome_.Notes.append("Not all that was said could be kept: is the disk full?");
}

batch::Script SessionRun::ScriptOf(const Play& play) {
  if (play.Typed.empty()) return session_.Read(play.Session);
  batch::Script script;
  for (const std::string& line : play.Typed)
    script.push_back({static_cast<int>(script.size()) + 1, batch::action::TypeLine{line}});
  return script;
}

void SessionRun::Tell(const batch::Outcome& outcome, const Play& play) {
  outcome_.By = QString::fromStdString(outcome.By);
  outcome_.Message = ShortText(QString::fromStdString(outcome.Message));
  switch (outcome.How) {
    case batch::Ending::Over:
      outcome_.How = Result::Ended;
      return;
    case batch::Ending::Refused:
      outcome_.How = Result::Refused;
      outcome_.Where = PlaceOfLine(outcome.Line, play);
      return;
    case batch::Ending::Failed:
      outcome_.How = Result::Failed;
      break;
    case batch::Ending::Stopped:
      outcome_.How = Result::Stopped;
      break;
  }
  outcome_.Where = WhereItStands(outcome.Line, play);
}

StopPlace SessionRun::PlaceOfLine(int line, const Play& play) {
  StopPlace place;
  place.Line = line;
  const auto index = static_cast<std::size_t>(line) - 1;
  if (play.Typed.empty()) {
    place.LineText = ShortText(QString::fromStdString(play.Session).split(u'\n').value(line - 1).trimmed());
  } else if (index < play.Typed.size()) {
    place.LineText = FromLatin1(play.Typed[index]);
  }
  return place;
}

StopPlace SessionRun::WhereItStands(int line, const Play& play) {
  StopPlace place = PlaceOfLine(line, play);
  storeLine_ = form1.interpreter.runner.LineNow();
  if (storeLine_ == 0) return place;
  SkipOnFailure([&] { place.Procedure = FromLatin1(form1.interpreter.controlPath.CurrentProcedureName()); });
  // A typed line runs as a procedure whose name begins with #. What follows a minus sign belongs to the control string.
  place.Procedure = place.Procedure.section(u'-', 0, 0);
  if (place.Procedure.startsWith(u'#')) place.Procedure.clear();
  SkipOnFailure([&] { place.Statement = StatementOf(form1.interpreter.store.Line(storeLine_)); });
  return place;
}

Said SessionRun::Told() const {
  return SaidIn(QByteArray::fromStdString(BytesOf(transcriptName_).value_or(std::string())));
}

void SessionRun::WritePicture(const fs::path& file) { pictures_.Write(form1.Picture1, file); }

}  // namespace zerimo::classroom
