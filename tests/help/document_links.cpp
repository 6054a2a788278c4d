#include "document_links.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <regex>
#include <set>

namespace zerimo::help {

namespace {

/// The name by which a link reaches a heading: small letters, digits, "_" and "-", with "-" for each blank.
std::string AnchorOf(const std::string& heading) {
  std::string anchor;
  for (const char c : heading) {
    const auto code = static_cast<unsigned char>(c);
    if (c == ' ') anchor += '-';
    if (std::isalnum(code) != 0 || c == '-' || c == '_') anchor += static_cast<char>(std::tolower(code));
  }
  return anchor;
}

std::set<std::string> AnchorsOf(const std::filesystem::path& document) {
  static const std::regex heading("#+ (.*)");
  std::ifstream lines(document);
  std::set<std::string> anchors;
  std::smatch parts;
  for (std::string line; std::getline(lines, line);) {
    if (std::regex_match(line, parts, heading)) anchors.insert(AnchorOf(parts[1]));
  }
  return anchors;
}

}  // namespace

std::vector<std::filesystem::path> AllDocuments(const std::filesystem::path& sourceFolder) {
  std::vector<std::filesystem::path> documents;
  const auto addDocument = [&documents](const std::filesystem::directory_entry& entry) {
    if (entry.path().extension() == ".md") documents.push_back(entry.path());
  };
  std::ranges::for_each(std::filesystem::directory_iterator(sourceFolder), addDocument);
  for (const char* const folder : {"docs", "src", "tests", "help", "packaging"})
    std::ranges::for_each(std::filesystem::recursive_directory_iterator(sourceFolder / folder), addDocument);
  return documents;
}

std::vector<std::string> LinksIn(const std::filesystem::path& document) {
  static const std::regex link("\\]\\(([^)]+)\\)");
  std::ifstream lines(document);
  std::vector<std::string> links;
  bool isInBlock = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.find("```") != std::string::npos) isInBlock = !isInBlock;
    if (isInBlock) continue;
    for (std::sregex_iterator it(line.begin(), line.end(), link), end; it != end; ++it) {
      const std::string target = (*it)[1];
      if (target.find("://") == std::string::npos) links.push_back(target);
    }
  }
  return links;
}

bool LeadsSomewhere(const std::filesystem::path& document, const std::string& link) {
  const std::size_t mark = link.find('#');
  const std::string file = link.substr(0, mark);
  const std::filesystem::path target = file.empty() ? document : document.parent_path() / file;
  if (!std::filesystem::exists(target)) return false;
  return mark == std::string::npos || AnchorsOf(target).contains(link.substr(mark + 1));
}

}  // namespace zerimo::help
