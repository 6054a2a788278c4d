#pragma once

#include <filesystem>

namespace zerimo {

/// The result of one delivery.
struct Delivery {
  /// Files that were added to the folder or brought up to date.
  int Written = 0;
  /// Files that could not be written, the list among them.
  int Failed = 0;
};

/// Puts the samples, pictures and slides of `source`, and the help pages in its folder ZMHELP, into `target`, which is
/// created if need be. A hidden list in `target` says what was delivered before:
/// - a new file is added unless one of that name, in any case, exists;
/// - a file that the user has not changed is updated from its source;
/// - a file that the user has changed stays as it is;
/// - a sample, picture or slide that the user has deleted stays deleted; a help page is added again.
/// Nothing is ever removed. A source that does not exist delivers nothing.
Delivery DeliverFiles(const std::filesystem::path& source, const std::filesystem::path& target);

/// The folder of the help pages in a folder that is delivered from or to.
std::filesystem::path HelpFolderIn(const std::filesystem::path& folder);

}  // namespace zerimo
