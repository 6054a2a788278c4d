#include "page_source.h"

#include <array>
#include <stdexcept>

namespace zerimo::help {

namespace {

struct KindMark {
  LineKind Kind;
  std::string_view Mark;
};

constexpr std::array<KindMark, 8> marks = {{{LineKind::Heading, "* "},
                                            {LineKind::Input, "+ "},
                                            {LineKind::Point, "- "},
                                            {LineKind::Typed, "? "},
                                            {LineKind::Edited, "| "},
                                            {LineKind::Claim, "> "},
                                            {LineKind::Hint, "! "},
                                            {LineKind::Related, "~ "}}};

constexpr std::string_view pageMark = "= ";

}  // namespace

std::string_view MarkOf(LineKind kind) {
  for (const KindMark& entry : marks) {
    if (entry.Kind == kind) return entry.Mark;
  }
  return {};
}

PageLine ReadPageLine(std::string_view line) {
  for (const KindMark& entry : marks) {
    if (line.starts_with(entry.Mark)) return {entry.Kind, std::string(line.substr(entry.Mark.size()))};
  }
  return {LineKind::Text, std::string(line)};
}

void ReadPages(std::istream& source, std::vector<Page>& pages) {
  bool isInPage = false;
  for (std::string line; std::getline(source, line);) {
    if (line.empty()) continue;
    if (line.starts_with(pageMark)) {
      pages.push_back({line.substr(pageMark.size()), {}});
      isInPage = true;
    } else if (isInPage) {
      pages.back().Lines.push_back(ReadPageLine(line));
    } else {
      throw std::runtime_error("text before the first page: " + line);
    }
  }
}

}  // namespace zerimo::help
