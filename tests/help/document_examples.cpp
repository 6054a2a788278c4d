#include "document_examples.h"

#include <fstream>

namespace zerimo::help {

namespace {

constexpr std::string_view indent = "    ";

/// Where a line of an example belongs, or nothing.
std::vector<std::string>* PlaceOf(const std::string& line, Example& example) {
  const std::string_view text = std::string_view(line).substr(indent.size());
  if (text.starts_with("? ")) return &example.Typed;
  if (text.starts_with("| ")) return &example.Edited;
  if (text.starts_with("> ")) return &example.Claims;
  return nullptr;
}

}  // namespace

std::vector<Example> ExamplesInDocument(const std::filesystem::path& file) {
  std::vector<Example> examples;
  bool goesOn = false;
  std::ifstream stream(file);
  for (std::string line; std::getline(stream, line);) {
    Example first;
    const bool isExample = line.starts_with(indent) && PlaceOf(line, first) != nullptr;
    if (isExample && !goesOn) examples.emplace_back();
    if (isExample) PlaceOf(line, examples.back())->push_back(line.substr(indent.size() + 2));
    goesOn = isExample;
  }
  return examples;
}

}  // namespace zerimo::help
