#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zerimo::help {

/// The documents at the top of the tree and those of docs/.
std::vector<std::filesystem::path> AllDocuments(const std::filesystem::path& sourceFolder);

/// Where the links and pictures of a document lead, but for those into the network.
std::vector<std::string> LinksIn(const std::filesystem::path& document);

/// Whether a link of a document leads to a file that is there, and, with a "#", to a heading of it.
bool LeadsSomewhere(const std::filesystem::path& document, const std::string& link);

}  // namespace zerimo::help
