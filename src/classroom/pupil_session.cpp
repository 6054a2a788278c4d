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
#include "files/confinement.h"

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

fs::path InRunFolder(const char* file) { return fs::path("..") / file; }

}  // namespace

PupilSession::PupilSession(const Order& order)
    : order_(order),
      loadName_(LoadNameOf(order_.Who.Program)),
      transcriptFile_(run_file::Transcript, LargestTranscript),
      // Pictures that a session asks for on its way are not written; the runner takes the last one.
      system_(SettingsOf(order_), pictures_.Pixels(), journal_, [](const Surface&, const std::string&) {}) {}

RunOutcome PupilSession::Run() {
  try {
    ReadFiles();
    PlaceProgram();
    fs::current_path(run_file::Scratch);
    const Confinement confinement(order_.Who.Program.parent_path());
    RunScript();
    WritePicture();
  } catch (const Reason& reason) {
    outcome_.How = Result::NotRun;
    outcome_.Message = QString::fromUtf8(reason.what());
  }
  return outcome_;
}

void PupilSession::ReadFiles() {
  program_ = TakeFile(order_.Who.Program, "the program");
  if (!order_.Who.Session.empty()) session_ = TakeFile(order_.Who.Session, "the session");
  NoteMistakes();
}

/// What a teacher would look for first where a program does not do what its pupil meant. Of a program that is read as
/// one line only that is said: the rest follows from it.
void PupilSession::NoteMistakes() {
  const bool isOneLine = program_.find('\n') != std::string::npos && program_.find('\r') == std::string::npos;
  if (program_.empty()) outcome_.Notes.append("The program is empty.");
  if (isOneLine) outcome_.Notes.append("The lines of the file end in LF alone: Zerimo reads it as one line.");
  if (!outcome_.Notes.isEmpty()) return;
  outline_.emplace(program_);
  const std::vector<std::string> withoutEnd = outline_->WithoutEnd();
  if (withoutEnd.empty()) return;
  QStringList names;
  for (const std::string& name : withoutEnd) names.append(FromLatin1(name));
  outcome_.Notes.append(ShortText("Procedures without END: " + names.join(QStringLiteral(", ")) + u'.'));
}

/// The program stands in the scratch folder by its own name, or by a plain one if its own can't be typed.
void PupilSession::PlaceProgram() {
  const fs::path scratch(run_file::Scratch);
  fs::create_directory(scratch);
  std::ofstream copy(scratch / (loadName_ + ".ZRM"), std::ios::binary);
  copy << program_;
  if (!copy.flush()) throw Reason("the program can not be copied: is the disk full?");
}

batch::Script PupilSession::TakeScript() {
  return order_.Who.Session.empty() ? ScriptWithoutSession() : system_.Read(session_);
}

/// Loads the program and calls the procedure that starts it.
batch::Script PupilSession::ScriptWithoutSession() {
  std::vector<std::string> lines = {"LOAD " + loadName_};
  const FirstCall first = outline_ ? outline_->FirstCallOf(loadName_) : FirstCall();
  if (!first.Procedure.empty()) lines.push_back(first.Procedure);
  if (!first.Note.empty()) outcome_.Notes.append(FromLatin1(first.Note));
  batch::Script script;
  for (const std::string& line : lines) {
    outcome_.Typed.append(FromLatin1(line));
    script.push_back({static_cast<int>(script.size()) + 1, batch::action::TypeLine{line}});
  }
  return script;
}

void PupilSession::RunScript() {
  try {
    LimitMemory(order_.Limits.Memory);
    const batch::Script script = TakeScript();
    const batch::Outcome went = system_.Run(script);
    LiftMemoryLimit();
    Tell(went);
  } catch (const batch::SessionError& error) {
    LiftMemoryLimit();
    Tell({batch::Ending::Refused, error.what(), error.Line});
  } catch (const std::bad_alloc&) {
    LiftMemoryLimit();
    outcome_.How = Result::Stopped;
    outcome_.By = "memory";
    outcome_.Where = WhereItStands(system_.CurrentLine());
  }
  journal_.Flush();
  if (transcriptFile_.HasFailed()) outcome_.Notes.append("Not all that was said could be kept: is the disk full?");
}

void PupilSession::Tell(const batch::Outcome& went) {
  outcome_.By = QString::fromStdString(went.By);
  outcome_.Message = ShortText(QString::fromStdString(went.Message));
  switch (went.How) {
    case batch::Ending::Over:
      outcome_.How = Result::Ended;
      return;
    case batch::Ending::Refused:
      outcome_.How = Result::Refused;
      outcome_.Where = PlaceOfLine(went.Line);
      return;
    case batch::Ending::Failed:
      outcome_.How = Result::Failed;
      break;
    case batch::Ending::Stopped:
      outcome_.How = Result::Stopped;
      break;
  }
  outcome_.Where = WhereItStands(went.Line);
}

StopPlace PupilSession::PlaceOfLine(int line) const {
  const QStringList lines = order_.Who.Session.empty() ? outcome_.Typed : QString::fromStdString(session_).split(u'\n');
  StopPlace place;
  place.Line = line;
  place.LineText = ShortText(lines.value(line - 1).trimmed());
  return place;
}

StopPlace PupilSession::WhereItStands(int line) {
  const Form1& form = system_.System();
  StopPlace place = PlaceOfLine(line);
  if (form.Path.CtrlStr() == ".") return place;
  PassOver([&] { place.Procedure = FromLatin1(form.Path.CurrentProcedureName()); });
  // A typed line runs as a procedure whose name begins with #.
  if (place.Procedure.startsWith(u'#')) place.Procedure.clear();
  PassOver([&] { place.Statement = StatementOf(form.Store.Line(EndValExtractor(form.Path.CtrlStr()))); });
  return place;
}

void PupilSession::WritePicture() {
  try {
    pictures_.Write(system_.System().Picture1, InRunFolder(run_file::Picture));
  } catch (const std::exception&) {
    outcome_.Notes.append("The picture can not be written.");
  }
}

int RunPupil() {
  const std::optional<Order> order = ReadOrder(run_file::Order);
  if (!order) return 1;
  TameProcess();
  WatchMemory();
  const fs::path folder = fs::current_path();
  const RunOutcome outcome = PupilSession(*order).Run();
  WriteOutcome(folder / run_file::Outcome, outcome);
  return 0;
}

}  // namespace zerimo::classroom
