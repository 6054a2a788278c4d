#include "batch/options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <optional>
#include <string_view>

#include "batch/errors.h"
#include "batch/latin1.h"
#include "graphics/surface.h"

namespace zerimo::batch {

namespace {

/// Pixels. A lower screen has no room for the surface above the command rows.
constexpr int LeastScreenHeight = 130;
constexpr int GreatestScreenSide = 8192;
constexpr double GreatestSeconds = 1e9;
/// A program of a class gets less time than a session, for there are many.
constexpr double SecondsInClass = 10;
constexpr int LeastMemory = 16;
constexpr int GreatestMemory = 1 << 20;

/// The number that is the whole text, or nothing.
template <typename Number, typename... Format>
std::optional<Number> WholeText(std::string_view text, Format... format) {
  Number number{};
  const char* const end = text.data() + text.size();
  const std::from_chars_result result = std::from_chars(text.data(), end, number, format...);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return number;
}

[[noreturn]] void Refuse(std::string_view option, std::string_view value, std::string_view wanted) {
  throw UsageError(std::string(option) + " " + std::string(value) + ": " + std::string(wanted));
}

void TakeScreen(Options& options, const std::string& value) {
  const std::size_t divider = value.find('x');
  const std::string_view text = value;
  const auto width = WholeText<int>(text.substr(0, divider));
  const auto height = WholeText<int>(divider == std::string::npos ? std::string_view() : text.substr(divider + 1));
  const bool sane = width && height && *width >= 1 && *height >= LeastScreenHeight && *width <= GreatestScreenSide &&
                    *height <= GreatestScreenSide;
  if (!sane) Refuse("--screen", value, "WIDTHxHEIGHT in pixels is wanted, from 1x130 to 8192x8192");
  options.Session.Screen.Width = static_cast<float>(*width * UnitsPerPixel);
  options.Session.Screen.Height = static_cast<float>(*height * UnitsPerPixel);
}

void TakeAppFolder(Options& options, const std::string& value) {
  std::error_code ignored;
  if (!std::filesystem::is_directory(value, ignored)) Refuse("--app-folder", value, "there is no such folder");
  try {
    options.Session.AppFolder = FromUtf8(value);
  } catch (const TextError& error) {
    Refuse("--app-folder", value, error.what());
  }
  std::string& folder = options.Session.AppFolder;
  while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
}

void TakeTranscript(Options& options, const std::string& value) {
  if (value.empty()) Refuse("--transcript", value, "a file name is wanted");
  options.TranscriptFile = value;
}

void TakePicture(Options& options, const std::string& value) {
  if (!IsPictureName(value)) Refuse("--picture", value, "a file name ending in .png, .bmp, .jpg or .svg is wanted");
  options.PictureFile = value;
}

void TakeSteps(Options& options, const std::string& value) {
  const auto steps = WholeText<std::uint64_t>(value);
  if (!steps) Refuse("--steps", value, "a whole number from 0 is wanted");
  options.Session.Steps = *steps;
}

void TakeSeconds(Options& options, const std::string& value) {
  const auto seconds = WholeText<double>(value, std::chars_format::fixed);
  const bool sane = seconds && std::isfinite(*seconds) && *seconds >= 0 && *seconds <= GreatestSeconds;
  if (!sane) Refuse("--seconds", value, "a number from 0 to 1000000000 is wanted");
  options.Session.Seconds = *seconds;
}

void TakeClass(Options& options, const std::string& value) {
  if (value.empty()) Refuse("--class", value, "a folder is wanted");
  options.Class.Folder = value;
}

void TakeReport(Options& options, const std::string& value) {
  if (!IsPageName(value)) Refuse("--out", value, "a file name ending in .html or .htm is wanted");
  options.Class.Report = value;
}

void TakeMemory(Options& options, const std::string& value) {
  const auto memory = WholeText<int>(value);
  const bool sane = memory && (*memory == 0 || (*memory >= LeastMemory && *memory <= GreatestMemory));
  if (!sane) Refuse("--memory", value, "megabytes are wanted, from 16 to 1048576, or 0");
  options.Class.Memory = *memory;
}

void TakeJobs(Options& options, const std::string& value) {
  const auto jobs = WholeText<int>(value);
  if (!jobs || *jobs < 1 || *jobs > ClassOptions::MostJobs)
    Refuse("--jobs", value, "a whole number from 1 to 64 is wanted");
  options.Class.Jobs = *jobs;
}

/// The kind of run that an option belongs to.
enum class Use { Both, Session, Class };

struct ValueOption {
  std::string_view Name;
  void (*Take)(Options& options, const std::string& value);
  Use For;
};

constexpr std::array<ValueOption, 10> ValueOptions = {{
    {"--screen", TakeScreen, Use::Both},
    {"--app-folder", TakeAppFolder, Use::Session},
    {"--transcript", TakeTranscript, Use::Session},
    {"--picture", TakePicture, Use::Session},
    {"--steps", TakeSteps, Use::Both},
    {"--seconds", TakeSeconds, Use::Both},
    {"--class", TakeClass, Use::Class},
    {"--out", TakeReport, Use::Class},
    {"--memory", TakeMemory, Use::Class},
    {"--jobs", TakeJobs, Use::Class},
}};

const ValueOption* FindValueOption(std::string_view name) {
  const auto* const found = std::ranges::find(ValueOptions, name, &ValueOption::Name);
  return found == ValueOptions.end() ? nullptr : found;
}

/// Goes through the arguments one after the other.
class ArgumentWalk {
 public:
  explicit ArgumentWalk(const std::vector<std::string>& all) : arguments_(all) {
    if (!AskForClass(arguments_)) return;
    options_.What = Options::Wish::Class;
    options_.Session.Seconds = SecondsInClass;
  }

