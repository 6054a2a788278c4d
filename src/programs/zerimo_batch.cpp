#include <QGuiApplication>
#include <array>
#include <clocale>
#include <iostream>
#include <optional>

#include "batch/batch_session.h"
#include "batch/errors.h"
#include "batch/picture_output.h"
#include "batch/run_session.h"
#include "classroom/class_options.h"
#include "classroom/class_run.h"
#include "classroom/pupil_session.h"
#include "files/disk_files.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace zerimo::batch {

namespace {

/// A program without a desktop hides what the toolkit says about it.
void KeepQuiet(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtFatalMsg) std::cerr << message.toStdString() << '\n';
}

/// Fonts and picture formats need it; no display is opened. Most sessions need neither, and it takes longer to start
/// than they run.
class HiddenDesktop {
 public:
  explicit HiddenDesktop(char* programName) : arguments_{programName, nullptr} {}

  /// Does nothing if it is started.
  void Start() {
    if (application_) return;
    qInstallMessageHandler(KeepQuiet);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Nothing here follows the user's locale, neither numbers nor file names.
    qputenv("LC_ALL", "C.UTF-8");
    application_.emplace(count_, arguments_.data());
    std::setlocale(LC_ALL, "C");
  }

 private:
  int count_ = 1;
  std::array<char*, 2> arguments_;
  std::optional<QGuiApplication> application_;
};

int Main(char* programName, const std::vector<std::string>& words) {
  HiddenDesktop desktop(programName);
  if (words == std::vector<std::string>{classroom::PupilArgument}) {
    desktop.Start();
    return classroom::RunPupil();
  }
  const classroom::Command command = classroom::ParseCommand(words);
  if (AnswersQuestion(command.options, command.HelpText, ZERIMO_VERSION)) return 0;
  if (!command.IsClass()) {
    PictureOutput pictures([&desktop] { desktop.Start(); });
    return RunSession(command.options, pictures);
  }
  desktop.Start();
  return static_cast<int>(classroom::RunClass(command, ZERIMO_VERSION));
}

int StatusOfBadUsage(const std::vector<std::string>& words) {
  return classroom::AskForClass(words) ? static_cast<int>(classroom::ClassStatus::BadUsage)
                                       : static_cast<int>(Ending::Refused);
}

/// Sessions and transcripts are bytes, even on a system with its own line ends.
void KeepLineEnds() {
#ifdef _WIN32
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
#endif
}

}  // namespace

}  // namespace zerimo::batch

int main(int argc, char** argv) {
  zerimo::batch::KeepLineEnds();
  zerimo::LetLargeWritesFail();
  std::ios::sync_with_stdio(false);
  const std::vector<std::string> words(argv + 1, argv + argc);
  try {
    return zerimo::batch::Main(argv[0], words);
  } catch (const zerimo::batch::UsageError& error) {
    std::cerr << "zerimo-batch: " << error.what() << '\n';
    return zerimo::batch::StatusOfBadUsage(words);
  } catch (const std::exception& error) {
    std::cerr << "zerimo-batch: " << error.what() << '\n';
    return static_cast<int>(zerimo::batch::Ending::Failed);
  }
}
