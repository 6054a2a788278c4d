#include "batch/run_session.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>

#include "base/failure.h"
#include "batch/batch_session.h"
#include "batch/errors.h"
#include "batch/latin1.h"
#include "files/disk_files.h"

namespace zerimo::batch {

namespace {

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
  Program(const Options& options, SessionPictures& pictures) : options_(options), pictures_(pictures) {}

  int Run() {
    for (const std::string& output : {options_.PictureFile, options_.TranscriptFile})
      RemoveLeftovers(std::filesystem::path(output).parent_path());
    const std::optional<std::string> bytes = ReadSessionFile(options_.SessionFile);
    if (!bytes) return Complain(options_.SessionFile + ": the session can't be read");
    if (!OpenTranscript()) return Complain(options_.TranscriptFile + ": the transcript can't be written");
    Journal journal(transcript_, options_.TranscriptOnStandardOutput() ? nullptr : &std::cout);
    BatchSession session(
        options_.settings, pictures_.Pixels(), journal,
        [this](const Surface& surface, const std::string& file) { pictures_.Write(surface, PathOf(file)); });
    return RunScript(session, *bytes);
  }

 private:
  bool OpenTranscript() {
    if (options_.TranscriptOnStandardOutput()) transcript_ = &std::cout;
    if (options_.TranscriptFile.empty() || options_.TranscriptOnStandardOutput()) return true;
    return SkipOnFailure([this] {
      transcriptFile_.emplace(options_.TranscriptFile);
      transcript_ = &transcriptStream_.emplace(&*transcriptFile_);
    });
  }

  int RunScript(BatchSession& session, const std::string& bytes) {
    try {
      const Script script = session.Read(bytes);
      if (WantsOperations(script)) pictures_.KeepOperations(session.form1.Picture1);
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
      status = std::max(status, Complain(options_.PictureFile + ": the picture can't be written"));
    if (!SaveTranscript() || !std::cout.flush().good())
      status = std::max(status, Complain("the transcript can't be written"));
    return status;
  }

  bool SaveTranscript() {
    return !transcriptFile_ || SkipOnFailure([this] { transcriptFile_->Save(); });
  }

  bool WritePicture(BatchSession& session) const {
    if (options_.PictureFile.empty()) return true;
    try {
      pictures_.Write(session.form1.Picture1, options_.PictureFile);
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
  SessionPictures& pictures_;
  std::optional<FileToSave> transcriptFile_;
  std::optional<std::ostream> transcriptStream_;
  std::ostream* transcript_ = nullptr;
};

}  // namespace

bool AnswersQuestion(const Options& options, const std::string& help, const std::string& version) {
  if (options.What == Options::Wish::Help) std::cout << help;
  if (options.What == Options::Wish::Version) std::cout << "zerimo-batch " << version << '\n';
  return options.What != Options::Wish::Run;
}

int Complain(const std::string& words) {
  std::cerr << "zerimo-batch: " << words << '\n';
  return static_cast<int>(Ending::Refused);
}

int RunSession(const Options& options, SessionPictures& pictures) { return Program(options, pictures).Run(); }

}  // namespace zerimo::batch
