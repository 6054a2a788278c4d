#include "desktop/extensions/rescue_folder.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>

#include "base/failure.h"
#include "files/disk_files.h"

namespace zerimo {

namespace fs = std::filesystem;

namespace {

constexpr const char* Ending = ".ZRM";

QString ToQString(const fs::path& path) { return QString::fromStdU16String(path.u16string()); }

std::unique_ptr<QLockFile> LockOf(const fs::path& file) {
  auto lock = std::make_unique<QLockFile>(ToQString(file) + QLatin1String(".lock"));
  // However old a lock is, it is valid as long as its process lives.
  lock->setStaleLockTime(0);
  return lock;
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
  std::vector<RescuedText> left;
  std::error_code error;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder_, error)) {
    if (entry.path().extension() != Ending || entry.path() == own_) continue;
    std::shared_ptr<QLockFile> lock = LockOf(entry.path());
    if (!lock->tryLock(0)) continue;
    std::string text = BytesOf(entry.path()).value_or("");
    left.push_back({entry.path(), std::move(text), QFileInfo(ToQString(entry.path())).lastModified(), lock});
  }
  std::sort(left.begin(), left.end(), [](const auto& one, const auto& other) { return one.File < other.File; });
  return left;
}

void RescueFolder::Drop(RescuedText& rescued) {
  std::error_code ignored;
  fs::remove(rescued.File, ignored);
  rescued.Lock->unlock();
}

}  // namespace zerimo
