#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zerimo::help {

/// A line of a source that a document shows.
struct Quotation {
  /// From the top of the tree.
  std::string File;
  std::string Line;
};

/// The lines that a chapter of a document shows in fenced blocks, each from the file named last before its block. A
/// chapter ends where the next one begins.
std::vector<Quotation> QuotationsIn(const std::filesystem::path& document, const std::string& heading);

/// Whether a file has a line, blanks at its ends aside.
bool HasLine(const std::filesystem::path& file, const std::string& line);

}  // namespace zerimo::help