  Options Parse() {
    while (next_ < arguments_.size() && !IsAnswered()) TakeArgument(arguments_[next_++]);
    if (IsClass() && options_.Class.Report.empty()) throw UsageError("--class: the report is missing, give --out");
    return options_;
  }

 private:
  bool IsClass() const { return options_.What == Options::Wish::Class; }
  bool IsAnswered() const { return options_.What == Options::Wish::Help || options_.What == Options::Wish::Version; }

  void TakeArgument(const std::string& argument) {
    const bool isOption = !optionsEnded_ && argument.size() > 1 && argument[0] == '-';
    if (!isOption) {
      TakeSession(argument);
    } else if (argument == "--") {
      optionsEnded_ = true;
    } else if (argument == "--help") {
      options_.What = Options::Wish::Help;
    } else if (argument == "--version") {
      options_.What = Options::Wish::Version;
    } else if (argument == "--sleep") {
      RequireUse(argument, Use::Session);
      options_.Session.Sleep = true;
    } else {
      TakeValue(argument);
    }
  }

  void TakeValue(const std::string& name) {
    const ValueOption* const option = FindValueOption(name);
    if (option == nullptr) throw UsageError(name + ": there is no such option");
    RequireUse(name, option->For);
    if (next_ == arguments_.size()) throw UsageError(name + ": a value is missing");
    option->Take(options_, arguments_[next_++]);
  }

  void RequireUse(const std::string& name, Use use) const {
    if (use == Use::Session && IsClass()) throw UsageError(name + ": not with --class");
    if (use == Use::Class && !IsClass()) throw UsageError(name + ": only with --class");
  }

  void TakeSession(const std::string& file) {
    if (IsClass()) throw UsageError(file + ": no session can be given with --class; put it beside the program");
    if (sessionGiven_) throw UsageError(file + ": only one session can be run");
    if (file.empty()) throw UsageError("the name of the session is empty");
    sessionGiven_ = true;
    options_.SessionFile = file;
  }

  const std::vector<std::string>& arguments_;
  std::size_t next_ = 0;
  bool optionsEnded_ = false;
  bool sessionGiven_ = false;
  Options options_;
};

}  // namespace

Options ParseOptions(const std::vector<std::string>& arguments) { return ArgumentWalk(arguments).Parse(); }

bool AskForClass(const std::vector<std::string>& arguments) {
  for (std::size_t i = 0; i < arguments.size() && arguments[i] != "--"; ++i) {
    if (arguments[i] == "--class") return true;
    // A value is no option, whatever it looks like.
    if (FindValueOption(arguments[i]) != nullptr) ++i;
  }
  return false;
}

std::string HelpText() {
  return "Usage: zerimo-batch [options] [SESSION]\n"
         "       zerimo-batch --class FOLDER --out REPORT.html [options]\n"
         "Runs a session of Zerimo without a window. SESSION is a file, or standard input if it is absent or -.\n"
         "\n"
         "  --screen WxH       size of the screen in pixels (1024x768)\n"
         "  --app-folder DIR   the folder of programs and pictures (the current folder)\n"
         "  --transcript FILE  write what happens as JSON Lines; - is standard output\n"
         "  --picture FILE     write the picture at the end: .png, .bmp, .jpg or .svg\n"
         "  --steps N          at most N steps in one typed line or handler; 0 is no limit (10000000)\n"
         "  --seconds S        at most S seconds for the whole session; 0 is no limit (60)\n"
         "  --sleep            WAIT really sleeps\n"
         "  --help             show this text\n"
         "  --version          show the version\n"
         "\n"
         "The whole session is checked before anything runs: a bad directive stops it with its line number.\n"
         "Exit status: 0 the session ended; 1 bad usage, an unreadable session or a bad directive;\n"
         "2 the system was ended by a failure; 3 a limit stopped it.\n"
         "\n"
         "With --class every program (.ZRM) of a folder runs in a process of its own, by the session (.session) of "
         "the\n"
         "same name beside it if there is one, and a page about all of them is written.\n"
         "\n"
         "  --class FOLDER     the folder of the programs\n"
         "  --out REPORT       the page to write, .html or .htm; a summary goes beside it as .json\n"
         "  --seconds S        at most S seconds for each program; 0 is no limit (10)\n"
         "  --steps N          as above\n"
         "  --memory MB        at most MB megabytes for each program; 0 is no limit (512)\n"
         "  --jobs N           N programs at the same time (one for each core)\n"
         "  --screen WxH       as above\n"
         "\n"
         "Exit status with --class: 0 the report is written; 1 it can not be written; 2 bad usage; 3 interrupted.\n";
}

}  // namespace zerimo::batch
