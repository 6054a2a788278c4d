#pragma once

#include <QJsonObject>
#include <filesystem>
#include <string>
#include <vector>

namespace zerimo {

/// A folder to run the system in, with links to the built help pages and samples. It is removed at the end.
class WorkFolder {
 public:
  /// `builtFolder` is the folder of the built programs, `name` distinguishes this folder from those of other tests.
  WorkFolder(const std::filesystem::path& builtFolder, const std::string& name);
  ~WorkFolder();
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;

  const std::filesystem::path Path;
};

/// What zerimo-batch said about a session.
struct BatchRun {
  int ExitStatus = -1;
  std::string Complaint;
  /// The transcript, line by line.
  std::vector<std::string> Transcript;
  std::vector<QJsonObject> Events;

  /// The events of a kind, such as "box".
  std::vector<QJsonObject> EventsOf(const QString& kind) const;
};

/// Runs the built zerimo-batch in a folder, which is its AppFolder too.
BatchRun RunBatch(const std::filesystem::path& folder, const std::string& session,
                  const std::vector<std::string>& options = {});

}  // namespace zerimo
