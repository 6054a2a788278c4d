#include "classroom/run_process.h"

#include <utility>

#include "base/failure.h"
#include "classroom/class_options.h"
#include "classroom/readable.h"
#include "classroom/transcript_reader.h"
#include "files/disk_files.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

/// A larger picture is left out of the report.
constexpr std::uintmax_t LargestPicture = std::uintmax_t{8} << 20;

/// The free bytes that a process needs to report how it went.
constexpr std::uintmax_t LeastRoom = std::uintmax_t{64} << 10;

bool IsFull(const fs::path& folder) {
  std::error_code error;
  const fs::space_info space = fs::space(folder.parent_path(), error);
  return !error && space.available < LeastRoom;
}

RunOutcome Crash(const QString& words) {
  RunOutcome outcome;
  outcome.Message = words;
  return outcome;
}

}  // namespace

RunProcess::RunProcess(Order order, fs::path folder, double timeAround)
    : order_(std::move(order)), runFolder_(std::move(folder)), secondsAround_(timeAround) {
  process_.setWorkingDirectory(NameOf(runFolder_));
  process_.setStandardInputFile(QProcess::nullDevice());
  process_.setStandardOutputFile(QProcess::nullDevice());
  process_.setStandardErrorFile(QProcess::nullDevice());
}

void RunProcess::Start(const QString& program, std::function<void()> onEnd) {
  const auto end = [this, onEnd = std::move(onEnd)] {
    ended_ = true;
    finish_ = Clock::now();
    onEnd();
  };
  QObject::connect(&process_, &QProcess::finished, &process_, end);
  // A process that can't even start does not finish either.
  const auto fail = [this, end] {
    couldNotStart_ = true;
    end();
  };
  QObject::connect(&process_, &QProcess::errorOccurred, &process_, [fail](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) fail();
  });
  try {
    fs::create_directory(runFolder_);
    WriteOrder(runFolder_ / run_file::Order, order_);
  } catch (const std::exception&) {
    return fail();
  }
  process_.start(program, {QString::fromLatin1(PupilArgument)});
}

void RunProcess::EndIfLate() {
  if (ended_ || late_ || order_.Limits.Seconds == 0) return;
  const std::chrono::duration<double> taken = Clock::now() - begin_;
  // The program runs once, and once more for each goal.
  const auto runs = static_cast<double>(order_.Goals.size() + 1);
  if (taken.count() < order_.Limits.Seconds * runs + secondsAround_) return;
  late_ = true;
  process_.kill();
}

PupilRun RunProcess::TakeRun() {
  PupilRun run;
  run.Who = order_.Who;
  run.Limits = order_.Limits;
  run.Outcome = OutcomeOfRun();
  run.Told = SaidIn(QByteArray::fromStdString(BytesOf(runFolder_ / run_file::Transcript).value_or(std::string())));
  run.Seconds = std::chrono::duration<double>(finish_ - begin_).count();
  std::error_code error;
  const fs::path picture = runFolder_ / run_file::Picture;
  const std::uintmax_t size = fs::file_size(picture, error);
  if (!error && size <= LargestPicture) run.Picture = picture;
  if (!error && size > LargestPicture) run.Outcome.Notes.append("The picture is too large for the report.");
  fs::remove_all(runFolder_ / run_file::Scratch, error);
  fs::remove(runFolder_ / run_file::Transcript, error);
  return run;
}

RunOutcome RunProcess::OutcomeOfRun() const {
  RunOutcome outcome = ReadOutcome(runFolder_ / run_file::Outcome).value_or(RunOutcome());
  const bool hasRun = outcome.How != Result::NotRun && outcome.How != Result::NoProgram;
  if (outcome.How == Result::Crashed) {
    const RunOutcome silence = OutcomeOfSilence();
    outcome.How = silence.How;
    outcome.By = silence.By;
    outcome.Message = silence.Message;
  } else if (hasRun && outcome.Goals.size() < order_.Goals.size()) {
    outcome.Notes.append("The process ended before all goals were tried.");
  }
  while (outcome.Goals.size() < order_.Goals.size())
    outcome.Goals.push_back(order_.Goals[outcome.Goals.size()].NotMet());
  return outcome;
}

RunOutcome RunProcess::OutcomeOfSilence() const {
  RunOutcome outcome;
  std::error_code error;
  if (late_) {
    outcome.How = Result::Stopped;
    outcome.By = "seconds";
  } else if (fs::file_size(runFolder_ / run_file::OutOfMemory, error) > 0 && !error) {
    outcome.How = Result::Stopped;
    outcome.By = "memory";
  } else if (IsFull(runFolder_)) {
    return Crash("the disk for temporary files is full");
  } else if (process_.exitStatus() == QProcess::CrashExit) {
    return Crash(QStringLiteral("the process was ended by signal %1").arg(process_.exitCode()));
  } else {
    return Crash(QStringLiteral("the process ended with status %1").arg(process_.exitCode()));
  }
  return outcome;
}

}  // namespace zerimo::classroom
