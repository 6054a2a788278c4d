#include "batch/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <utility>

#include "batch/errors.h"
#include "batch/latin1.h"
#include "graphics/surface.h"

namespace zerimo::batch {

namespace {

/// Pixels. A lower screen has no room for the surface above the command rows.
constexpr int LeastScreenHeight = 130;
constexpr int GreatestScreenSide = 8192;
constexpr double GreatestSeconds = 1e9;

/// Megabytes.
constexpr int MemoryOfSession = 1024;
constexpr int OutputOfSession = 256;
constexpr int LeastMemory = 16;
constexpr int GreatestLimit = 1 << 20;

/// Columns of the help before the description of an option.
constexpr std::size_t HelpColumn = 23;

constexpr const char* SessionWord = "SESSION";

void TakeScreen(Options& options, const std::string& value) {
  const std::size_t divider = value.find('x');
  const std::string_view text = value;
  const auto width = WholeText<int>(text.substr(0, divider));
  const auto height = WholeText<int>(divider == std::string::npos ? std::string_view() : text.substr(divider + 1));
  const bool sane = width && height && *width >= 1 && *height >= LeastScreenHeight && *width <= GreatestScreenSide &&
                    *height <= GreatestScreenSide;
  if (!sane) Refuse("--screen", value, "WIDTHxHEIGHT in pixels is wanted, from 1x130 to 8192x8192");
  options.settings.Screen.Width = static_cast<float>(*width * UnitsPerPixel);
  options.settings.Screen.Height = static_cast<float>(*height * UnitsPerPixel);
}

void TakeAppFolder(Options& options, const std::string& value) {
  std::error_code ignored;
  if (!std::filesystem::is_directory(value, ignored)) Refuse("--app-folder", value, "there is no such folder");
  try {
    options.settings.AppFolder = FromUtf8(value);
  } catch (const TextError& error) {
    Refuse("--app-folder", value, error.what());
  }
  std::string& folder = options.settings.AppFolder;
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
  options.settings.Steps = *steps;
}

void TakeSeconds(Options& options, const std::string& value) {
  const auto seconds = WholeText<double>(value, std::chars_format::fixed);
  const bool sane = seconds && std::isfinite(*seconds) && *seconds >= 0 && *seconds <= GreatestSeconds;
  if (!sane) Refuse("--seconds", value, "a number from 0 to 1000000000 is wanted");
  options.settings.Seconds = *seconds;
}

void TakeMemory(Options& options, const std::string& value) {
  const auto memory = WholeText<int>(value);
  const bool sane = memory && (*memory == 0 || (*memory >= LeastMemory && *memory <= GreatestLimit));
  if (!sane) Refuse("--memory", value, "megabytes are wanted, from 16 to 1048576, or 0");
  options.settings.Memory = *memory;
}

void TakeOutput(Options& options, const std::string& value) {
  const auto output = WholeText<int>(value);
  if (!output || *output < 0 || *output > GreatestLimit)
    Refuse("--output", value, "megabytes are wanted, from 0 to 1048576");
  options.settings.Output = *output;
}

void TakeSession(Options& options, const std::string& file) {
  if (file.empty()) throw UsageError("the name of the session is empty");
  options.SessionFile = file;
}

/// Refuses an argument that no option has taken.
[[noreturn]] void RefuseRest(const std::string& word) {
  if (word.size() > 1 && word[0] == '-') throw UsageError(word + ": there is no such option");
  throw UsageError(word + ": only one session can be run");
}

}  // namespace

void Refuse(std::string_view option, std::string_view value, std::string_view wanted) {
  throw UsageError(std::string(option) + " " + std::string(value) + ": " + std::string(wanted));
}

CommandLine::CommandLine(Options& options) : options_(options), parser_(std::make_unique<CLI::App>()) {
  parser_->allow_extras();
  parser_->allow_windows_style_options(false);
  parser_->set_help_flag();
  options.settings.Memory = MemoryOfSession;
  options.settings.Output = OutputOfSession;
  AddShared();
  AddOfSession();
}

CommandLine::~CommandLine() = default;

void CommandLine::AddShared() {
  const auto taking = [this](void (*take)(Options&, const std::string&)) {
    return [this, take](const std::string& value) { take(options_, value); };
  };
  Add(Shared, {"--screen", "WxH", "size of the screen in pixels (1024x768)", taking(TakeScreen)});
  Add(Shared,
      {"--steps", "N", "at most N steps in one typed line or handler; 0 is no limit (10000000)", taking(TakeSteps)});
  Add(Shared, {"--seconds", "S",
               "at most S seconds for a session (60), or for each program of a class (10);\n"
               "0 is no limit",
               taking(TakeSeconds)});
  Add(Shared, {"--memory", "MB",
               "at most MB megabytes for a session (1024), or for each program of a class (512);\n"
               "0 is no limit",
               taking(TakeMemory)});
  parser_
      ->add_flag_callback(
          "--help", [this] { options_.What = Options::Wish::Help; }, "show this text")
      ->group(Shared);
  parser_
      ->add_flag_callback(
          "--version", [this] { options_.What = Options::Wish::Version; }, "show the version")
      ->group(Shared);
}

void CommandLine::AddOfSession() {
  const auto taking = [this](void (*take)(Options&, const std::string&)) {
    return [this, take](const std::string& value) { take(options_, value); };
  };
  Add(OfSession,
      {"--app-folder", "DIR", "the folder of programs and pictures (the current folder)", taking(TakeAppFolder)});
  Add(OfSession,
      {"--transcript", "FILE", "write what happens as JSON Lines; - is standard output", taking(TakeTranscript)});
  Add(OfSession, {"--picture", "FILE", "write the picture at the end: .png, .bmp, .jpg or .svg", taking(TakePicture)});
  Add(OfSession,
      {"--output", "MB", "at most MB megabytes of transcript and output; 0 is no limit (256)", taking(TakeOutput)});
  AddFlag(OfSession, "--sleep", "WAIT really sleeps", options_.settings.Sleep);
  parser_->add_option_function<std::string>(SessionWord, taking(TakeSession))->group("");
}

void CommandLine::Add(const char* group, const ValueOption& option) {
  parser_->add_option_function<std::string>(option.Name, option.Take, option.Help)
      ->option_text(option.Value)
      ->group(group)
      ->take_last();
}

void CommandLine::AddList(const char* group, const char* name, const char* value, const char* help,
                          std::vector<std::string>& values) {
  parser_->add_option(name, values, help)->option_text(value)->group(group);
}

void CommandLine::AddFlag(const char* group, const char* name, const char* help, bool& flag) {
  parser_->add_flag(name, flag, help)->group(group);
}

void CommandLine::AddHelp(const std::string& usage, const std::string& end) {
  usage_ += usage;
  end_ += end;
}

void CommandLine::Parse(const std::vector<std::string>& arguments) {
  std::vector<std::string> lastFirst(arguments.rbegin(), arguments.rend());
  try {
    parser_->parse(std::move(lastFirst));
  } catch (const CLI::ArgumentMismatch& error) {
    // The library's message begins with the option: "--steps: 1 required".
    throw UsageError(std::string(error.what()).substr(0, std::string_view(error.what()).find(':')) +
                     ": a value is missing");
  } catch (const CLI::ParseError& error) {
    throw UsageError(error.what());
  }
  const std::vector<std::string> rest = parser_->remaining();
  const auto wrong = std::ranges::find_if(rest, [](const std::string& word) { return word != "--"; });
  if (wrong != rest.end()) RefuseRest(*wrong);
}

bool CommandLine::Has(const std::string& name) const { return parser_->get_option(name)->count() > 0; }

bool CommandLine::HasSession() const { return Has(SessionWord); }

std::string CommandLine::FirstOf(const std::string& group) const {
  const std::vector<const CLI::Option*> all = std::as_const(*parser_).get_options();
  const auto found = std::ranges::find_if(
      all, [&group](const CLI::Option* option) { return option->get_group() == group && option->count() > 0; });
  return found == all.end() ? std::string() : (*found)->get_name();
}

bool CommandLine::Names(const std::string& option, const std::vector<std::string>& arguments) const {
  for (std::size_t i = 0; i < arguments.size() && arguments[i] != "--"; ++i) {
    if (arguments[i] == option || arguments[i].starts_with(option + "=")) return true;
    const CLI::Option* const known = std::as_const(*parser_).get_option_no_throw(arguments[i]);
    // A value is not an option, whatever it looks like.
    if (known != nullptr && known->get_items_expected_min() > 0) ++i;
  }
  return false;
}

std::string CommandLine::HelpText() const {
  CLI::Formatter formatter;
  formatter.column_width(HelpColumn);
  return "Usage: zerimo-batch [options] [SESSION]\n" + usage_ +
         "Runs a session of Zerimo without a window. SESSION is a file, or standard input if it is absent or -.\n" +
         formatter.make_groups(parser_.get(), CLI::AppFormatMode::Normal) +
         "\nThe whole session is checked before anything runs: a bad directive stops it with its line number.\n"
         "Exit status: 0 the session ended; 1 bad usage, an unreadable session or a bad directive;\n"
         "2 the system was ended by a failure; 3 a limit stopped it.\n" +
         end_;
}

}  // namespace zerimo::batch
