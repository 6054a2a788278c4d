#pragma once

#include <QLockFile>
#include <QTemporaryDir>
#include <filesystem>
#include <memory>

namespace zerimo::classroom {

/// A new folder among the temporary files for those of one class run; it goes with this object. What a runner that was
/// killed has left there goes when the next one begins.
class RunsFolder {
 public:
  RunsFolder();

  /// False if there is no room for temporary files.
  bool IsThere() const { return folder_.isValid(); }
  std::filesystem::path Path() const { return folder_.path().toStdU16String(); }

 private:
  QTemporaryDir folder_;
  /// Held as long as the runner lives.
  std::unique_ptr<QLockFile> lock_;
};

}  // namespace zerimo::classroom
