#include "classroom/pupil_session.h"

#include <QRegularExpression>
#include <algorithm>
#include <fstream>
#include <functional>
#include <stdexcept>

#include "base/text.h"
#include "classroom/class_folder.h"
#include "classroom/findings/findings.h"
#include "classroom/goal_judge.h"
#include "classroom/process_limits.h"
#include "classroom/program_source.h"
#include "classroom/readable.h"
#include "classroom/run_findings.h"
#include "classroom/sandbox.h"
#include "files/disk.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t LongestLoadName = 60;
/// What a session calls the program that it is given, whatever its file is called.
constexpr const char* AnyName = "PROGRAM";

/// Why a run can't begin.
class Reason : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Whether a file of a folder is a link, or is reached through one, to another place; never where there is no folder.
bool LeadsOutOf(const fs::path& folder, const fs::path& file) {
  const bool isOfFolder = std::mismatch(folder.begin(), folder.end(), file.begin(), file.end()).first == folder.end();
  return !folder.empty() && isOfFolder && !Disk::Confined(folder, folder).MayRead(file);
}

std::string TakeFile(const fs::path& file, const std::string& what, const fs::path& within) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  const bool isFolder = fs::is_directory(status);
  if (fs::exists(status) && LeadsOutOf(within, file))
    throw Reason((isFolder ? "the folder" : what) +
                 " is a link that leads out of the class folder; --follow-links follows it");
  if (isFolder && fs::directory_iterator(file, error) == fs::directory_iterator() && error)
    throw Reason("the folder can't be read");
  if (isFolder) throw Reason(what + " is a folder");
  if (status.type() == fs::file_type::not_found)
    throw Reason(fs::is_symlink(file, error) ? what + " is a link that leads nowhere" : "there is no such file");
  if (!fs::exists(status)) throw Reason(what + " can't be read");
  // Reading a pipe might wait for ever.
  if (!fs::is_regular_file(status)) throw Reason(what + " is no file but a pipe or a device");
  const std::uintmax_t size = fs::file_size(file, error);
  if (!error && size > LargestProgram) throw Reason(what + " is too large: the most is 4 megabytes");
  std::ifstream stream(file, std::ios::binary);
  std::string bytes(static_cast<std::size_t>(error ? 0 : size), '\0');
  stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (error || !stream.is_open() || stream.bad()) throw Reason(what + " can't be read");
  bytes.resize(static_cast<std::size_t>(stream.gcount()));
  return bytes;
}

/// Whether a name stays as it is when it is typed after LOAD.
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
  return IsPlain(name) ? name : AnyName;
}

}  // namespace

PupilSession::PupilSession(const Order& order, Teller tell)
    : order_(order), tell_(std::move(tell)), loadName_(LoadNameOf(order.Who.Program)) {}

void PupilSession::Run() {
  if (HasNoProgram(order_.Who)) {
    outcome_.How = Result::NoProgram;
    return tell_(outcome_);
  }
  try {
    ReadFiles();
    PlaceProgram();
  } catch (const Reason& reason) {
    outcome_.How = Result::NotRun;
    outcome_.Message = QString::fromUtf8(reason.what());
    return tell_(outcome_);
  }
  RunMain();
  for (std::size_t i = 0; i < order_.Goals.size(); ++i) {
    RunGoal(i);
    tell_(outcome_);
  }
}

void PupilSession::ReadFiles() {
  program_ = TakeFile(order_.Who.Program, "the program", order_.Within);
  if (!order_.Who.Session.empty()) session_ = TakeFile(order_.Who.Session, "the session", order_.Within);
  const QString text = TextOfProgram(program_);
  outcome_.Findings = FindingsIn(text);
  possibleZeros_ = PossibleZeros(Listing(text));
  // In a folder of the pupil's own, the files beside the program are the pupil's, too.
  const bool isShared = order_.Who.Program.parent_path() == order_.Within;
  FindLoaded(text, order_.Who.Program, isShared, outcome_.Findings);
  ProgramSource source(text);
  outcome_.Source = std::move(source.Lines);
  outcome_.SourceIsCut = source.IsCut;
  // If a program is read as one line, only that is reported: the rest follows from it.
  const auto isNone = [](const Finding& finding) {
    return finding.What == Mistake::Empty || finding.What == Mistake::OneLine;
  };
  if (std::ranges::none_of(outcome_.Findings, isNone)) outline_.emplace(program_);
}

/// The program is in the scratch folder under its own name, or under a plain one if its own can't be typed, and also
/// under the name that a session for the whole class uses.
void PupilSession::PlaceProgram() {
  const fs::path scratch(run_file::Scratch);
  fs::create_directory(scratch);
  std::vector<std::string> names = {loadName_};
  // Otherwise the name would mean a file PROGRAM.ZRM of the class folder.
  if (!order_.Goals.empty() || UpperCase(session_).find(AnyName) != std::string::npos) names.emplace_back(AnyName);
  for (const std::string& name : names) {
    std::ofstream copy(scratch / (name + ".ZRM"), std::ios::binary);
    copy << program_;
    if (!copy.flush()) throw Reason("the program can't be copied: is the disk full?");
  }
}

/// A task without a session of the pupil's own is shown by its first goal.
Play PupilSession::MainPlay() {
  if (!order_.Who.Session.empty()) return {WithProcedure(session_), {}};
  if (!order_.Goals.empty() && !order_.Goals.front().Typed.isEmpty()) return PlayOf(order_.Goals.front());
  return PlayWithoutSession(outcome_.Notes);
}

