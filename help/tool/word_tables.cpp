#include "word_tables.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <stdexcept>

#include "interpreter/word_table.h"

namespace zerimo::help {

namespace {

/// The words that build programs. The runner knows them itself; of these only `REPEAT` is among the primitives.
constexpr std::array<std::string_view, 9> programWords = {"TO",    "END",  "MAKE",  "IF",    "ELSE",
                                                          "ENDIF", "GOTO", "LABEL", "REPEAT"};

constexpr std::string_view headingMark = "### ";
constexpr const char* restOfTheLine = "\u2026";

bool IsProgramWord(std::string_view word) { return std::ranges::count(programWords, word) > 0; }
bool IsTyped(std::string_view name) { return std::ranges::count(CommandListNames(), name) > 0; }

const ActionFacts* FactsOfName(std::string_view name) {
  const auto actions = Actions();
  const auto found = std::ranges::find_if(
      actions, [&](const ActionFacts& facts) { return facts.Name == name || facts.OtherName == name; });
  return found == actions.end() ? nullptr : &*found;
}

std::optional<int> InputsOfName(std::string_view name) {
  const WordFacts* const word = FindWord(name);
  return word == nullptr || word->Inputs == inputs::NotCounted ? std::nullopt : std::optional<int>(word->Inputs);
}

std::string Joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}

/// "+ x1 y1: ..." names two inputs.
std::vector<std::string> InputNamesOf(const Page& page) {
  std::vector<std::string> names;
  for (const PageLine& line : page.Lines) {
    if (line.Kind != LineKind::Input) continue;
    std::istringstream words(line.Text.substr(0, line.Text.find(':')));
    names.insert(names.end(), std::istream_iterator<std::string>(words), {});
  }
  return names;
}

std::string InputsCell(const Page& page) {
  std::vector<std::string> names = InputNamesOf(page);
  const std::optional<int> inputs = InputsOfName(page.Name);
  const bool takesRest = inputs ? *inputs < 0 : !names.empty();
  if (takesRest) return Joined(names) + restOfTheLine;
  const auto wanted = static_cast<std::size_t>(inputs.value_or(0));
  if (names.empty()) names.assign(wanted, "(ignored)");
  if (names.size() != wanted) throw std::runtime_error("the page and the table have different inputs: " + page.Name);
  return Joined(names);
}

std::string MissingCell(const ActionFacts* facts) {
  switch (facts == nullptr ? MissingInput::NoTest : facts->Missing) {
    case MissingInput::Usual:
      return "box: Abort, Retry, Ignore";
    case MissingInput::Information:
      return "box: OK, information sign";
    case MissingInput::Plain:
      return "box: OK";
    case MissingInput::NoTest:
      break;
  }
  return {};
}

std::string KindCell(const std::string& word, const ActionFacts* facts) {
  if (IsProgramWord(word)) return "program";
  if (facts == nullptr) return "nothing";
  return facts->Match == MatchedBy::WholeLine ? "alone" : "first word";
}

/// The long name, and how it is matched where that differs.
std::string AlsoCell(const ActionFacts* facts) {
  if (facts == nullptr || !IsTyped(facts->OtherName)) return {};
  const std::string name = "`" + std::string(facts->OtherName) + "`";
  return facts->OtherMatch == facts->Match ? name : name + " (alone)";
}

std::string MeaningOf(const Page& page) {
  // The general page greets first.
  int passed = page.Name == "HELP" ? 1 : 0;
  for (const PageLine& line : page.Lines) {
    if (line.Kind == LineKind::Text && passed-- == 0) return line.Text;
  }
  throw std::runtime_error("a page that does not say what its word does: " + page.Name);
}

class Reference {
 public:
  explicit Reference(const std::vector<Topic>& theTopics) : topics(theTopics) {}

  std::string Write(std::istream& frame) {
    for (std::string line; std::getline(frame, line);) {
      if (line.starts_with(headingMark)) heading = line.substr(headingMark.size());
      if (line.starts_with("{{") && line.ends_with("}}")) {
        WritePart(line.substr(2, line.size() - 4));
      } else {
        text << line << '\n';
      }
    }
    CheckComplete();
    return text.str();
  }

 private:
  void WritePart(const std::string& name) {
    if (name == "index") return WriteIndex();
    if (name == "untyped") return WriteUntyped();
    const auto topic = std::ranges::find_if(topics, [&](const Topic& one) { return one.Name == name; });
    if (topic == topics.end()) throw std::runtime_error("the frame names an unknown topic: " + name);
    text << "| Word | Also | Inputs | Missing input | Kind | What it does |\n|---|---|---|---|---|---|\n";
    for (const Page& page : topic->Pages) WriteRow(page);
  }

  /// A long name is in the row of its short one.
  void WriteRow(const Page& page) {
    const ActionFacts* const facts = FactsOfName(page.Name);
    if (!IsTyped(page.Name) && !IsProgramWord(page.Name))
      throw std::runtime_error("a page without a word: " + page.Name);
    if (!anchors.emplace(page.Name, Anchor()).second) throw std::runtime_error("two rows of one word: " + page.Name);
    if (facts != nullptr && facts->OtherName == page.Name) return;
    text << "| `" << page.Name << "` | " << AlsoCell(facts) << " | " << InputsCell(page) << " | " << MissingCell(facts)
         << " | " << KindCell(page.Name, facts) << " | " << MeaningOf(page) << " |\n";
  }

  /// A line for each first letter.
  void WriteIndex() {
    std::string before;
    for (const auto& [word, anchor] : anchors) {
      if (before.empty() || before.front() != word.front()) text << (before.empty() ? "- " : "\n- ");
      text << "[`" << word << "`](#" << anchor << ")";
      before = word;
    }
    text << '\n';
  }

  void WriteUntyped() {
    std::string line;
    for (const ActionFacts& facts : Actions()) {
      for (const std::string_view name : {facts.Name, facts.OtherName}) {
        if (!name.empty() && !IsTyped(name)) line += (line.empty() ? "`" : ", `") + std::string(name) + "`";
      }
    }
    text << line << '\n';
  }

  void CheckComplete() const {
    std::set<std::string_view> words(programWords.begin(), programWords.end());
    for (const std::string_view name : CommandListNames()) {
      if (!name.empty()) words.insert(name);
    }
    for (const std::string_view word : words) {
      if (!anchors.contains(std::string(word)))
        throw std::runtime_error("a word without an entry: " + std::string(word));
    }
  }

  /// The link to a heading of the frame.
  std::string Anchor() const {
    std::string anchor = heading;
    for (char& c : anchor) c = c == ' ' ? '-' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return anchor;
  }

  const std::vector<Topic>& topics;
  std::string heading;
  std::ostringstream text;
  std::map<std::string, std::string> anchors;
};

}  // namespace

Topic ReadTopic(const std::string& file) {
  std::ifstream source(file, std::ios::binary);
  if (!source) throw std::runtime_error("can't be read: " + file);
  Topic topic{std::filesystem::path(file).stem().string(), {}};
  ReadPages(source, topic.Pages);
  return topic;
}

std::string LanguageReference(std::istream& frame, const std::vector<Topic>& topics) {
  return Reference(topics).Write(frame);
}

}  // namespace zerimo::help
