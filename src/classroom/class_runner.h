#pragma once

#include <QEventLoop>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "classroom/run_process.h"

namespace zerimo::classroom {

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
    /// An existing, empty folder for the runs' own folders.
    std::filesystem::path Folder;
  };
  /// Called for each run as it is done, in any order.
  using Listener = std::function<void(const PupilRun& run, std::size_t done)>;

  ClassRunner(Plan plan, std::vector<Pupil> pupils, Listener onDone);

  /// The runs in the order of the pupils. After an interruption these are only the ones that had ended, and no process
  /// is left. Needs a `QCoreApplication`.
  std::vector<PupilRun> Run();

  bool WasInterrupted() const { return interrupted_; }

 private:
  struct Job {
    std::size_t Index;
    std::unique_ptr<RunProcess> Process;
  };

  void StartMore();
  /// Takes the runs that have ended, kills the late ones, starts the next ones.
  void Look();

  Plan plan_;
  std::vector<Pupil> pupils_;
  Listener listener_;
  std::vector<std::optional<PupilRun>> runs_;
  std::vector<Job> running_;
  std::size_t next_ = 0;
  std::size_t done_ = 0;
  bool interrupted_ = false;
  QTimer timer_;
  QEventLoop loop_;
};

}  // namespace zerimo::classroom
