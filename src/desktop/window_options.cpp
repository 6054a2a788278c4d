#include "desktop/window_options.h"

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

WindowOptions ReadWindowOptions(const std::vector<std::string>& arguments) {
  WindowOptions options;
  for (std::size_t at = 0; at < arguments.size(); ++at) {
    const std::string& argument = arguments[at];
    if (argument == "--classic") {
      options.Classic = true;
    } else if (argument == "--help") {
      options.Help = true;
    } else if (argument == "--version") {
      options.Version = true;
    } else if (argument == "--scale") {
      if (++at < arguments.size()) options.Scale = ScaleFrom(arguments[at]);
      if (options.Scale != 0) continue;
      options.Refusal = "--scale needs a number from 50 to 400, in percent";
      return options;
    } else if (argument.empty()) {
      options.Refusal = "the name of the file is empty";
      return options;
    } else if (argument.front() == '-') {
      options.Refusal = argument + ": there is no such option; --help shows them";
      return options;
    } else if (options.File) {
      options.Refusal = "only one file can be opened";
      return options;
    } else {
      options.File = at;
    }
  }
  return options;
}

}  // namespace zerimo
