#include "classroom/class_runner.h"

#include <algorithm>
#include <string>
#include <utility>

#include "classroom/interruption.h"

namespace zerimo::classroom {

namespace {

/// Milliseconds between two checks of the clock.
constexpr int WatchInterval = 50;

}  // namespace

ClassRunner::ClassRunner(Plan plan, std::vector<Pupil> pupils, Listener onDone)
    : plan_(std::move(plan)), pupils_(std::move(pupils)), listener_(std::move(onDone)), runs_(pupils_.size()) {}

std::vector<PupilRun> ClassRunner::Run() {
  if (!pupils_.empty()) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Look(); });
    timer_.start(WatchInterval);
    StartMore();
    loop_.exec();
    // Those that are still running are killed by their destructors.
    running_.clear();
  }
  std::vector<PupilRun> ended;
  for (std::optional<PupilRun>& run : runs_) {
    if (run) ended.push_back(std::move(*run));
  }
  return ended;
}

void ClassRunner::StartMore() {
  while (next_ < pupils_.size() && running_.size() < static_cast<std::size_t>(plan_.Jobs)) {
    const std::size_t index = next_++;
    const Order order{pupils_[index], plan_.Limits, plan_.Screen, plan_.Goals, plan_.ModelFolder, plan_.ModelPicture};
    running_.push_back({index, std::make_unique<RunProcess>(order, plan_.Folder / std::to_string(index))});
    // A moment later, because the process object is still at work here.
    running_.back().Process->Start(plan_.Program, [this] {
      QMetaObject::invokeMethod(
          &timer_, [this] { Look(); }, Qt::QueuedConnection);
    });
  }
}

void ClassRunner::Look() {
  interrupted_ = interrupted_ || Interruption::Came();
  if (interrupted_) return loop_.quit();
  for (const Job& job : running_) {
    job.Process->EndIfLate();
    if (!job.Process->HasEnded()) continue;
    runs_[job.Index] = job.Process->TakeRun();
    listener_(*runs_[job.Index], ++done_);
  }
  std::erase_if(running_, [](const Job& job) { return job.Process->HasEnded(); });
  if (done_ == pupils_.size()) loop_.quit();
  StartMore();
}

}  // namespace zerimo::classroom
