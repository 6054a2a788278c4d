#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <clocale>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>

#include "batch/batch_session.h"
#include "batch/errors.h"
#include "batch/latin1.h"
#include "batch/options.h"
#include "batch/picture_output.h"
#include "classroom/class_run.h"
#include "classroom/pupil_session.h"

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

/// One run of the program, its options given.
class Program {
 public:
  explicit Program(const Options& given) : options(given) {}

  int Run() {
    const std::optional<std::string> bytes = ReadSessionFile(options.SessionFile);
    if (!bytes) return Complain(options.SessionFile + ": the session can not be read");
    if (!OpenTranscript()) return Complain(options.TranscriptFile + ": the transcript can not be written");
    Journal journal(transcript, options.TranscriptOnStandardOutput() ? nullptr : &std::cout);
    BatchSession session(
        options.Session, pictures.Pixels(), journal,
        [this](const Surface& surface, const std::string& file) { pictures.Write(surface, PathOf(file)); });
    return RunScript(session, *bytes);
  }

 private:
  bool OpenTranscript() {
    if (options.TranscriptOnStandardOutput()) transcript = &std::cout;
    if (options.TranscriptFile.empty() || options.TranscriptOnStandardOutput()) return true;
    transcriptFile.open(options.TranscriptFile, std::ios::binary);
    transcript = &transcriptFile;
    return transcriptFile.is_open();
  }

  int RunScript(BatchSession& session, const std::string& bytes) {
    try {
      const Script script = session.Read(bytes);
      if (WantsOperations(script)) pictures.KeepOperations(session.System().Picture1);
      return Close(session, session.Run(script));
    } catch (const SessionError& error) {
      return ComplainAt(error.Line, error.what());
    }
  }

  bool WantsOperations(const Script& script) const {
    return IsVectorPictureName(options.PictureFile) || std::ranges::any_of(script, [](const SessionStep& step) {
             const auto* const picture = std::get_if<action::WritePicture>(&step.Act);
             return picture != nullptr && IsVectorPictureName(picture->File);
           });
  }

  /// The picture at the end is written however the session ended.
  int Close(BatchSession& session, const Outcome& outcome) {
    int status = static_cast<int>(outcome.How);
    if (!outcome.Message.empty()) ComplainAt(outcome.Line, outcome.Message);
    if (!WritePicture(session))
      status = std::max(status, Complain(options.PictureFile + ": the picture can not be written"));
    const bool written = (transcript == nullptr || transcript->flush().good()) && std::cout.flush().good();
    if (!written) status = std::max(status, Complain("the transcript can not be written"));
    return status;
  }

  bool WritePicture(BatchSession& session) const {
    if (options.PictureFile.empty()) return true;
    try {
      pictures.Write(session.System().Picture1, options.PictureFile);
      return true;
    } catch (const std::exception&) {
      return false;
    }
  }

  int ComplainAt(int line, const std::string& words) const {
    const std::string place = line == 0 ? std::string() : ":" + std::to_string(line);
    return Complain(options.SessionFile + place + ": " + words);
  }

  const Options& options;
  PictureOutput pictures;
  std::ofstream transcriptFile;
  std::ostream* transcript = nullptr;
};

/// What the toolkit has to say about the desktop is nothing for the user of a program without one.
void KeepQuiet(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtFatalMsg) std::cerr << message.toStdString() << '\n';
}

/// Fonts and picture formats need it; no display is opened.
class HiddenDesktop {
 public:
  explicit HiddenDesktop(char* programName) : arguments{programName, nullptr} {
    qInstallMessageHandler(KeepQuiet);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Nothing here follows the user's locale, neither numbers nor file names.
    qputenv("LC_ALL", "C.UTF-8");
    application.emplace(count, arguments.data());
    std::setlocale(LC_ALL, "C");
  }

 private:
  int count = 1;
  std::array<char*, 2> arguments;
  std::optional<QGuiApplication> application;
};

/// The argument by which a class run starts this program for one pupil.
constexpr const char* PupilArgument = "--class-pupil";

int Main(char* programName, const std::vector<std::string>& words) {
  if (words == std::vector<std::string>{PupilArgument}) {
    const HiddenDesktop desktop(programName);
    return classroom::RunPupil();
  }
  const Options options = ParseOptions(words);
  if (options.What == Options::Wish::Help) {
    std::cout << HelpText();
    return 0;
  }
  if (options.What == Options::Wish::Version) {
    std::cout << "zerimo-batch " ZERIMO_VERSION "\n";
    return 0;
  }
  const HiddenDesktop desktop(programName);
  if (options.What == Options::Wish::Run) return Program(options).Run();
  return static_cast<int>(classroom::RunClass(options, ZERIMO_VERSION));
}

int StatusOfBadUsage(const std::vector<std::string>& words) {
  return AskForClass(words) ? static_cast<int>(classroom::ClassStatus::BadUsage) : Refused;
}

/// Sessions and transcripts are bytes, also on a system that has line ends of its own.
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
