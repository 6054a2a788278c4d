#include "classroom/run_process.h"

#include <utility>

#include "base/failure.h"
#include "classroom/readable.h"
#include "classroom/transcript_reader.h"
#include "files/disk_files.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

/// A larger picture is left out of the report.
constexpr std::uintmax_t LargestPicture = std::uintmax_t{8} << 20;

/// Bytes without which a process can't tell how it went.
constexpr std::uintmax_t LeastRoom = std::uintmax_t{64} << 10;

bool IsFull(const fs::path& folder) {
  std::error_code error;
  const fs::space_info space = fs::space(folder.parent_path(), error);
  return !error && space.available < LeastRoom;
}

Outcome Crash(const QString& words) {
  Outcome outcome;
  outcome.Message = words;
  return outcome;
}

}  // namespace

RunProcess::RunProcess(Order givenOrder, fs::path folder, double timeAround)
    : order(std::move(givenOrder)), runFolder(std::move(folder)), secondsAround(timeAround) {
  process.setWorkingDirectory(NameOf(runFolder));
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
}

void RunProcess::Start(const QString& program, std::function<void()> onEnd) {
  const auto end = [this, onEnd = std::move(onEnd)] {
    ended = true;
    finish = Clock::now();
    onEnd();
  };
  QObject::connect(&process, &QProcess::finished, &process, end);
  // A process that can't even start does not finish either.
  QObject::connect(&process, &QProcess::errorOccurred, &process, [end](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) end();
  });
  try {
    fs::create_directory(runFolder);
    WriteOrder(runFolder / run_file::Order, order);
  } catch (const std::exception&) {
    // Without its order the process finishes at once.
  }
  process.start(program, {QStringLiteral("--class-pupil")});
}

void RunProcess::EndIfLate() {
  if (ended || late || order.Limits.Seconds == 0) return;
  const std::chrono::duration<double> taken = Clock::now() - begin;
  if (taken.count() < order.Limits.Seconds + secondsAround) return;
  late = true;
  process.kill();
}

PupilRun RunProcess::TakeRun() {
  PupilRun run;
  run.Who = order.Who;
  run.Went = OutcomeOfRun();
  run.Told = SaidIn(QByteArray::fromStdString(BytesOf(runFolder / run_file::Transcript).value_or(std::string())));
  run.Seconds = std::chrono::duration<double>(finish - begin).count();
  std::error_code error;
  const fs::path picture = runFolder / run_file::Picture;
  const std::uintmax_t size = fs::file_size(picture, error);
  if (!error && size <= LargestPicture) run.Picture = picture;
  if (!error && size > LargestPicture) run.Went.Notes.append("The picture is too large for the report.");
  fs::remove_all(runFolder / run_file::Scratch, error);
  fs::remove(runFolder / run_file::Transcript, error);
  return run;
}

Outcome RunProcess::OutcomeOfRun() const {
  if (std::optional<Outcome> told = ReadOutcome(runFolder / run_file::Outcome)) return *told;
  return OutcomeOfSilence();
}

Outcome RunProcess::OutcomeOfSilence() const {
  Outcome outcome;
  std::error_code error;
  if (late) {
    outcome.How = Result::Stopped;
    outcome.By = "seconds";
  } else if (fs::file_size(runFolder / run_file::OutOfMemory, error) > 0 && !error) {
    outcome.How = Result::Stopped;
    outcome.By = "memory";
  } else if (process.error() == QProcess::FailedToStart) {
    return Crash("the process could not be started");
  } else if (IsFull(runFolder)) {
    return Crash("the disk for temporary files is full");
  } else if (process.exitStatus() == QProcess::CrashExit) {
    return Crash(QStringLiteral("the process was ended by signal %1").arg(process.exitCode()));
  } else {
    return Crash(QStringLiteral("the process ended with status %1").arg(process.exitCode()));
  }
  return outcome;
}

}  // namespace zerimo::classroom
