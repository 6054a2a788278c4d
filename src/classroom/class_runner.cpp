#include "classroom/class_runner.h"

#include <QCoreApplication>
#include <algorithm>
#include <numeric>
#include <string>
#include <utility>

#include "classroom/interruption.h"

namespace zerimo::classroom {

namespace {

/// Milliseconds between two checks of the clock.
constexpr int WatchInterval = 50;

/// The pause after a process that could not be started.
constexpr std::chrono::milliseconds Rest(200);
/// How often a process is tried again in vain while no other one runs.
constexpr int MostVainTries = 25;

}  // namespace

ClassRunner::ClassRunner(Plan plan, std::vector<Pupil> pupils, Listener onDone)
    : plan_(std::move(plan)),
      pupils_(std::move(pupils)),
      listener_(std::move(onDone)),
      runs_(pupils_.size()),
      waiting_(pupils_.size()) {
  std::iota(waiting_.begin(), waiting_.end(), std::size_t{0});
}

bool ClassRunner::RanShort() const { return vainTries_ > MostVainTries; }

std::vector<PupilRun> ClassRunner::Run() {
  if (!pupils_.empty()) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Look(); });
    timer_.start(WatchInterval);
    StartMore();
    loop_.exec();
    // Those that are still running are killed by their destructors.
    running_.clear();
  }
  if (RanShort() && done_ == 0) throw NoProcess();
  std::vector<PupilRun> ended;
  for (std::optional<PupilRun>& run : runs_) {
    if (run) ended.push_back(std::move(*run));
  }
  return ended;
}

void ClassRunner::StartMore() {
  while (!waiting_.empty() && running_.size() < static_cast<std::size_t>(plan_.Jobs) && Clock::now() >= rest_) {
    const std::size_t index = waiting_.front();
    waiting_.pop_front();
    const Order order{pupils_[index],    plan_.Limits,       plan_.Screen, plan_.Goals,
                      plan_.ModelFolder, plan_.ModelPicture, plan_.Within, QCoreApplication::applicationPid()};
    running_.push_back({index, std::make_unique<RunProcess>(order, plan_.Folder / std::to_string(index))});
    // A moment later, because the process object is still at work here.
    running_.back().Process->Start(plan_.Program, [this] {
      QMetaObject::invokeMethod(
          &timer_, [this] { Look(); }, Qt::QueuedConnection);
    });
  }
}

void ClassRunner::Postpone(std::size_t index) {
  waiting_.push_front(index);
  rest_ = Clock::now() + Rest;
  // There may be room for no more than those that are running.
  const auto others = static_cast<int>(running_.size()) - 1;
  plan_.Jobs = std::max(1, std::min(plan_.Jobs, others));
  vainTries_ = others > 0 ? 0 : vainTries_ + 1;
}

void ClassRunner::Look() {
  interrupted_ = interrupted_ || Interruption::Came();
  if (interrupted_ || RanShort()) return loop_.quit();
  for (const Job& job : running_) {
    job.Process->EndIfLate();
    if (!job.Process->HasEnded()) continue;
    if (job.Process->CouldNotStart()) {
      Postpone(job.Index);
      continue;
    }
    vainTries_ = 0;
    runs_[job.Index] = job.Process->TakeRun();
    listener_(*runs_[job.Index], ++done_);
  }
  std::erase_if(running_, [](const Job& job) { return job.Process->HasEnded(); });
  if (done_ == pupils_.size()) loop_.quit();
  StartMore();
}

}  // namespace zerimo::classroom
