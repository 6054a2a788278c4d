#include "support/batch_run.h"

#include <unistd.h>

#include <QJsonDocument>
#include <QProcess>
#include <algorithm>
#include <iterator>

namespace zerimo {

namespace {

constexpr int mostMilliseconds = 100'000;

std::filesystem::path FreshFolder(const std::string& name) {
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("zerimo-" + name + "-" + std::to_string(getpid()));
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  return folder;
}

QStringList ArgumentsOf(const std::vector<std::string>& options) {
  QStringList arguments = {"--app-folder", ".", "--transcript", "-"};
  for (const std::string& option : options) arguments << QString::fromStdString(option);
  return arguments;
}

}  // namespace

WorkFolder::WorkFolder(const std::filesystem::path& builtFolder, const std::string& name) : Path(FreshFolder(name)) {
  std::filesystem::create_directory_symlink(builtFolder / "ZMHELP", Path / "ZMHELP");
  for (const auto& entry : std::filesystem::directory_iterator(builtFolder)) {
    const std::filesystem::path ending = entry.path().extension();
    const bool isSample = ending == ".ZRM" || ending == ".JPG";
    if (isSample) std::filesystem::create_symlink(entry.path(), Path / entry.path().filename());
  }
}

WorkFolder::~WorkFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(Path, ignored);
}

std::vector<QJsonObject> BatchRun::EventsOf(const QString& kind) const {
  std::vector<QJsonObject> found;
  std::ranges::copy_if(Events, std::back_inserter(found),
                       [&](const QJsonObject& event) { return event["event"].toString() == kind; });
  return found;
}

BatchRun RunBatch(const std::filesystem::path& folder, const std::string& session,
                  const std::vector<std::string>& options) {
  QProcess process;
  process.setWorkingDirectory(QString::fromStdString(folder.string()));
  process.start(ZERIMO_BATCH, ArgumentsOf(options));
  process.write(QByteArray::fromStdString(session));
  process.closeWriteChannel();
  process.waitForFinished(mostMilliseconds);

  BatchRun run;
  run.ExitStatus = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
  run.Complaint = process.readAllStandardError().toStdString();
  for (const QByteArray& line : process.readAllStandardOutput().split('\n')) {
    if (line.isEmpty()) continue;
    run.Transcript.push_back(line.toStdString());
    run.Events.push_back(QJsonDocument::fromJson(line).object());
  }
  return run;
}

}  // namespace zerimo
