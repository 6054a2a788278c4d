#include "classroom/class_runner.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <csignal>
#include <numeric>
#include <string>
#include <utility>

namespace zerimo::classroom {

namespace {

constexpr const char* Beginning = "zerimo-class-";

std::unique_ptr<QLockFile> LockIn(const QString& folder) {
  auto lock = std::make_unique<QLockFile>(folder + QStringLiteral("/runner.lock"));
  // However old a lock is, it holds as long as its process lives.
  lock->setStaleLockTime(0);
  return lock;
}

/// Whether no runner is at work in a folder, nor about to be.
bool IsAbandoned(const QString& folder) {
  constexpr qint64 longestStart = 600;
  const QFileInfo lock(folder + QStringLiteral("/runner.lock"));
  // A runner that was killed before or while it made its lock.
  const QFileInfo youngest = lock.exists() ? lock : QFileInfo(folder);
  if (youngest.isDir() || youngest.size() == 0)
    return youngest.lastModified().secsTo(QDateTime::currentDateTime()) > longestStart;
  return LockIn(folder)->tryLock(0);
}

/// Only what belongs to the same user, and what no runner is at work in.
void RemoveLeftovers(const QFileInfo& own) {
  for (const QFileInfo& other : own.dir().entryInfoList({QLatin1String(Beginning) + u'*'}, QDir::Dirs)) {
    const QString path = other.filePath();
    const bool isOurs = !other.isSymLink() && other.ownerId() == own.ownerId() && path != own.filePath();
    if (isOurs && IsAbandoned(path)) QDir(path).removeRecursively();
  }
}

constexpr std::array Noted = {
    SIGINT,
    SIGTERM,
#ifdef SIGHUP
    SIGHUP,
#endif
#ifdef SIGQUIT
    SIGQUIT,
#endif
};

// A handler gets no object.
volatile std::sig_atomic_t came = 0;

void Note(int) { came = 1; }

void HandleBrokenPipe([[maybe_unused]] void (*handler)(int)) {
#ifdef SIGPIPE
  std::signal(SIGPIPE, handler);
#endif
}

/// Milliseconds between two checks of the clock.
constexpr int WatchInterval = 50;

/// The pause after a process that could not be started.
constexpr std::chrono::milliseconds Rest(200);
/// How often a process is tried again in vain while no other one runs.
constexpr int MostVainTries = 25;

}  // namespace

RunsFolder::RunsFolder() : folder_(QDir::tempPath() + u'/' + QLatin1String(Beginning) + QStringLiteral("XXXXXX")) {
  if (!IsThere()) return;
  lock_ = LockIn(folder_.path());
  lock_->tryLock(0);
  RemoveLeftovers(QFileInfo(folder_.path()));
}

Interruption::Interruption() {
  came = 0;
  for (const int number : Noted) {
    formerHandlers_.push_back(std::signal(number, Note));
    // Whoever started the run wants it to go on, as under nohup.
    if (formerHandlers_.back() == SIG_IGN) std::signal(number, SIG_IGN);
  }
  HandleBrokenPipe(SIG_IGN);
}

Interruption::~Interruption() {
  for (std::size_t i = 0; i < Noted.size(); ++i) std::signal(Noted[i], formerHandlers_[i]);
  HandleBrokenPipe(SIG_DFL);
}

bool Interruption::Came() { return came != 0; }

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
