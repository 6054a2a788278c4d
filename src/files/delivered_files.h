#pragma once

#include <filesystem>

namespace zerimo {

/// What one delivery came to.
struct Delivery {
  /// Files that were put into the folder or brought up to date.
  int Written = 0;
  /// Files that could not be written, the list among them.
  int Failed = 0;
};

/// Puts the samples, pictures and slides of `source`, and the help pages in its folder ZMHELP, into `target`, which is
/// made if need be. A hidden list in `target` tells what was delivered before:
/// - a file that is new comes, if none of its name is there in any case;
/// - a file that the user has not changed follows its source;
/// - a file that the user changed stays as it is;
/// - a sample, picture or slide that the user deleted stays away, a help page comes again.
/// Nothing is ever taken away. A source that is not there delivers nothing.
Delivery DeliverFiles(const std::filesystem::path& source, const std::filesystem::path& target);

/// The folder of the help pages in a folder that is delivered from or to.
std::filesystem::path HelpFolderIn(const std::filesystem::path& folder);

/// The hidden list in a folder that was delivered to.
std::filesystem::path DeliveryListIn(const std::filesystem::path& folder);

}  // namespace zerimo
