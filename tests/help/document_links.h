#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zerimo::help {

/// The documents at the top of the tree and all those in docs, src, tests, help and packaging.
std::vector<std::filesystem::path> AllDocuments(const std::filesystem::path& sourceFolder);

/// The targets of a document's links and pictures, except those on the network.
std::vector<std::string> LinksIn(const std::filesystem::path& document);

/// Whether a link of a document leads to an existing file and, with a "#", to a heading in it.
bool LeadsSomewhere(const std::filesystem::path& document, const std::string& link);

}  // namespace zerimo::help
