#include "document_quotations.h"

#include <fstream>
#include <regex>

#include "base/text.h"

namespace zerimo::help {

std::vector<Quotation> QuotationsIn(const std::filesystem::path& document, const std::string& heading) {
  const std::regex endsWithFile("`([a-z_/]+\\.[a-z]+)`:$");
  std::ifstream lines(document);
  std::vector<Quotation> quotations;
  std::string file;
  bool isInChapter = false;
  bool isInBlock = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("## ")) isInChapter = line == heading;
    if (!isInChapter) continue;
    const std::string text(Trimmed(line));
    std::smatch match;
    if (text.starts_with("```")) {
      isInBlock = !isInBlock;
    } else if (isInBlock) {
      quotations.push_back({file, text});
    } else if (std::regex_search(text, match, endsWithFile)) {
      file = match[1];
    }
  }
  return quotations;
}

bool HasLine(const std::filesystem::path& file, const std::string& line) {
  std::ifstream lines(file);
  for (std::string each; std::getline(lines, each);) {
    if (Trimmed(each) == line) return true;
  }
  return false;
}

}  // namespace zerimo::help
