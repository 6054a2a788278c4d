#pragma once

#include <QEventLoop>
#include <QLockFile>
#include <QTemporaryDir>
#include <QTimer>
#include <chrono>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <vector>

#include "classroom/run_process.h"

namespace zerimo::classroom {

/// A new folder among the temporary files for those of one class run; it goes with this object. What a runner that was
/// killed has left there goes when the next one begins.
class RunsFolder {
 public:
  RunsFolder();

  /// False if there is no room for temporary files.
  bool IsThere() const { return folder_.isValid(); }
  std::filesystem::path Path() const { return folder_.path().toStdU16String(); }

 private:
  QTemporaryDir folder_;
  /// Held as long as the runner lives.
  std::unique_ptr<QLockFile> lock_;
};

/// While it exists, an interrupt from the terminal or a request to end is only recorded (one that the process is told
/// to ignore stays ignored), and output that nobody reads any more does not end the process.
class Interruption {
 public:
  Interruption();
  ~Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;

  static bool Came();

 private:
  /// What each signal did before.
  std::vector<void (*)(int)> formerHandlers_;
};

/// No process can be started.
struct NoProcess : std::runtime_error {
  NoProcess() : std::runtime_error("no process can be started: are there too many, or is the disk full?") {}
};

/// Runs all programs of a class, some at a time.
class ClassRunner {
 public:
  struct Plan {
    RunLimits Limits;
    ScreenSize Screen;
    /// How many processes run at the same time, at least 1.
    int Jobs = 1;
    /// The program to start.
    QString Program;
    /// The goals that the programs are compared with, if any.
    std::vector<Goal> Goals = {};
    std::filesystem::path ModelFolder = {};
    std::filesystem::path ModelPicture = {};
    /// The folder that no link may lead out of; empty if all links are followed.
    std::filesystem::path Within = {};
    /// An existing, empty folder for the runs' own folders.
    std::filesystem::path Folder;
  };
  /// Called for each run as it is done, in any order.
  using Listener = std::function<void(const PupilRun& run, std::size_t done)>;

  ClassRunner(Plan plan, std::vector<Pupil> pupils, Listener onDone);

  /// The runs in the order of the pupils. After an interruption these are only the ones that had ended, and no process
  /// is left. A process that can't be started is tried again later, with fewer at a time; if that is in vain, the run
  /// ends like an interrupted one, or fails with `NoProcess` if no program has run. Needs a `QCoreApplication`.
  std::vector<PupilRun> Run();

  bool WasInterrupted() const { return interrupted_; }
  /// Whether it has ended because no more processes could be started.
  bool RanShort() const;

 private:
  using Clock = std::chrono::steady_clock;
  struct Job {
    std::size_t Index;
    std::unique_ptr<RunProcess> Process;
  };

  void StartMore();
  /// Puts back a program whose process could not be started.
  void Postpone(std::size_t index);
  /// Takes the runs that have ended, kills the late ones, starts the next ones.
  void Look();

  Plan plan_;
  std::vector<Pupil> pupils_;
  Listener listener_;
  std::vector<std::optional<PupilRun>> runs_;
  std::vector<Job> running_;
  /// The indexes of those that have not begun, in order.
  std::deque<std::size_t> waiting_;
  /// Nothing is started before.
  Clock::time_point rest_;
  int vainTries_ = 0;
  std::size_t done_ = 0;
  bool interrupted_ = false;
  QTimer timer_;
  QEventLoop loop_;
};

}  // namespace zerimo::classroom
