#include "classroom/runs_folder.h"

#include <QDateTime>
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

}  // namespace

RunsFolder::RunsFolder() : folder_(QDir::tempPath() + u'/' + QLatin1String(Beginning) + QStringLiteral("XXXXXX")) {
  if (!IsThere()) return;
  lock_ = LockIn(folder_.path());
  lock_->tryLock(0);
  RemoveLeftovers(QFileInfo(folder_.path()));
}

}  // namespace zerimo::classroom
