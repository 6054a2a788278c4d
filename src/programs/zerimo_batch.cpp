#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <clocale>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <optional>
#include <utility>

#include "batch/batch_session.h"
#include "batch/errors.h"
#include "batch/latin1.h"
#include "batch/picture_output.h"
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

constexpr int Refused = static_cast<int>(Ending::Refused);

int Complain(const std::string& words) {
  std::cerr << "zerimo-batch: " << words << '\n';
  return Refused;
}

std::optional<std::string> ReadSessionFile(const std::string& name) {
  std::ifstream file;
  if (name != "-") {
    std::error_code ignored;
    if (std::filesystem::is_directory(name, ignored)) return std::nullopt;
    file.open(name, std::ios::binary);
  }
  std::istream& stream = name == "-" ? std::cin : file;
  std::string bytes(std::istreambuf_iterator<char>(stream), {});
  if (stream.bad() || (name != "-" && !file.is_open())) return std::nullopt;
  return bytes;
}

/// File names come from sessions as single-byte text.
std::filesystem::path PathOf(const std::string& latin1) {
  const std::string utf8 = ToUtf8(latin1);
  return std::u8string(utf8.begin(), utf8.end());
}

/// One run of the program with its options.
class Program {
 public:
  Program(const Options& options, std::function<void()> startToolkit)
      : options_(options), pictures_(std::move(startToolkit)) {}

  int Run() {
    const std::optional<std::string> bytes = ReadSessionFile(options_.SessionFile);
    if (!bytes) return Complain(options_.SessionFile + ": the session can not be read");
    if (!OpenTranscript()) return Complain(options_.TranscriptFile + ": the transcript can not be written");
    Journal journal(transcript_, options_.TranscriptOnStandardOutput() ? nullptr : &std::cout);
    BatchSession session(
        options_.Session, pictures_.Pixels(), journal,
        [this](const Surface& surface, const std::string& file) { pictures_.Write(surface, PathOf(file)); });
    return RunScript(session, *bytes);
  }

 private:
  bool OpenTranscript() {
    if (options_.TranscriptOnStandardOutput()) transcript_ = &std::cout;
    if (options_.TranscriptFile.empty() || options_.TranscriptOnStandardOutput()) return true;
    transcriptFile_.open(options_.TranscriptFile, std::ios::binary);
    transcript_ = &transcriptFile_;
    return transcriptFile_.is_open();
  }

  int RunScript(BatchSession& session, const std::string& bytes) {
    try {
      const Script script = session.Read(bytes);
      if (WantsOperations(script)) pictures_.KeepOperations(session.System().Picture1);
      return Close(session, session.Run(script));
    } catch (const SessionError& error) {
      return ComplainAt(error.Line, error.what());
    }
  }

  bool WantsOperations(const Script& script) const {
    return IsVectorPictureName(options_.PictureFile) || std::ranges::any_of(script, [](const SessionStep& step) {
             const auto* const picture = std::get_if<action::WritePicture>(&step.Act);
             return picture != nullptr && IsVectorPictureName(picture->File);
           });
  }

  /// The final picture is written however the session ended.
  int Close(BatchSession& session, const Outcome& outcome) {
    int status = static_cast<int>(outcome.How);
    if (!outcome.Message.empty()) ComplainAt(outcome.Line, outcome.Message);
    if (!WritePicture(session))
      status = std::max(status, Complain(options_.PictureFile + ": the picture can not be written"));
    const bool written = (transcript_ == nullptr || transcript_->flush().good()) && std::cout.flush().good();
    if (!written) status = std::max(status, Complain("the transcript can not be written"));
    return status;
  }

  bool WritePicture(BatchSession& session) const {
    if (options_.PictureFile.empty()) return true;
    try {
      pictures_.Write(session.System().Picture1, options_.PictureFile);
      return true;
    } catch (const std::exception&) {
      return false;
    }
  }

  int ComplainAt(int line, const std::string& words) const {
    const std::string place = line == 0 ? std::string() : ":" + std::to_string(line);
    return Complain(options_.SessionFile + place + ": " + words);
  }

  const Options& options_;
  PictureOutput pictures_;
  std::ofstream transcriptFile_;
  std::ostream* transcript_ = nullptr;
};

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
  if (command.Runner.What == Options::Wish::Help) {
    std::cout << command.HelpText;
    return 0;
  }
  if (command.Runner.What == Options::Wish::Version) {
    std::cout << "zerimo-batch " ZERIMO_VERSION "\n";
    return 0;
  }
  if (!command.IsClass()) return Program(command.Runner, [&desktop] { desktop.Start(); }).Run();
  desktop.Start();
  return static_cast<int>(classroom::RunClass(command, ZERIMO_VERSION));
}

int StatusOfBadUsage(const std::vector<std::string>& words) {
  return classroom::AskForClass(words) ? static_cast<int>(classroom::ClassStatus::BadUsage) : Refused;
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
