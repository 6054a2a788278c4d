#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace zerimo::help {

namespace {

const std::filesystem::path sourceFolder = ZERIMO_SOURCE_DIR;

std::string TextOf(const std::filesystem::path& file) {
  std::ostringstream text;
  text << std::ifstream(file).rdbuf();
  return text.str();
}

struct Section {
  std::string Heading;
  std::string Text;
};

/// The sections under "### " of a text.
std::vector<Section> SectionsOf(const std::string& text) {
  std::vector<Section> sections;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("### ")) {
      sections.push_back({line.substr(4), {}});
    } else if (!sections.empty()) {
      sections.back().Text += line + "\n";
    }
  }
  return sections;
}

}  // namespace

TEST(InterpreterDocument, SaysTheSameOfEachProcedureInTheSameOrder) {
  const std::string text = TextOf(sourceFolder / "docs/interpreter.md");
  const std::size_t first = text.find("\n## A typed line\n");
  const std::size_t end = text.find("\n## What is derived from what\n");
  ASSERT_LT(first, end);
  for (const Section& section : SectionsOf(text.substr(first, end - first))) {
    std::size_t at = 0;
    for (const char* part : std::array{"\n- Skip rule: ", "\n- Limits:", "\n- Caller's text: ", "\nExample"}) {
      at = section.Text.find(part, at);
      ASSERT_NE(at, std::string::npos) << section.Heading << " has no " << part + 1 << ", or not in this order";
    }
  }
}

TEST(InterpreterDocument, HasEachHeadingThatASourceNames) {
  std::set<std::string> headings;
  const std::string document = TextOf(sourceFolder / "docs/interpreter.md");
  const std::regex heading("\n#+ ([^\n]+)");
  for (std::sregex_iterator it(document.begin(), document.end(), heading), none; it != none; ++it)
    headings.insert((*it)[1]);

  const std::regex pointer("docs/interpreter\\.md, \"([^\"]+)\"");
  int pointers = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(sourceFolder / "src")) {
    if (entry.path().extension() != ".h") continue;
    const std::string header = TextOf(entry.path());
    for (std::sregex_iterator it(header.begin(), header.end(), pointer), none; it != none; ++it, ++pointers)
      EXPECT_TRUE(headings.contains((*it)[1])) << (*it)[1] << " in " << entry.path().filename();
  }
  EXPECT_GT(pointers, 0);
}

}  // namespace zerimo::help
