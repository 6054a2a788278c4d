#include "desktop/command_line.h"

#include <charconv>

namespace zerimo {

namespace {

constexpr int SmallestScale = 50;
constexpr int LargestScale = 400;

/// A scale in percent, or 0 if the text is not one.
int ScaleFrom(const std::string& text) {
  int percent = 0;
  const char* end = text.data() + text.size();
  const auto [last, error] = std::from_chars(text.data(), end, percent);
  const bool isScale = error == std::errc() && last == end && percent >= SmallestScale && percent <= LargestScale;
  return isScale ? percent : 0;
}

}  // namespace

CommandLine ReadCommandLine(const std::vector<std::string>& arguments) {
  CommandLine line;
  for (std::size_t at = 0; at < arguments.size(); ++at) {
    const std::string& argument = arguments[at];
    if (argument == "--classic") {
      line.Classic = true;
    } else if (argument == "--help") {
      line.Help = true;
    } else if (argument == "--version") {
      line.Version = true;
    } else if (argument == "--scale") {
      if (++at < arguments.size()) line.Scale = ScaleFrom(arguments[at]);
      if (line.Scale != 0) continue;
      line.Refusal = "--scale needs a number from 50 to 400, in percent";
      return line;
    } else if (argument.empty()) {
      line.Refusal = "the name of the file is empty";
      return line;
    } else if (argument.front() == '-') {
      line.Refusal = argument + ": there is no such option; --help shows them";
      return line;
    } else if (line.File) {
      line.Refusal = "only one file can be opened";
      return line;
    } else {
      line.File = at;
    }
  }
  return line;
}

}  // namespace zerimo
