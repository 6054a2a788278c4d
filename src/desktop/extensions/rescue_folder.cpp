#include "desktop/extensions/rescue_folder.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSysInfo>
#include <algorithm>

#include "base/failure.h"
#include "files/disk_files.h"

namespace zerimo {

namespace fs = std::filesystem;

namespace {

constexpr const char* Ending = ".ZRM";
constexpr const char* LockEnding = ".lock";

QString ToQString(const fs::path& path) { return QString::fromStdU16String(path.u16string()); }

std::unique_ptr<QLockFile> LockOf(const fs::path& file) {
  auto lock = std::make_unique<QLockFile>(ToQString(file) + QLatin1String(LockEnding));
  // However old a lock is, it is valid as long as its process lives.
  lock->setStaleLockTime(0);
  return lock;
}

/// Whether a lock says that it is held on this machine by a process that lives.
bool IsHeldHere(const QLockFile& lock) {
  qint64 process = 0;
  QString machine;
  QString program;
  if (!lock.getLockInfo(&process, &machine, &program)) return false;
  return machine == QSysInfo::machineHostName() && fs::exists("/proc/" + std::to_string(process));
}

bool TakeLock(QLockFile& lock) {
  if (lock.tryLock(0)) return true;
  if (IsHeldHere(lock)) return false;
  // The lock of another machine: its window is gone if the lock has not been renewed.
  lock.setStaleLockTime(static_cast<int>(RescueFolder::LongestSilence.count()));
  return lock.tryLock(0);
}

}  // namespace

void RescueFolder::Claim() {
  std::error_code ignored;
  fs::create_directories(folder_, ignored);
  const QString start = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss-zzz"));
  const std::string name = start.toStdString() + "-" + std::to_string(QCoreApplication::applicationPid());
  own_ = folder_ / (name + Ending);
  lock_ = LockOf(own_);
  lock_->tryLock(0);
  QObject::connect(&renewal_, &QTimer::timeout, &renewal_, [this] { RenewLock(); });
  renewal_.start(LongestSilence / 5);
}

void RescueFolder::RenewLock() const {
  std::error_code none;
  fs::last_write_time(own_.string() + LockEnding, fs::file_time_type::clock::now(), none);
}

bool RescueFolder::Write(const std::string& text) {
  if (own_.empty()) Claim();
  return SkipOnFailure([&] { WriteBeside(own_, text); });
}

void RescueFolder::Remove() {
  if (own_.empty()) return;
  std::error_code ignored;
  fs::remove(own_, ignored);
}

std::vector<RescuedText> RescueFolder::Left() const {
  RemoveLocksWithoutTexts();
  std::vector<RescuedText> left;
  std::error_code error;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder_, error)) {
    if (entry.path().extension() != Ending || entry.path() == own_) continue;
    std::shared_ptr<QLockFile> lock = LockOf(entry.path());
    if (!TakeLock(*lock)) continue;
    std::string text = BytesOf(entry.path()).value_or("");
    left.push_back({entry.path(), std::move(text), QFileInfo(ToQString(entry.path())).lastModified(), lock});
  }
  std::sort(left.begin(), left.end(), [](const auto& one, const auto& other) { return one.File < other.File; });
  return left;
}

void RescueFolder::RemoveLocksWithoutTexts() const {
  std::error_code error;
  std::vector<fs::path> texts;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder_, error)) {
    if (entry.path().extension() == LockEnding) texts.push_back(entry.path().parent_path() / entry.path().stem());
  }
  for (const fs::path& text : texts) {
    const std::unique_ptr<QLockFile> lock = LockOf(text);
    // Letting a lock go removes its file.
    if (text != own_ && !fs::exists(text, error)) TakeLock(*lock);
  }
}

void RescueFolder::Drop(RescuedText& rescued) {
  std::error_code ignored;
  fs::remove(rescued.File, ignored);
  rescued.Lock->unlock();
}

}  // namespace zerimo
