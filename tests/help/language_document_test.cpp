#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <sstream>
#include <vector>

#include "interpreter/word_table.h"
#include "word_tables.h"

namespace zerimo::help {

namespace {

constexpr const char* restOfTheLine = "\u2026";

const std::filesystem::path document = std::filesystem::path(ZERIMO_SOURCE_DIR) / "docs" / "language.md";
const std::filesystem::path helpFolder = std::filesystem::path(ZERIMO_SOURCE_DIR) / "help";

/// A row of the tables of words.
struct WordRow {
  std::string Other;
  std::vector<std::string> Inputs;
  std::string Missing;
  std::string Kind;
  std::string Meaning;
};

/// The document as the tool makes it now.
std::string MadeDocument() {
  std::vector<Topic> topics;
  for (const auto& entry : std::filesystem::directory_iterator(helpFolder)) {
    if (entry.path().extension() == ".txt" && entry.path().filename() != "CMakeLists.txt")
      topics.push_back(ReadTopic(entry.path().string()));
  }
  std::ifstream frame(helpFolder / "language.frame", std::ios::binary);
  return LanguageReference(frame, topics);
}

std::string Cell(std::istringstream& row) {
  std::string cell;
  std::getline(row, cell, '|');
  const std::size_t first = cell.find_first_not_of(' ');
  return first == std::string::npos ? std::string() : cell.substr(first, cell.find_last_not_of(' ') - first + 1);
}

/// A word marked as code at the start of a cell, or nothing.
std::optional<std::string> CodeIn(const std::string& cell) {
  const std::size_t end = cell.find('`', 1);
  const bool isCode = cell.starts_with('`') && end != std::string::npos;
  return isCode ? std::optional(cell.substr(1, end - 1)) : std::nullopt;
}

/// The rows below a header that begins with "Word" and "Also", up to the end of the table.
std::multimap<std::string, WordRow> RowsOfWords() {
  std::ifstream lines(document);
  std::multimap<std::string, WordRow> rows;
  bool isTableOfWords = false;
  for (std::string line; std::getline(lines, line);) {
    isTableOfWords = line.starts_with("| Word | Also |") || (isTableOfWords && line.starts_with("|"));
    std::istringstream cells(line);
    Cell(cells);
    const std::optional<std::string> word = CodeIn(Cell(cells));
    if (!isTableOfWords || !word) continue;
    WordRow row;
    row.Other = CodeIn(Cell(cells)).value_or("");
    std::istringstream inputs(Cell(cells));
    row.Inputs.assign(std::istream_iterator<std::string>(inputs), {});
    row.Missing = Cell(cells);
    row.Kind = Cell(cells);
    row.Meaning = Cell(cells);
    rows.emplace(*word, row);
  }
  return rows;
}

std::vector<std::string> WordsOf(const std::multimap<std::string, WordRow>& rows) {
  std::vector<std::string> words;
  for (const auto& [word, row] : rows) {
    words.push_back(word);
    if (!row.Other.empty()) words.push_back(row.Other);
  }
  std::ranges::sort(words);
  return words;
}

std::vector<std::string> WordsOfTheSystem() {
  std::vector<std::string> words;
  for (const WordFacts& word : AllWords()) {
    if (word.Help == HelpPage::Page) words.emplace_back(word.Word);
  }
  std::ranges::sort(words);
  return words;
}

/// The number of inputs that the table has for a word; a word that is not counted has none.
int InputsOf(const std::string& word) {
  const WordFacts* const facts = FindWord(word);
  return facts == nullptr || facts->Inputs == inputs::NotCounted ? 0 : facts->Inputs;
}

const ActionFacts* FactsOfName(const std::string& name) {
  const auto actions = Actions();
  const auto found = std::ranges::find_if(actions, [&](const ActionFacts& facts) { return facts.Name == name; });
  return found == actions.end() ? nullptr : &*found;
}

bool IsInTheTable(std::string_view name) { return std::ranges::count(CommandListNames(), name) > 0; }

class LanguageDocument : public testing::Test {
 protected:
  const std::multimap<std::string, WordRow> rows = RowsOfWords();
};

}  // namespace

TEST(LanguageDocumentFile, IsWhatTheToolMakes) {
  std::ifstream file(document, std::ios::binary);
  const std::string text((std::istreambuf_iterator<char>(file)), {});
  EXPECT_EQ(text, MadeDocument()) << "docs/language.md is older than the table of primitives, the help pages or "
                                     "help/language.frame. Build the target language_document to make it anew.";
}

TEST_F(LanguageDocument, HasEveryWordOnce) { EXPECT_EQ(WordsOf(rows), WordsOfTheSystem()); }

TEST_F(LanguageDocument, TellsTheInputsOfTheTable) {
  for (const auto& [word, row] : rows) {
    const bool takesRest = !row.Inputs.empty() && row.Inputs.back().ends_with(restOfTheLine);
    // `TO` is not a statement of a typed line and so has no number of inputs.
    if (word == "TO") continue;
    if (InputsOf(word) < 0) {
      EXPECT_TRUE(takesRest) << word;
    } else {
      EXPECT_EQ(static_cast<int>(row.Inputs.size()), InputsOf(word)) << word;
    }
  }
}

TEST_F(LanguageDocument, TellsTheBoxOfAMissingInput) {
  const std::map<MissingInput, std::string> boxes = {{MissingInput::NoTest, ""},
                                                     {MissingInput::Usual, "box: Abort, Retry, Ignore"},
                                                     {MissingInput::Information, "box: OK, information sign"},
                                                     {MissingInput::Plain, "box: OK"}};
  for (const auto& [word, row] : rows) {
    const ActionFacts* const facts = FactsOfName(word);
    EXPECT_EQ(row.Missing, boxes.at(facts == nullptr ? MissingInput::NoTest : facts->Missing)) << word;
  }
}

TEST_F(LanguageDocument, TellsTheKindOfEveryWord) {
  for (const auto& [word, row] : rows) {
    const ActionFacts* const facts = FactsOfName(word);
    if (facts == nullptr) {
      EXPECT_TRUE(row.Kind == "program" || row.Kind == "nothing") << word;
    } else {
      EXPECT_EQ(row.Kind, facts->Match == MatchedBy::WholeLine ? "alone" : "first word") << word;
    }
    EXPECT_NE(row.Meaning, "") << word;
  }
}

TEST_F(LanguageDocument, TellsTheOtherNamesThatCanBeTyped) {
  for (const ActionFacts& facts : Actions()) {
    const auto row = rows.find(std::string(facts.Name));
    if (row == rows.end()) continue;
    EXPECT_EQ(row->second.Other, IsInTheTable(facts.OtherName) ? facts.OtherName : "") << facts.Name;
  }
}

}  // namespace zerimo::help
