#include "classroom/class_runner.h"

#include <algorithm>
#include <string>
#include <utility>

#include "classroom/interruption.h"

namespace zerimo::classroom {

namespace {

/// Milliseconds between two looks at the clock.
constexpr int WatchInterval = 50;

}  // namespace

ClassRunner::ClassRunner(Plan thePlan, std::vector<Pupil> thePupils, Listener onDone)
    : plan(std::move(thePlan)), pupils(std::move(thePupils)), listener(std::move(onDone)), runs(pupils.size()) {}

std::optional<std::vector<PupilRun>> ClassRunner::Run() {
  if (pupils.empty()) return std::move(runs);
  QObject::connect(&timer, &QTimer::timeout, &timer, [this] { Look(); });
  timer.start(WatchInterval);
  StartMore();
  loop.exec();
  // Those that still run are killed as they go.
  running.clear();
  if (interrupted) return std::nullopt;
  return std::move(runs);
}

void ClassRunner::StartMore() {
  while (next < pupils.size() && running.size() < static_cast<std::size_t>(plan.Jobs)) {
    const std::size_t index = next++;
    const Order order{pupils[index], plan.Limits, plan.Screen};
    running.push_back({index, std::make_unique<RunProcess>(order, plan.Folder / std::to_string(index))});
    // Looked at a moment later, when the process is not at work any more.
    running.back().Process->Start(plan.Program, [this] {
      QMetaObject::invokeMethod(
          &timer, [this] { Look(); }, Qt::QueuedConnection);
    });
  }
}

void ClassRunner::Look() {
  interrupted = interrupted || Interruption::Came();
  if (interrupted) return loop.quit();
  for (const Job& job : running) {
    job.Process->EndIfLate();
    if (!job.Process->HasEnded()) continue;
    runs[job.Index] = job.Process->TakeRun();
    listener(runs[job.Index], ++done);
  }
  std::erase_if(running, [](const Job& job) { return job.Process->HasEnded(); });
  if (done == pupils.size()) loop.quit();
  StartMore();
}

}  // namespace zerimo::classroom