std::string PupilSession::WithProcedure(const std::string& text) const {
  const std::string name = outline_ ? outline_->MainProcedure(loadName_) : std::string();
  if (name.empty() || outline_->Has(AnyName)) return text;
  const std::string withoutInputs = outline_->FirstCallOf(loadName_).Procedure;
  constexpr auto options = QRegularExpression::MultilineOption | QRegularExpression::CaseInsensitiveOption;
  static const QRegularExpression alone(R"((^|\[)( *)PROGRAM(?= *(\]|\r?$)))", options);
  static const QRegularExpression call(R"((^|\[)( *)PROGRAM(?=[ \]\r]|$))", options);
  QString lines = QString::fromStdString(text);
  if (!withoutInputs.empty()) lines.replace(alone, QStringLiteral("\\1\\2") + QString::fromStdString(withoutInputs));
  lines.replace(call, QStringLiteral("\\1\\2") + QString::fromStdString(name));
  return lines.toStdString();
}

Play PupilSession::PlayOf(const Goal& goal) const {
  QStringList ignored;
  if (goal.Typed.isEmpty()) return PlayWithoutSession(ignored);
  Play play{{}, {"LOAD " + loadName_}};
  for (const QString& line : goal.Typed) play.Typed.push_back(WithProcedure(line.toLatin1().toStdString()));
  return play;
}

Play PupilSession::PlayWithoutSession(QStringList& notes) const {
  Play play{{}, {"LOAD " + loadName_}};
  const FirstCall first = outline_ ? outline_->FirstCallOf(loadName_) : FirstCall();
  if (!first.Procedure.empty()) play.Typed.push_back(first.Procedure);
  if (!first.Note.empty()) notes.append(FromLatin1(first.Note));
  return play;
}

SessionRun& PupilSession::Played(const Play& play, const char* transcript) {
  if (lastRun_ && lastPlay_ == play) return *lastRun_;
  // Closes the transcript of the run before, which this one may write again.
  lastRun_.reset();
  lastPlay_ = play;
  lastRun_ = std::make_unique<SessionRun>(order_, transcript, possibleZeros_);
  lastRun_->Run(play);
  return *lastRun_;
}

void PupilSession::RunMain() {
  const Play play = MainPlay();
  for (const std::string& line : play.Typed) outcome_.Typed.append(FromLatin1(line));
  FindInTyped(play);
  for (const Goal& goal : order_.Goals) FindInTyped(PlayOf(goal));
  tell_(outcome_);
  SessionRun& run = Played(play, run_file::Transcript);
  TakeEnd(run.Outcome());
  outcome_.Notes += run.Outcome().Notes;
  MatchSource(run);
  // A run has begun if there was a session, or a line typed after that of LOAD. A program without lines can't begin.
  const bool hasBegun = outline_ && play.Typed.size() != 1;
  if (outcome_.How != Result::Refused) FindInRun(run, outcome_.Where.ProgramLine, hasBegun, outcome_.Findings);
  tell_(outcome_);
  WritePicture(run, run_file::Picture);
}

void PupilSession::TakeEnd(const RunOutcome& outcome) {
  outcome_.How = outcome.How;
  outcome_.By = outcome.By;
  outcome_.Message = outcome.Message;
  outcome_.Where = outcome.Where;
}

void PupilSession::FindInTyped(const Play& play) {
  QStringList lines = QString::fromStdString(play.Session).split(u'\n');
  for (const std::string& line : play.Typed) lines.append(QString::fromLatin1(line.c_str()));
  for (const QString& line : lines) {
    if (line.startsWith(u'@')) continue;
    TakeFindings(FindingsInCalls(TextOfProgram(program_), line.trimmed()));
  }
}

void PupilSession::TakeFindings(const Findings& findings) {
  for (const Finding& finding : findings) {
    if (std::ranges::find(outcome_.Findings, finding) == outcome_.Findings.end()) outcome_.Findings.push_back(finding);
  }
}

void PupilSession::MatchSource(SessionRun& run) {
  ProgramSource source(TextOfProgram(program_));
  source.Match(run.form1.interpreter.store);
  outcome_.Where.ProgramLine = source.LineOf(run.StoreLine());
  TakeFindings(run.Zeros().Found(source));
  outcome_.Source = std::move(source.Lines);
}

void PupilSession::RunGoal(std::size_t index) {
  const Goal& goal = order_.Goals[index];
  SessionRun& run = Played(PlayOf(goal), run_file::GoalTranscript);
  WritePicture(run, run_file::GoalPicture(index));
  if (!order_.ModelFolder.empty() || !order_.ModelPicture.empty()) {
    outcome_.Goals.push_back(Judge(order_, index, run));
  } else {
    outcome_.Goals.push_back(TakeModel(goal, index, run));
    if (outcome_.How == Result::Ended) TakeEnd(run.Outcome());
  }
}

void PupilSession::WritePicture(SessionRun& run, const std::string& file) {
  try {
    run.WritePicture(file);
  } catch (const std::exception&) {
    outcome_.Notes.append("The picture can't be written.");
    tell_(outcome_);
  }
}

int RunPupil() {
  const std::optional<Order> order = ReadOrder(run_file::Order);
  if (!order) return 1;
  TameProcess(order->Runner);
  if (order->Limits.Memory > 0) NoteRefusedMemory();
  const Pupil& pupil = order->Who;
  std::vector<fs::path> readable = {pupil.Program.parent_path(), pupil.Program, pupil.Session};
  for (const fs::path& model : {order->ModelFolder, order->ModelPicture}) {
    if (!model.empty()) readable.push_back(model);
  }
  const bool isContained = EnterSandbox({fs::current_path(), readable});
  PupilSession session(*order, [isContained](RunOutcome outcome) {
    if (!isContained) outcome.Notes.append("The operating system did not contain this run.");
    WriteOutcome(run_file::Outcome, outcome);
  });
  session.Run();
  return 0;
}

}  // namespace zerimo::classroom
