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
    /// A folder for the runs' own folders, which is there and empty.
    std::filesystem::path Folder;
  };
  /// Called for each run as it is done, in any order.
  using Listener = std::function<void(const PupilRun& run, std::size_t done)>;

  ClassRunner(Plan plan, std::vector<Pupil> pupils, Listener onDone);

  /// The runs in the order of the pupils, or nothing if it was interrupted; then no process is left. Needs a
  /// `QCoreApplication`.
  std::optional<std::vector<PupilRun>> Run();

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
  std::vector<PupilRun> runs_;
  std::vector<Job> running_;
  std::size_t next_ = 0;
  std::size_t done_ = 0;
  bool interrupted_ = false;
  QTimer timer_;
  QEventLoop loop_;
};

}  // namespace zerimo::classroom
