#include "classroom/pupil_session.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <new>
#include <stdexcept>

#include "base/failure.h"
#include "base/text.h"
#include "batch/errors.h"
#include "batch/latin1.h"
#include "classroom/process_limits.h"
#include "classroom/program_outline.h"
#include "classroom/readable.h"
#include "classroom/sandbox.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t LargestProgram = std::uintmax_t{4} << 20;
constexpr std::streamsize LargestTranscript = std::streamsize{1} << 20;
constexpr std::size_t LongestLoadName = 60;
/// Characters of a text in the outcome that a pupil has written.
constexpr qsizetype LongestText = 200;

/// Why a run can't begin.
class Reason : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

std::string TakeFile(const fs::path& file, const std::string& what) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (fs::is_directory(status)) throw Reason(what + " is a folder");
  if (status.type() == fs::file_type::not_found) throw Reason(what + " is a link that leads nowhere");
  if (!fs::exists(status)) throw Reason(what + " can not be read");
  // A pipe would wait for ever.
  if (!fs::is_regular_file(status)) throw Reason(what + " is no file but a pipe or a device");
  const std::uintmax_t size = fs::file_size(file, error);
  if (!error && size > LargestProgram) throw Reason(what + " is too large: the most is 4 megabytes");
  std::ifstream stream(file, std::ios::binary);
  std::string bytes(static_cast<std::size_t>(error ? 0 : size), '\0');
  stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (error || !stream.is_open() || stream.bad()) throw Reason(what + " can not be read");
  bytes.resize(static_cast<std::size_t>(stream.gcount()));
  return bytes;
}

/// Whether a name stays as it is when it is typed behind LOAD.
bool IsPlain(const std::string& name) {
  return !name.empty() && name.size() <= LongestLoadName && std::ranges::all_of(name, [](char character) {
    const bool isDigit = character >= '0' && character <= '9';
    const bool isLetter = (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
    return isDigit || isLetter || character == '_';
  });
}

std::string LoadNameOf(const fs::path& file) {
  const std::u8string stem = file.stem().u8string();
  const std::string name = UpperCase(std::string(stem.begin(), stem.end()));
  return IsPlain(name) ? name : "PROGRAM";
}

QString ShortText(const QString& text) { return text.size() > LongestText ? text.left(LongestText) + u'\u2026' : text; }

QString FromLatin1(const std::string& text) {
  return ShortText(QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())));
}

/// A line of the store as its pupil knows it: the lines that stand for a `REPEAT` have names of # and $, and a typed
/// line is a procedure of such a name.
QString StatementOf(const std::string& line) {
  if (line.starts_with("TO #")) return {};
  const bool isOfRepeat =
      line.find('#') != std::string::npos || line.starts_with("LABEL $") || line.starts_with("GOTO $");
  return isOfRepeat ? QStringLiteral("REPEAT") : FromLatin1(line);
}

batch::Settings SettingsOf(const Order& order) {
  batch::Settings settings;
  settings.Screen = order.Screen;
  settings.Steps = order.Limits.Steps;
  settings.Seconds = order.Limits.Seconds;
  return settings;
}

std::FILE* memoryNote = nullptr;

/// Leaves a note that memory was refused, should the process not live to tell.
void NoteMemory() {
  std::fputc('m', memoryNote);
  throw std::bad_alloc();
}

void WatchMemory() {
  memoryNote = std::fopen(run_file::OutOfMemory, "wb");
  if (memoryNote == nullptr) return;
  std::setvbuf(memoryNote, nullptr, _IONBF, 0);
  std::set_new_handler(NoteMemory);
}

}  // namespace

PupilSession::PupilSession(const Order& givenOrder)
    : order(givenOrder),
      loadName(LoadNameOf(order.Who.Program)),
      transcriptFile(run_file::Transcript, LargestTranscript),
      // Pictures that a session asks for on its way are not written; the runner takes the last one.
      system(SettingsOf(order), pictures.Pixels(), journal, [](const Surface&, const std::string&) {},
             Disk::Confined(run_file::Scratch, order.Who.Program.parent_path())) {}

Outcome PupilSession::Run() {
  try {
    ReadFiles();
    PlaceProgram();
    RunScript();
    WritePicture();
  } catch (const Reason& reason) {
    outcome.How = Result::NotRun;
    outcome.Message = QString::fromUtf8(reason.what());
  }
  return outcome;
}

void PupilSession::ReadFiles() {
  program = TakeFile(order.Who.Program, "the program");
  if (!order.Who.Session.empty()) session = TakeFile(order.Who.Session, "the session");
  NoteMistakes();
}

