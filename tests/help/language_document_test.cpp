#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <sstream>
#include <vector>

#include "core/primitives.h"

namespace zerimo::help {

namespace {

constexpr const char* restOfTheLine = "\u2026";

/// A row of the tables of words.
struct WordRow {
  std::string Other;
  std::vector<std::string> Inputs;
};

std::string Cell(std::istringstream& row) {
  std::string cell;
  std::getline(row, cell, '|');
  const std::size_t first = cell.find_first_not_of(' ');
  return first == std::string::npos ? std::string() : cell.substr(first, cell.find_last_not_of(' ') - first + 1);
}

/// A word between the marks of code, or nothing.
std::optional<std::string> CodeIn(const std::string& cell) {
  const bool isCode = cell.size() > 2 && cell.front() == '`' && cell.back() == '`';
  return isCode ? std::optional(cell.substr(1, cell.size() - 2)) : std::nullopt;
}

/// The rows below a head that begins with "Word", up to the end of that table.
std::multimap<std::string, WordRow> RowsOfWords() {
  std::ifstream document(std::filesystem::path(ZERIMO_SOURCE_DIR) / "docs" / "language.md");
  std::multimap<std::string, WordRow> rows;
  bool isTableOfWords = false;
  for (std::string line; std::getline(document, line);) {
    isTableOfWords = line.starts_with("| Word |") || (isTableOfWords && line.starts_with("|"));
    std::istringstream cells(line);
    Cell(cells);
    const std::optional<std::string> word = CodeIn(Cell(cells));
    if (!isTableOfWords || !word) continue;
    WordRow row;
    row.Other = CodeIn(Cell(cells)).value_or("");
    std::istringstream inputs(Cell(cells));
    row.Inputs.assign(std::istream_iterator<std::string>(inputs), {});
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
  const auto names = CommandListNames();
  std::vector<std::string> words(names.begin(), names.end());
  std::erase(words, "");
  words.insert(words.end(), {"TO", "END", "MAKE", "IF", "ELSE", "ENDIF", "GOTO", "LABEL"});
  std::ranges::sort(words);
  words.erase(std::ranges::unique(words).begin(), words.end());
  return words;
}

/// The number that the table of input counts has for a word; a word without one has no inputs.
int InputsOf(const std::string& word) {
  const auto counts = InputCounts();
  const auto found = std::ranges::find_if(counts, [&](const InputCount& count) { return count.Word == word; });
  return found == counts.end() ? 0 : found->Inputs;
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

TEST_F(LanguageDocument, HasEveryWordOnce) { EXPECT_EQ(WordsOf(rows), WordsOfTheSystem()); }

TEST_F(LanguageDocument, TellsTheInputsOfTheTable) {
  for (const auto& [word, row] : rows) {
    const bool takesRest = !row.Inputs.empty() && row.Inputs.back().ends_with(restOfTheLine);
    // `TO` is no statement of a typed line and so has no number of inputs.
    if (word == "TO") continue;
    if (InputsOf(word) < 0) {
      EXPECT_TRUE(takesRest) << word;
    } else {
      EXPECT_EQ(static_cast<int>(row.Inputs.size()), InputsOf(word)) << word;
    }
  }
}

TEST_F(LanguageDocument, MarksTheInputsThatMustNotBeMissing) {
  for (const auto& [word, row] : rows) {
    const bool isMarked = !row.Inputs.empty() && row.Inputs.front().ends_with('*');
    const ActionFacts* const facts = FactsOfName(word);
    EXPECT_EQ(isMarked, facts != nullptr && facts->Missing != MissingInput::NoTest) << word;
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
