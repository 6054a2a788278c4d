#pragma once

#include <filesystem>
#include <vector>

#include "page_examples.h"

namespace zerimo::help {

/// The examples of a document of docs/: indented lines that begin with "? ", "| " or "> "; a blank line or other text
/// ends an example.
std::vector<Example> ExamplesInDocument(const std::filesystem::path& file);

}  // namespace zerimo::help
