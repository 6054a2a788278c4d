#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace zerimo {

/// What the window is started with: options, and the name of one file at most.
struct WindowOptions {
  /// Why the arguments are refused, or the empty text.
  std::string Refusal;
  /// "--help" or "--version": only that is shown.
  bool Help = false;
  bool Version = false;
  /// "--classic": without any extension.
  bool Classic = false;
  /// "--scale PERCENT", from 50 to 400; 0 if not given.
  int Scale = 0;
  /// Which argument, counted from 0, names the file to open. Only the toolkit knows how to decode it.
  std::optional<std::size_t> File;
};

/// Reads the arguments after the program's name.
WindowOptions ReadWindowOptions(const std::vector<std::string>& arguments);

}  // namespace zerimo