/// What a teacher would look for first where a program does not do what its pupil meant. Of a program that is read as
/// one line only that is said: the rest follows from it.
void PupilSession::NoteMistakes() {
  const bool isOneLine = program.find('\n') != std::string::npos && program.find('\r') == std::string::npos;
  if (program.empty()) outcome.Notes.append("The program is empty.");
  if (isOneLine) outcome.Notes.append("The lines of the file end in LF alone: Zerimo reads it as one line.");
  if (!outcome.Notes.isEmpty()) return;
  outline.emplace(program);
  const std::vector<std::string> withoutEnd = outline->WithoutEnd();
  if (withoutEnd.empty()) return;
  QStringList names;
  for (const std::string& name : withoutEnd) names.append(FromLatin1(name));
  outcome.Notes.append(ShortText("Procedures without END: " + names.join(QStringLiteral(", ")) + u'.'));
}

/// The program stands in the scratch folder by its own name, or by a plain one if its own can't be typed.
void PupilSession::PlaceProgram() {
  const fs::path scratch(run_file::Scratch);
  fs::create_directory(scratch);
  std::ofstream copy(scratch / (loadName + ".ZRM"), std::ios::binary);
  copy << program;
  if (!copy.flush()) throw Reason("the program can not be copied: is the disk full?");
}

batch::Script PupilSession::TakeScript() {
  return order.Who.Session.empty() ? ScriptWithoutSession() : system.Read(session);
}

/// Loads the program and calls the procedure that starts it.
batch::Script PupilSession::ScriptWithoutSession() {
  std::vector<std::string> lines = {"LOAD " + loadName};
  const FirstCall first = outline ? outline->FirstCallOf(loadName) : FirstCall();
  if (!first.Procedure.empty()) lines.push_back(first.Procedure);
  if (!first.Note.empty()) outcome.Notes.append(FromLatin1(first.Note));
  batch::Script script;
  for (const std::string& line : lines) {
    outcome.Typed.append(FromLatin1(line));
    script.push_back({static_cast<int>(script.size()) + 1, batch::action::TypeLine{line}});
  }
  return script;
}

void PupilSession::RunScript() {
  try {
    LimitMemory(order.Limits.Memory);
    const batch::Script script = TakeScript();
    const batch::Outcome went = system.Run(script);
    LiftMemoryLimit();
    Tell(went);
  } catch (const batch::SessionError& error) {
    LiftMemoryLimit();
    Tell({batch::Ending::Refused, error.what(), error.Line});
  } catch (const std::bad_alloc&) {
    LiftMemoryLimit();
    outcome.How = Result::Stopped;
    outcome.By = "memory";
    outcome.Where = WhereItStands(system.CurrentLine());
  }
  journal.Flush();
  if (transcriptFile.HasFailed()) outcome.Notes.append("Not all that was said could be kept: is the disk full?");
}

void PupilSession::Tell(const batch::Outcome& went) {
  outcome.By = QString::fromStdString(went.By);
  outcome.Message = ShortText(QString::fromStdString(went.Message));
  switch (went.How) {
    case batch::Ending::Over:
      outcome.How = Result::Ended;
      return;
    case batch::Ending::Refused:
      outcome.How = Result::Refused;
      outcome.Where = PlaceOfLine(went.Line);
      return;
    case batch::Ending::Failed:
      outcome.How = Result::Failed;
      break;
    case batch::Ending::Stopped:
      outcome.How = Result::Stopped;
      break;
  }
  outcome.Where = WhereItStands(went.Line);
}

Place PupilSession::PlaceOfLine(int line) const {
  const QStringList lines = order.Who.Session.empty() ? outcome.Typed : QString::fromStdString(session).split(u'\n');
  Place place;
  place.Line = line;
  place.LineText = ShortText(lines.value(line - 1).trimmed());
  return place;
}

Place PupilSession::WhereItStands(int line) {
  const Form1& form = system.System();
  Place place = PlaceOfLine(line);
  if (form.interpreter.controlPath.CtrlStr() == ".") return place;
  PassOver([&] { place.Procedure = FromLatin1(form.interpreter.controlPath.CurrentProcedureName()); });
  // A typed line runs as a procedure whose name begins with #.
  if (place.Procedure.startsWith(u'#')) place.Procedure.clear();
  PassOver([&] {
    place.Statement = StatementOf(form.interpreter.store.Line(EndValExtractor(form.interpreter.controlPath.CtrlStr())));
  });
  return place;
}

void PupilSession::WritePicture() {
  try {
    pictures.Write(system.System().Picture1, run_file::Picture);
  } catch (const std::exception&) {
    outcome.Notes.append("The picture can not be written.");
  }
}

int RunPupil() {
  const std::optional<Order> order = ReadOrder(run_file::Order);
  if (!order) return 1;
  TameProcess();
  WatchMemory();
  const Pupil& who = order->Who;
  const bool isContained = EnterSandbox({fs::current_path(), {who.Program.parent_path(), who.Program, who.Session}});
  Outcome outcome = PupilSession(*order).Run();
  if (!isContained) outcome.Notes.append("The operating system did not contain this run.");
  WriteOutcome(run_file::Outcome, outcome);
  return 0;
}

}  // namespace zerimo::classroom
