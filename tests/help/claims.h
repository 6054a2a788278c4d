#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "page_examples.h"
#include "support/batch_run.h"

namespace zerimo::help {

/// What an example did, in the words of the pages. Lists are in the order in which things happened.
struct Deeds {
  /// Texts of the boxes, with line breaks as the system sets them.
  std::vector<std::string> Boxes;
  /// What was added to the history besides the typed lines.
  std::vector<std::string> History;
  /// Texts printed on the surface.
  std::vector<std::string> Writings;
  /// Names of the pictures loaded, in capitals and without folder.
  std::vector<std::string> Pictures;
  std::vector<int> Waits;
  /// Operations of the surface by the pages' words: line, circle, oval, box, dot, ellipse, patch.
  std::map<std::string, int> Drawn;
};

Deeds DeedsOf(const BatchRun& run);

/// The claims of an example that are not true, and deeds that no claim mentions, each as a sentence. `folder` is where
/// the example ran.
std::vector<std::string> BrokenClaims(const Example& example, const BatchRun& run, const std::filesystem::path& folder);

/// Tries an example in a fresh folder. Returns what is wrong, a line each, with the lines of the example; empty if it
/// does what its page claims.
std::string ProblemsOf(const Example& example, const std::string& folderName);

}  // namespace zerimo::help
