#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

#include "claims.h"
#include "interpreter/word_table.h"
#include "page_layout.h"

namespace zerimo::help {

namespace {

const std::filesystem::path builtFolder = ZERIMO_APP_FOLDER;

std::set<std::string> WordsWithAPage() {
  std::set<std::string> words;
  for (const WordFacts& word : AllWords()) {
    if (word.Help == HelpPage::Page) words.emplace(word.Word);
  }
  return words;
}

std::string BytesOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

RichText PageOf(const std::string& word) { return ReadRtf(BytesOf(builtFolder / "ZMHELP" / word)); }

std::set<std::string> WordsIn(const RichText& page) {
  std::istringstream stream(PlainText(page));
  return {std::istream_iterator<std::string>(stream), {}};
}

/// The paragraph after the heading of the related words.
std::vector<std::string> RelatedWordsOf(const RichText& page) {
  const auto& paragraphs = page.Paragraphs;
  for (std::size_t i = 0; i + 1 < paragraphs.size(); ++i) {
    if (paragraphs[i].Runs.empty() || paragraphs[i].Runs.front().Text != "See also") continue;
    std::istringstream stream(paragraphs[i + 1].Runs.front().Text);
    return {std::istream_iterator<std::string>(stream), {}};
  }
  return {};
}

/// A name for a test: words such as "(SUM" have characters that the name of a test can't have.
std::string TestNameOf(const testing::TestParamInfo<std::string>& word) {
  return word.param.starts_with('(') ? "BRACKET_" + word.param.substr(1) : word.param;
}

class HelpPage : public testing::TestWithParam<std::string> {
 protected:
  RichText page = PageOf(GetParam());
};

}  // namespace

TEST(HelpPages, EveryWordHasAPageAndEveryPageAWord) {
  std::set<std::string> pages;
  for (const auto& entry : std::filesystem::directory_iterator(builtFolder / "ZMHELP"))
    pages.insert(entry.path().filename().string());
  EXPECT_EQ(pages, WordsWithAPage());
}

TEST(HelpPages, TheGeneralPageNamesEveryWord) {
  const std::set<std::string> named = WordsIn(PageOf("HELP"));
  for (const std::string& word : WordsWithAPage()) EXPECT_TRUE(named.contains(word)) << word;
}

TEST_P(HelpPage, IsRichTextThatBeginsWithItsName) {
  EXPECT_TRUE(IsRtf(BytesOf(builtFolder / "ZMHELP" / GetParam())));
  EXPECT_EQ(page.Paragraphs.front().Runs.front().Text, GetParam());
}

TEST_P(HelpPage, RelatesToWordsThatHavePages) {
  const std::vector<std::string> related = RelatedWordsOf(page);
  EXPECT_EQ(related.empty(), GetParam() == "HELP");
  for (const std::string& word : related) EXPECT_TRUE(WordsWithAPage().contains(word)) << word;
}

TEST_P(HelpPage, HasExamplesWithClaimsThatUseTheWord) {
  const std::vector<Example> examples = ExamplesOf(page);
  ASSERT_FALSE(examples.empty());
  bool isUsed = false;
  for (const Example& example : examples) {
    EXPECT_FALSE(example.Claims.empty()) << JoinedLines(example.Typed);
    const std::string lines = JoinedLines(example.Typed) + JoinedLines(example.Edited);
    isUsed = isUsed || lines.find(GetParam()) != std::string::npos;
  }
  EXPECT_TRUE(isUsed);
}

TEST_P(HelpPage, ExamplesDoWhatThePageClaims) {
  for (const Example& example : ExamplesOf(page)) EXPECT_EQ(ProblemsOf(example, "help"), "");
}

INSTANTIATE_TEST_SUITE_P(Words, HelpPage, testing::ValuesIn(WordsWithAPage()), TestNameOf);

}  // namespace zerimo::help
