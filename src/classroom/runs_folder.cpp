#include "classroom/runs_folder.h"

#include <QDir>
#include <QFileInfo>

namespace zerimo::classroom {

namespace {

constexpr const char* Beginning = "zerimo-class-";

std::unique_ptr<QLockFile> LockIn(const QString& folder) {
  auto lock = std::make_unique<QLockFile>(folder + QStringLiteral("/runner.lock"));
  // However old a lock is, it holds as long as its process lives.
  lock->setStaleLockTime(0);
  return lock;
}

/// Only what belongs to the same user, and only where a runner has been.
void RemoveLeftovers(const QFileInfo& own) {
  for (const QFileInfo& other : own.dir().entryInfoList({QLatin1String(Beginning) + u'*'}, QDir::Dirs)) {
    const QString path = other.filePath();
    const bool isOurs = !other.isSymLink() && other.ownerId() == own.ownerId() && path != own.filePath() &&
                        QFileInfo::exists(path + QStringLiteral("/runner.lock"));
    if (isOurs && LockIn(path)->tryLock(0)) QDir(path).removeRecursively();
  }
}

}  // namespace

RunsFolder::RunsFolder() : folder_(QDir::tempPath() + u'/' + QLatin1String(Beginning) + QStringLiteral("XXXXXX")) {
  if (!IsThere()) return;
  lock_ = LockIn(folder_.path());
  lock_->tryLock(0);
  RemoveLeftovers(QFileInfo(folder_.path()));
}

}  // namespace zerimo::classroom
